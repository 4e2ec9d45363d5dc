#include "automation/conversion.h"

#include "basic/conversion.h"

namespace rf::automation {

namespace {

/// What the user's settings make of a text, and what the kinds themselves make of anything else.
template <class FromText, class FromKind>
auto convert(const Variant& value, FromText&& fromText, FromKind&& fromKind)
{
    const Variant& held = value.dereferenced();
    if (const auto* text = held.getIf<Text>())
        return fromText(*text);
    return fromKind(held);
}

} // namespace

Text toText(const Regional& regional, const Variant& value, Where where)
{
    const Variant& held = value.dereferenced();
    if (const auto* truth = held.getIf<bool>())
        return Text{rf::toText(*truth)};
    if (const auto* amount = held.getIf<Currency>())
        return regional.formatPlain(*amount);
    if (const auto* date = held.getIf<Date>())
        return regional.formatDate(*date);
    if (held.isEmpty() || held.is<Text>() || held.is<Null>() || held.isObject() || held.isArray())
        return held.text(where);
    if (const auto* single = held.getIf<float>())
        return regional.formatSingle(*single);
    return regional.formatNumber(held.number(where));
}

std::int16_t toInteger(const Regional& regional, const Variant& value, Where where)
{
    return convert(
        value, [&](TextView text) { return rf::toInteger(regional, text, where); },
        [&](const Variant& held) { return held.integer16(where); });
}

std::int32_t toLong(const Regional& regional, const Variant& value, Where where)
{
    return convert(
        value, [&](TextView text) { return rf::toLong(regional, text, where); },
        [&](const Variant& held) { return held.integer32(where); });
}

double toDouble(const Regional& regional, const Variant& value, Where where)
{
    return convert(
        value, [&](TextView text) { return rf::toDouble(regional, text, where); },
        [&](const Variant& held) { return held.number(where); });
}

Currency toCurrency(const Regional& regional, const Variant& value, Where where)
{
    return convert(
        value, [&](TextView text) { return rf::toCurrency(regional, text, where); },
        [&](const Variant& held) { return held.currency(where); });
}

Date toDate(const Regional& regional, const Variant& value, Where where)
{
    return convert(
        value, [&](TextView text) { return rf::toDate(regional, text, where); },
        [&](const Variant& held) { return held.date(where); });
}

bool toBoolean(const Regional& regional, const Variant& value, Where where)
{
    return convert(
        value, [&](TextView text) { return rf::toBoolean(regional, text, where); },
        [&](const Variant& held) { return held.boolean(where); });
}

bool isNumeric(const Regional& regional, const Variant& value)
{
    const Variant& held = value.dereferenced();
    if (const auto* text = held.getIf<Text>())
        return rf::isNumeric(regional, *text);
    return !(held.is<Null>() || held.is<Missing>() || held.is<Date>() || held.is<Reference>() || held.isObject()
        || held.isArray());
}

bool isDate(const Regional& regional, const Variant& value)
{
    const Variant& held = value.dereferenced();
    if (const auto* text = held.getIf<Text>())
        return rf::isDate(regional, *text);
    return held.is<Date>();
}

} // namespace rf::automation
