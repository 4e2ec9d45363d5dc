#pragma once

#include "automation/object.h"

#include <concepts>
#include <type_traits>

namespace rf::outlook {

using automation::Missing;
using automation::Variant;
using automation::Where;

/// The number that the object model has for a constant.
template <class Constant>
requires std::is_enum_v<Constant>
[[nodiscard]] constexpr std::int32_t code(Constant constant) { return static_cast<std::int32_t>(constant); }

/// A typed face of one late-bound object, or of nothing. The classes below this one spell the names of the object
/// model's members, so that nothing above has to. Each member takes the caller's place last: a failure
/// (`automation::Error`) names that line. Using a member of nothing is error 91.
class Proxy {
public:
    Proxy() = default;
    explicit Proxy(automation::Object object)
        : object_(std::move(object))
    {
    }

    [[nodiscard]] explicit operator bool() const { return static_cast<bool>(object_); }
    [[nodiscard]] const automation::Object& object() const { return object_; }
    operator Variant() const { return object_; }

    /// The same object by another face. The object is not asked: a face that does not fit fails when it is used.
    template <std::derived_from<Proxy> Face>
    [[nodiscard]] Face as() const
    {
        return Face{object_};
    }

    /// Two faces of one object, or both of nothing.
    friend bool operator==(const Proxy& left, const Proxy& right) { return left.object_ == right.object_; }

protected:
    /// The object that a member answered with; an empty face when it answered with nothing.
    template <class Face>
    [[nodiscard]] static Face face(const Variant& value, Where where)
    {
        return Face{automation::Object{value.dispatch(where)}};
    }
    template <class Constant>
    [[nodiscard]] static Constant constant(const Variant& value, Where where)
    {
        return static_cast<Constant>(value.integer32(where));
    }

private:
    automation::Object object_;
};

} // namespace rf::outlook
