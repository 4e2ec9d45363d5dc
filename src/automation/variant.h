#pragma once

#include "basic/currency.h"
#include "basic/date.h"
#include "basic/runtime_error.h"
#include "basic/text.h"

#include <cstdint>
#include <memory>
#include <source_location>
#include <variant>
#include <vector>

namespace rf::automation {

class Dispatch;
class Variant;

/// The value that a database has where there is none.
struct Null {
    friend bool operator==(Null, Null) = default;
};

/// An optional argument that the caller left out.
struct Missing {
    friend bool operator==(Missing, Missing) = default;
};

/// An argument by reference: the callee reads the target and may assign it. It lives as long as the call.
struct Reference {
    Variant* target = nullptr;

    friend bool operator==(Reference, Reference) = default;
};

/// Values in one or two dimensions, each index starting at a bound of its own. The values lie in row order.
struct Array {
    struct Dimension {
        std::int32_t lowerBound = 0;
        std::int32_t size = 0;

        friend bool operator==(Dimension, Dimension) = default;
    };

    std::vector<Dimension> dimensions;
    std::vector<Variant> values;

    /// One dimension from index 0 up.
    [[nodiscard]] static Array list(std::vector<Variant> values);
};

using Where = std::source_location;

/// One value as automation passes it. The kinds are those that the object model uses; a transport maps every
/// other kind of its platform to the nearest of these.
class Variant {
public:
    using Value = std::variant<std::monostate, Null, Missing, bool, std::uint8_t, std::int16_t, std::int32_t, float,
        double, Currency, Date, Text, std::shared_ptr<Dispatch>, std::shared_ptr<const Array>, Reference>;

    Variant() = default;
    // Made in one place: every source that passes values would make them again, which takes the compiler long.
    Variant(const Variant& other);
    Variant(Variant&& other) noexcept;
    Variant& operator=(const Variant& other);
    Variant& operator=(Variant&& other) noexcept;
    ~Variant();
    Variant(Null value)
        : value_(value)
    {
    }
    Variant(Missing value)
        : value_(value)
    {
    }
    Variant(bool value)
        : value_(value)
    {
    }
    Variant(std::uint8_t value)
        : value_(value)
    {
    }
    Variant(std::int16_t value)
        : value_(value)
    {
    }
    Variant(std::int32_t value)
        : value_(value)
    {
    }
    Variant(float value)
        : value_(value)
    {
    }
    Variant(double value)
        : value_(value)
    {
    }
    Variant(Currency value)
        : value_(value)
    {
    }
    Variant(Date value)
        : value_(value)
    {
    }
    Variant(Text value)
        : value_(std::move(value))
    {
    }
    Variant(TextView value)
        : value_(Text{value})
    {
    }
    Variant(const char16_t* value)
        : value_(Text{value})
    {
    }
    Variant(std::shared_ptr<Dispatch> object)
        : value_(std::move(object))
    {
    }
    template <class Class>
    Variant(std::shared_ptr<Class> object)
        : Variant(std::shared_ptr<Dispatch>{std::move(object)})
    {
    }
    Variant(Array array);
    Variant(Reference reference)
        : value_(reference)
    {
    }
    template <class T>
    Variant(T*) = delete;

    [[nodiscard]] const Value& value() const { return value_; }
    template <class Kind>
    [[nodiscard]] bool is() const
    {
        return std::holds_alternative<Kind>(value_);
    }
    template <class Kind>
    [[nodiscard]] const Kind* getIf() const
    {
        return std::get_if<Kind>(&value_);
    }
    [[nodiscard]] bool isEmpty() const { return is<std::monostate>(); }
    [[nodiscard]] bool isObject() const { return is<std::shared_ptr<Dispatch>>(); }
    [[nodiscard]] bool isArray() const { return is<std::shared_ptr<const Array>>(); }

    /// The value behind a reference; this value itself when it is none.
    [[nodiscard]] const Variant& dereferenced() const;
    /// Gives the value that `dereferenced` leads to a new one. On any other kind nothing happens: a callee cannot tell
    /// an argument by value from one by reference.
    void assignThrough(Variant value) const;

    /// The value as the kind that a member is known to answer with. Empty gives "", 0, false, the zero date or no
    /// object; numbers of one kind serve as those of another, rounded half to even (error 6 outside the range, which
    /// for dates are the years 100 to 9999).
    /// A kind that does not fit is error 13, Null error 94. Texts are not read as numbers here: that follows the
    /// user's regional settings (conversion.h).
    [[nodiscard]] Text text(Where where = Where::current()) const;
    [[nodiscard]] bool boolean(Where where = Where::current()) const;
    [[nodiscard]] std::int16_t integer16(Where where = Where::current()) const;
    [[nodiscard]] std::int32_t integer32(Where where = Where::current()) const;
    [[nodiscard]] double number(Where where = Where::current()) const;
    [[nodiscard]] Currency currency(Where where = Where::current()) const;
    [[nodiscard]] Date date(Where where = Where::current()) const;
    [[nodiscard]] std::shared_ptr<Dispatch> dispatch(Where where = Where::current()) const;
    [[nodiscard]] std::shared_ptr<const Array> array(Where where = Where::current()) const;

    /// Same kind and same value; objects by identity, arrays element by element.
    friend bool operator==(const Variant& left, const Variant& right);

private:
    Value value_;
};

} // namespace rf::automation
