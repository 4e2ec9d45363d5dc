#pragma once

#include "automation/object.h"

#include <optional>
#include <span>
#include <string_view>
#include <type_traits>
#include <unordered_map>

namespace rf::automation {

/// The arguments of one call as the callee reads them: references are followed.
class Arguments {
public:
    explicit Arguments(std::span<Variant> values)
        : values_(values)
    {
    }

    [[nodiscard]] std::size_t count() const { return values_.size(); }
    /// Whether the caller gave this argument; one that is `Missing` was left out.
    [[nodiscard]] bool has(std::size_t index) const
    {
        return index < values_.size() && !values_[index].dereferenced().is<Missing>();
    }
    /// Error 450 when the caller left it out.
    [[nodiscard]] const Variant& operator[](std::size_t index) const;
    /// The value that a `Put` assigns.
    [[nodiscard]] const Variant& value() const { return (*this)[values_.empty() ? 0 : values_.size() - 1]; }
    /// Gives an argument by reference a new value.
    void assign(std::size_t index, Variant value) const;
    [[nodiscard]] std::span<Variant> span() const { return values_; }

private:
    std::span<Variant> values_;
};

/// One member of a class of this process. `read` serves both a get and a call; a member without `write` cannot be
/// assigned.
template <class T>
struct LocalMember {
    TextView name;
    Variant (*read)(T& self, const Arguments& arguments) = nullptr;
    void (*write)(T& self, const Arguments& arguments) = nullptr;
};

/// Finds a member of one class by its name, without regard to case. It knows positions alone, so that one class serves
/// those of all others; of two members with one name it finds the first.
class MemberIndex {
public:
    explicit MemberIndex(std::span<const TextView> names);
    MemberIndex(const MemberIndex&) = delete;
    MemberIndex& operator=(const MemberIndex&) = delete;
    ~MemberIndex();

    [[nodiscard]] std::optional<std::size_t> find(TextView name) const;

private:
    std::unordered_map<TextView, std::size_t, HashIgnoringCase, EqualIgnoringCase> positions_;
};

template <class T>
[[nodiscard]] MemberIndex indexOf(std::span<const LocalMember<T>> members)
{
    std::vector<TextView> names;
    for (const auto& member : members)
        names.push_back(member.name);
    return MemberIndex{names};
}

/// Fails as a class does that lacks a member, or does not raise a set of events.
[[noreturn]] void failWithoutMember(TextView className, TextView member);
[[noreturn]] void failWithoutEvents(TextView className, TextView events);

/// A late-bound object of this process, written as a class with a table of members:
///
///     class Folder final : public LocalObject<Folder> {
///     public:
///         static constexpr TextView className = u"MAPIFolder";
///         static std::span<const LocalMember<Folder>> members();
///     };
///
/// A class that raises events overrides `eventSource`.
template <class T>
class LocalObject : public Dispatch, public std::enable_shared_from_this<T> {
public:
    Variant invoke(TextView name, Invocation kind, std::span<Variant> values) override
    {
        const std::span<const LocalMember<T>> members = T::members();
        static const MemberIndex index = indexOf(members);
        const auto position = index.find(name);
        const LocalMember<T> member = position ? members[*position] : LocalMember<T>{};
        const bool put = kind == Invocation::Put;
        if (put ? member.write == nullptr : member.read == nullptr)
            failWithoutMember(T::className, name);
        const Arguments arguments{values};
        auto& self = static_cast<T&>(*this);
        if (!put)
            return member.read(self, arguments);
        member.write(self, arguments);
        return {};
    }

    [[nodiscard]] Connection advise(const EventInterface& events, EventHandler handler) override
    {
        if (EventSource* source = eventSource(events))
            return source->connect(std::move(handler));
        failWithoutEvents(T::className, events.name);
    }

protected:
    /// The source of a set of events; null when this class does not raise it.
    [[nodiscard]] virtual EventSource* eventSource(const EventInterface&) { return nullptr; }
};

} // namespace rf::automation
