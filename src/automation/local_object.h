#pragma once

#include "automation/object.h"

#include <algorithm>
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

/// Finds the members of one class by name, without regard to case.
template <class T>
class LocalMemberIndex {
public:
    explicit LocalMemberIndex(std::span<const LocalMember<T>> members)
    {
        for (const auto& member : members)
            byName_.emplace(member.name, &member);
    }
    [[nodiscard]] const LocalMember<T>* find(TextView name) const
    {
        const auto found = byName_.find(name);
        return found == byName_.end() ? nullptr : found->second;
    }

private:
    std::unordered_map<TextView, const LocalMember<T>*, HashIgnoringCase, EqualIgnoringCase> byName_;
};

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
        static const LocalMemberIndex<T> index{T::members()};
        const LocalMember<T>* member = index.find(name);
        const bool put = kind == Invocation::Put;
        if (member == nullptr || (put ? member->write == nullptr : member->read == nullptr))
            throw Error{error_number::memberNotFound,
                {Text{errorDescription(error_number::memberNotFound)}, Text{T::className}, Text{name}}};
        const Arguments arguments{values};
        auto& self = static_cast<T&>(*this);
        if (!put)
            return member->read(self, arguments);
        member->write(self, arguments);
        return {};
    }

    [[nodiscard]] Connection advise(const EventInterface& events, EventHandler handler) override
    {
        if (EventSource* source = eventSource(events))
            return source->connect(std::move(handler));
        throw Error{error_number::eventsNotSupported,
            {Text{errorDescription(error_number::eventsNotSupported)}, Text{T::className}, Text{events.name}}};
    }

protected:
    /// The source of a set of events; null when this class does not raise it.
    [[nodiscard]] virtual EventSource* eventSource(const EventInterface&) { return nullptr; }
};

} // namespace rf::automation
