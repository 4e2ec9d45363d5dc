#include "automation/variant.h"

#include "automation/object.h"
#include "basic/conversion.h"

#include <limits>
#include <type_traits>

namespace rf::automation {

namespace {

template <class Kind>
inline constexpr bool isNumber = std::is_arithmetic_v<Kind> && !std::is_same_v<Kind, bool>;

[[noreturn]] void mismatch(const Variant& value, Where where)
{
    throw RuntimeError{value.is<Null>() ? error_number::invalidUseOfNull : error_number::typeMismatch, where};
}

/// The number behind every kind that serves as one: truth is -1, a date its days.
double numberOf(const Variant& value, Where where)
{
    return std::visit(
        [&](const auto& held) -> double {
            using Kind = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Kind, std::monostate>)
                return 0;
            else if constexpr (std::is_same_v<Kind, bool>)
                return held ? -1 : 0;
            else if constexpr (isNumber<Kind>)
                return held;
            else if constexpr (std::is_same_v<Kind, Currency>)
                return held.toDouble();
            else if constexpr (std::is_same_v<Kind, Date>)
                return held.days();
            else
                mismatch(value, where);
        },
        value.value());
}

} // namespace

Array Array::list(std::vector<Variant> values)
{
    const auto size = static_cast<std::int32_t>(values.size());
    return {{{0, size}}, std::move(values)};
}

Variant::Variant(const Variant& other) = default;
Variant::Variant(Variant&& other) noexcept = default;
Variant& Variant::operator=(const Variant& other) = default;
Variant& Variant::operator=(Variant&& other) noexcept = default;
Variant::~Variant() = default;

Variant::Variant(Array array)
    : value_(std::make_shared<const Array>(std::move(array)))
{
}

const Variant& Variant::dereferenced() const
{
    const auto* reference = getIf<Reference>();
    return reference == nullptr || reference->target == nullptr ? *this : reference->target->dereferenced();
}

void Variant::assignThrough(Variant value) const
{
    const auto* reference = getIf<Reference>();
    if (reference == nullptr || reference->target == nullptr)
        return;
    if (reference->target->is<Reference>())
        reference->target->assignThrough(std::move(value));
    else
        *reference->target = std::move(value);
}

Text Variant::text(Where where) const
{
    const Variant& held = dereferenced();
    if (held.isEmpty())
        return {};
    if (const auto* text = held.getIf<Text>())
        return *text;
    mismatch(held, where);
}

bool Variant::boolean(Where where) const { return numberOf(dereferenced(), where) != 0; }

std::int16_t Variant::integer16(Where where) const { return toInteger(numberOf(dereferenced(), where), where); }

std::int32_t Variant::integer32(Where where) const { return toLong(numberOf(dereferenced(), where), where); }

double Variant::number(Where where) const { return numberOf(dereferenced(), where); }

Currency Variant::currency(Where where) const
{
    const Variant& held = dereferenced();
    if (const auto* amount = held.getIf<Currency>())
        return *amount;
    return Currency::fromDouble(numberOf(held, where), where);
}

Date Variant::date(Where where) const
{
    const Variant& held = dereferenced();
    if (const auto* date = held.getIf<Date>())
        return *date;
    return toDate(numberOf(held, where), where);
}

std::shared_ptr<Dispatch> Variant::dispatch(Where where) const
{
    const Variant& held = dereferenced();
    if (held.isEmpty())
        return nullptr;
    if (const auto* object = held.getIf<std::shared_ptr<Dispatch>>())
        return *object;
    mismatch(held, where);
}

std::shared_ptr<const Array> Variant::array(Where where) const
{
    const Variant& held = dereferenced();
    if (const auto* array = held.getIf<std::shared_ptr<const Array>>())
        return *array;
    mismatch(held, where);
}

bool operator==(const Variant& left, const Variant& right)
{
    if (left.isArray() && right.isArray()) {
        const auto leftArray = left.array();
        const auto rightArray = right.array();
        return leftArray->dimensions == rightArray->dimensions && leftArray->values == rightArray->values;
    }
    if (left.isObject() && right.isObject())
        return Object{left.dispatch()} == Object{right.dispatch()};
    return left.value_ == right.value_;
}

} // namespace rf::automation
