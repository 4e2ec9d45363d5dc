#pragma once

#include "outlook/scripting.h"

#include <memory>
#include <vector>

namespace rf {

/// Carries a record of the program through automation. It has no members: whoever looks into the record holds it by its
/// own type. An object of this process that comes back out of a component is itself again, so nothing is copied.
template <class Record>
class RecordBox final : public automation::Dispatch {
public:
    explicit RecordBox(std::shared_ptr<Record> record)
        : record_(std::move(record))
    {
    }

    [[nodiscard]] const std::shared_ptr<Record>& record() const { return record_; }

    automation::Variant invoke(TextView member, automation::Invocation, std::span<automation::Variant>) override
    {
        refuse(error_number::memberNotFound, member);
    }
    [[nodiscard]] automation::Connection advise(
        const automation::EventInterface& events, automation::EventHandler) override
    {
        refuse(error_number::eventsNotSupported, events.name);
    }

private:
    [[noreturn]] static void refuse(std::int32_t number, TextView member)
    {
        throw automation::Error{number, {Text{errorDescription(number)}, u"RecordBox", Text{member}}};
    }

    std::shared_ptr<Record> record_;
};

/// Records under texts, in the order in which they were added, in one of the dictionaries that the whole program
/// shares (`ScriptingFactory::fncCreateDic`): keys that differ only in case are one key, and whoever holds the
/// dictionary itself, to sort it for one, sees the same entries. Copies are handles to one dictionary.
template <class Record>
class RecordDictionary {
public:
    RecordDictionary() = default;
    /// The dictionary holds nothing but records of this type, or nothing yet.
    explicit RecordDictionary(outlook::Dictionary dictionary)
        : dictionary_(std::move(dictionary))
    {
    }

    [[nodiscard]] const outlook::Dictionary& dictionary() const { return dictionary_; }
    [[nodiscard]] explicit operator bool() const { return static_cast<bool>(dictionary_); }

    [[nodiscard]] std::int32_t count() const { return dictionary_.count(); }
    [[nodiscard]] bool exists(TextView key) const { return dictionary_.exists(key); }
    /// Error 457 when the key is there already.
    void add(TextView key, std::shared_ptr<Record> record) const
    {
        dictionary_.add(key, std::make_shared<RecordBox<Record>>(std::move(record)));
    }
    void add(TextView key, Record record) const { add(key, std::make_shared<Record>(std::move(record))); }
    /// Null when there is no such key; unlike the dictionary's own, this look leaves no empty entry behind.
    [[nodiscard]] std::shared_ptr<Record> find(TextView key) const
    {
        return exists(key) ? unboxed(dictionary_.item(key)) : nullptr;
    }

    [[nodiscard]] std::vector<Text> keys() const { return dictionary_.keys(); }
    /// The records in order. Error 13 when the dictionary holds something else.
    [[nodiscard]] std::vector<std::shared_ptr<Record>> items() const
    {
        std::vector<std::shared_ptr<Record>> records;
        for (const automation::Variant& item : dictionary_.items())
            records.push_back(unboxed(item));
        return records;
    }

private:
    [[nodiscard]] static std::shared_ptr<Record> unboxed(const automation::Variant& item)
    {
        const auto box = std::dynamic_pointer_cast<RecordBox<Record>>(item.dispatch());
        if (box == nullptr)
            throw RuntimeError{error_number::typeMismatch};
        return box->record();
    }

    outlook::Dictionary dictionary_;
};

} // namespace rf
