#include "storage/outlook_value.h"

#include "app/session.h"
#include "automation/conversion.h"
#include "basic/conversion.h"
#include "diagnostics/pending_error.h"

#include <cmath>
#include <limits>
#include <optional>

namespace rf {

using automation::Variant;

namespace {

std::optional<outlook::UserPropertyType> propertyType(ValueKind kind)
{
    switch (kind) {
    case ValueKind::Integer:
        return outlook::UserPropertyType::Number;
    case ValueKind::Date:
        return outlook::UserPropertyType::DateTime;
    case ValueKind::String:
        return outlook::UserPropertyType::Text;
    case ValueKind::Boolean:
        return outlook::UserPropertyType::YesNo;
    }
    return std::nullopt;
}

/// The value as it is assigned; nothing when the property stays as it is.
std::optional<Variant> assigned(const Regional& regional, const Variant& value, ValueKind kind)
{
    switch (kind) {
    case ValueKind::Integer:
        return isNumeric(regional, value) ? value : Variant{std::int16_t{0}};
    case ValueKind::Date:
        if (isDate(regional, value))
            return toDate(regional, value);
        break;
    case ValueKind::String:
        return toText(regional, value);
    case ValueKind::Boolean:
        return toBoolean(regional, value);
    }
    return std::nullopt;
}

/// What a value of the kind is when there is nothing to read it from.
Variant neutral(ValueKind kind)
{
    switch (kind) {
    case ValueKind::Integer:
        return std::int16_t{0};
    case ValueKind::Date:
        return Date{};
    case ValueKind::String:
        return Text{};
    case ValueKind::Boolean:
        break;
    }
    return {};
}

Variant fromDefault(const Regional& regional, const Variant& defaultValue, ValueKind kind)
{
    switch (kind) {
    case ValueKind::Integer:
        return isNumeric(regional, defaultValue) ? toInteger(regional, defaultValue) : neutral(kind);
    case ValueKind::Date:
        // Dates have no defaults: their callers tell a missing date by the zero date.
        break;
    case ValueKind::String:
        return toText(regional, defaultValue);
    case ValueKind::Boolean:
        return isNumeric(regional, defaultValue) ? toBoolean(regional, defaultValue) : neutral(kind);
    }
    return neutral(kind);
}

/// 16 bits where they hold it. A duration of more than 22 days does not fit, and a rate has decimals: they stay as they
/// are rather than become 0.
Variant number(double stored)
{
    constexpr double highest = std::numeric_limits<std::int16_t>::max();
    if (stored == roundHalfToEven(stored) && std::abs(stored) <= highest)
        return static_cast<std::int16_t>(stored);
    return stored;
}

Variant fromStored(const Regional& regional, const Variant& stored, const Variant& defaultValue, ValueKind kind)
{
    switch (kind) {
    case ValueKind::Integer:
        return isNumeric(regional, stored) ? number(toDouble(regional, stored)) : neutral(kind);
    case ValueKind::Date:
        return isDate(regional, stored) ? toDate(regional, stored) : neutral(kind);
    case ValueKind::String: {
        Text text = toText(regional, stored);
        return text.empty() ? fromDefault(regional, defaultValue, kind) : Variant{std::move(text)};
    }
    case ValueKind::Boolean:
        return toBoolean(regional, stored);
    }
    return neutral(kind);
}

} // namespace

void subSetOutlookValue(Session& session, const outlook::Item& item, TextView name, const Variant& value,
    ValueKind kind, bool addToFolderFields)
{
    if (!item)
        return;
    session.reporter.handled(u"modOutlookCode.subSetOutlookValue", [&] {
        const auto properties = item.userProperties();
        auto property = properties.find(name);
        if (const auto type = propertyType(kind); !property && type)
            property = properties.add(name, *type, addToFolderFields);
        if (auto newValue = assigned(session.services.regional, value, kind))
            property.setValue(std::move(*newValue));
    });
}

Variant fncGetOutlookValue(
    Session& session, const outlook::Item& item, TextView name, ValueKind kind, const Variant& defaultValue)
{
    session.trace.subTrace(u"Reading the value of the Outlook property " + Text{name});
    const Regional& regional = session.services.regional;
    PendingError errors;
    const auto property = errors.attempt([&] { return item.userProperties().find(name); });
    std::optional<Variant> stored;
    if (property)
        errors.attempt([&] { stored = property.value(); });
    auto result = neutral(kind);
    errors.attempt([&] {
        result = stored ? fromStored(regional, *stored, defaultValue, kind) : fromDefault(regional, defaultValue, kind);
    });
    return result;
}

} // namespace rf
