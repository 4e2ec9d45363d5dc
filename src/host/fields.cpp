#include "host/fields.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace rf::host {
namespace {

using automation::Variant;

constexpr std::int64_t secondsPerMinute = 60;

/// Seconds since the zero date, the first or last ones of the years that a date can have where it has none of them.
std::int64_t boundedSeconds(Date date)
{
    constexpr double first = -657434.0;
    constexpr double last = 2958465.99999;
    const double days = std::isnan(date.days()) ? noDate.days() : date.days();
    // Within a day before the zero date the fraction counts up, so the first day reaches down to its next number.
    return Date{days <= first - 1 ? first : std::min(days, last)}.seconds();
}

double durationInMinutes(const ItemRecord& item)
{
    const std::int64_t wholeMinutes = (boundedSeconds(item.end) - boundedSeconds(item.start)) / secondsPerMinute;
    return static_cast<double>(wholeMinutes);
}

constexpr std::array table{
    BuiltInField{u"AllDayEvent", [](const ItemRecord& item) { return item.allDay; }},
    BuiltInField{u"BusyStatus", [](const ItemRecord& item) -> double { return item.busyStatus; }},
    BuiltInField{u"Categories", [](const ItemRecord& item) -> TextView { return item.categories; }},
    BuiltInField{u"CreationTime", [](const ItemRecord& item) { return item.creationTime; }},
    BuiltInField{u"Duration", durationInMinutes},
    BuiltInField{u"End", [](const ItemRecord& item) { return item.end; }},
    BuiltInField{u"IsRecurring", [](const ItemRecord& item) { return item.recurrence.has_value(); }},
    BuiltInField{u"LastModificationTime", [](const ItemRecord& item) { return item.lastModificationTime; }},
    BuiltInField{u"Location", [](const ItemRecord& item) -> TextView { return item.location; }},
    BuiltInField{u"MeetingStatus", [](const ItemRecord& item) -> double { return item.meetingStatus; }},
    BuiltInField{u"MessageClass", [](const ItemRecord& item) -> TextView { return item.messageClass; }},
    BuiltInField{u"Size", [](const ItemRecord& item) -> double { return item.size; }},
    BuiltInField{u"Start", [](const ItemRecord& item) { return item.start; }},
    BuiltInField{u"Subject", [](const ItemRecord& item) -> TextView { return item.subject; }},
    BuiltInField{u"To", [](const ItemRecord& item) -> TextView { return item.to; }},
};

constexpr bool standsBefore(const BuiltInField& left, const BuiltInField& right) { return left.name < right.name; }

static_assert(std::is_sorted(table.begin(), table.end(), standsBefore));

std::optional<FieldKind> kindOfType(std::int32_t type)
{
    switch (type) {
    case 1:
        return FieldKind::Text;
    case 3:
        return FieldKind::Number;
    case 5:
        return FieldKind::Date;
    case 6:
        return FieldKind::YesNo;
    default:
        return std::nullopt;
    }
}

bool isNumber(const Variant& value)
{
    return value.is<double>() || value.is<float>() || value.is<std::int32_t>() || value.is<std::int16_t>()
        || value.is<std::uint8_t>() || value.is<Currency>();
}

std::optional<FieldValue> valueOfKind(FieldKind kind, const Variant& value)
{
    switch (kind) {
    case FieldKind::Text:
        if (const Text* text = value.getIf<Text>()) {
            return TextView{*text};
        }
        return std::nullopt;
    case FieldKind::Number:
        return isNumber(value) ? std::optional<FieldValue>{value.number()} : std::nullopt;
    case FieldKind::Date:
        return value.is<Date>() ? std::optional<FieldValue>{value.date()} : std::nullopt;
    case FieldKind::YesNo:
        return value.is<bool>() ? std::optional<FieldValue>{value.boolean()} : std::nullopt;
    }
    return std::nullopt;
}

FieldValue absentValue(FieldKind kind)
{
    switch (kind) {
    case FieldKind::Number:
        return 0.0;
    case FieldKind::Date:
        return noDate;
    case FieldKind::YesNo:
        return false;
    default:
        return TextView{};
    }
}

} // namespace

std::span<const BuiltInField> builtInFields() { return table; }

const BuiltInField* findBuiltInField(TextView name)
{
    const auto found = std::find_if(
        table.begin(), table.end(), [&](const BuiltInField& field) { return equalIgnoringCase(field.name, name); });
    return found == table.end() ? nullptr : &*found;
}

std::optional<Field> Field::find(TextView name, std::span<const FieldDefinition> folderFields)
{
    if (const BuiltInField* builtIn = findBuiltInField(name)) {
        return Field{*builtIn};
    }
    for (const FieldDefinition& definition : folderFields) {
        if (equalIgnoringCase(definition.name, name)) {
            const auto kind = kindOfType(definition.type);
            return kind ? std::optional{Field{definition.name, *kind}} : std::nullopt;
        }
    }
    return std::nullopt;
}

FieldValue Field::read(const ItemRecord& item) const
{
    if (builtIn_) {
        return std::visit([&](auto reader) { return FieldValue{reader(item)}; }, builtIn_->read);
    }
    for (const UserPropertyRecord& property : item.userProperties) {
        if (equalIgnoringCase(property.name, propertyName_)) {
            if (const auto value = valueOfKind(kind_, property.value)) {
                return *value;
            }
        }
    }
    return absentValue(kind_);
}

std::int64_t minuteOf(Date date)
{
    const std::int64_t seconds = boundedSeconds(date);
    return seconds / secondsPerMinute - (seconds % secondsPerMinute < 0 ? 1 : 0);
}

} // namespace rf::host
