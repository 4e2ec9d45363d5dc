#include "host/recurrence_pattern.h"

#include "automation/conversion.h"
#include "host/host_error.h"
#include "host/item_factory.h"
#include "host/model.h"
#include "host/recurrence.h"

#include <algorithm>
#include <array>

namespace rf::host {

using automation::Arguments;
using automation::LocalMember;
using automation::Variant;

namespace {

/// The kinds of repetition by the object model's numbers.
struct RecurrenceKind {
    std::int32_t type;
    TextView frequency;
};
constexpr std::array recurrenceKinds{RecurrenceKind{0, u"DAILY"}, RecurrenceKind{1, u"WEEKLY"},
    RecurrenceKind{2, u"MONTHLY"}, RecurrenceKind{5, u"YEARLY"}};

/// The days of the week by the object model's bits, from Sunday on.
constexpr std::array<TextView, 7> weekdays{u"SU", u"MO", u"TU", u"WE", u"TH", u"FR", u"SA"};

std::int64_t timeOfDay(Date date)
{
    const DateFields fields = date.fields();
    return (fields.hour * 60LL + fields.minute) * 60 + fields.second;
}

Date atTime(Date day, std::int64_t seconds) { return Date::fromSeconds(day.seconds() - timeOfDay(day) + seconds); }

Text padded(int number)
{
    const Text digits = decimal(number);
    return digits.size() < 2 ? u"0" + digits : digits;
}

/// The moment up to which a rule goes, as the rule writes it.
Text untilText(Date date)
{
    const DateFields fields = date.fields();
    return decimal(fields.year) + padded(fields.month) + padded(fields.day) + u"T235959";
}

std::int32_t number(const Text& digits, std::int32_t otherwise)
{
    std::int32_t value = 0;
    for (const char16_t digit : digits) {
        if (digit < u'0' || digit > u'9')
            return otherwise;
        value = value * 10 + (digit - u'0');
    }
    return digits.empty() ? otherwise : value;
}

} // namespace

std::map<Text, Text> RecurrencePattern::parts() const
{
    const auto& recurrence = item_->record().recurrence;
    std::map<Text, Text> parts;
    for (const Text& part : split(recurrence ? TextView{recurrence->rule} : TextView{u"FREQ=WEEKLY"}, u";"))
        if (const auto equals = part.find(u'='); equals != Text::npos)
            parts[upper(TextView{part}.substr(0, equals))] = part.substr(equals + 1);
    return parts;
}

Text RecurrencePattern::part(TextView name) const { return parts()[Text{name}]; }

void RecurrencePattern::setPart(TextView name, const Text& value) const
{
    auto changed = parts();
    changed[Text{name}] = value;
    // The frequency stands first: some readers insist on it.
    Text rule = u"FREQ=" + changed[u"FREQ"];
    for (const auto& [key, text] : changed)
        if (key != u"FREQ" && !text.empty())
            rule.append(u";").append(key).append(u"=").append(text);
    auto& recurrence = item_->record().recurrence;
    if (!recurrence)
        recurrence.emplace();
    recurrence->rule = rule;
    item_->touch();
}

Date RecurrencePattern::lastEnd() const
{
    const auto* engine = item_->model().recurrence();
    return engine == nullptr ? noDate : engine->lastEnd(item_->record()).value_or(noDate);
}

void RecurrencePattern::setTimeOfDay(Date time) const
{
    ItemRecord& record = item_->record();
    const auto length = record.end.seconds() - record.start.seconds();
    record.start = atTime(record.start, timeOfDay(time));
    record.end = Date::fromSeconds(record.start.seconds() + length);
    item_->touch();
}

std::int32_t RecurrencePattern::interval() const { return number(part(u"INTERVAL"), 1); }

std::int32_t RecurrencePattern::recurrenceType() const
{
    const auto found = std::ranges::find(recurrenceKinds, TextView{part(u"FREQ")}, &RecurrenceKind::frequency);
    return found == recurrenceKinds.end() ? 1 : found->type;
}

void RecurrencePattern::setRecurrenceType(std::int32_t type) const
{
    const auto found = std::ranges::find(recurrenceKinds, type, &RecurrenceKind::type);
    if (found == recurrenceKinds.end())
        throw hostError(host_error::badArgument, u"Appointments do not repeat that way here.");
    setPart(u"FREQ", Text{found->frequency});
}

std::int32_t RecurrencePattern::dayOfWeekMask() const
{
    std::int32_t mask = 0;
    for (const Text& day : split(part(u"BYDAY"), u","))
        if (const auto found = std::ranges::find(weekdays, TextView{day}); found != weekdays.end())
            mask |= 1 << (found - weekdays.begin());
    return mask;
}

void RecurrencePattern::setDayOfWeekMask(std::int32_t mask) const
{
    std::vector<Text> days;
    for (std::size_t i = 0; i < weekdays.size(); ++i)
        if ((mask >> i & 1) != 0)
            days.emplace_back(weekdays[i]);
    setPart(u"BYDAY", join(days, u","));
}

std::shared_ptr<automation::Dispatch> RecurrencePattern::occurrenceAt(Date start) const
{
    const ItemRecord& series = item_->record();
    const auto* engine = item_->model().recurrence();
    const auto found = engine == nullptr ? std::nullopt : engine->occurrence(series, start);
    if (!found)
        throw hostError(host_error::badArgument, u"The series has no occurrence at that time.");
    return makeItem(item_->sharedModel(), occurrenceRecord(series, *found),
        OccurrenceOf{series.id, found->original, found->isException()});
}

std::span<const LocalMember<RecurrencePattern>> RecurrencePattern::members()
{
    using Self = RecurrencePattern;
    static constexpr auto dateOf = [](const Self& self, const Arguments& arguments) {
        return automation::toDate(self.item_->model().regional(), arguments.value());
    };
    static constexpr std::array table{
        LocalMember<Self>{u"StartTime",
            [](Self& self, const Arguments&) -> Variant {
                return atTime(Date{}, timeOfDay(self.item_->record().start));
            },
            [](Self& self, const Arguments& arguments) { self.setTimeOfDay(dateOf(self, arguments)); }},
        LocalMember<Self>{u"EndTime",
            [](Self& self, const Arguments&) -> Variant { return atTime(Date{}, timeOfDay(self.item_->record().end)); },
            [](Self& self, const Arguments& arguments) {
                ItemRecord& record = self.item_->record();
                record.end = atTime(record.start, timeOfDay(dateOf(self, arguments)));
                self.item_->touch();
            }},
        LocalMember<Self>{u"PatternStartDate",
            [](Self& self, const Arguments&) -> Variant { return atTime(self.item_->record().start, 0); }},
        LocalMember<Self>{u"PatternEndDate", [](Self& self, const Arguments&) -> Variant { return self.lastEnd(); },
            [](Self& self, const Arguments& arguments) {
                self.setPart(u"COUNT", {});
                self.setPart(u"UNTIL", untilText(dateOf(self, arguments)));
            }},
        LocalMember<Self>{u"NoEndDate",
            [](Self& self, const Arguments&) -> Variant {
                return self.part(u"UNTIL").empty() && self.part(u"COUNT").empty();
            },
            [](Self& self, const Arguments& arguments) {
                if (!arguments.value().boolean())
                    return;
                self.setPart(u"UNTIL", {});
                self.setPart(u"COUNT", {});
            }},
        LocalMember<Self>{u"Occurrences",
            [](Self& self, const Arguments&) -> Variant { return number(self.part(u"COUNT"), 0); },
            [](Self& self, const Arguments& arguments) {
                self.setPart(u"UNTIL", {});
                self.setPart(u"COUNT", decimal(arguments.value().integer32()));
            }},
        LocalMember<Self>{u"Interval", [](Self& self, const Arguments&) -> Variant { return self.interval(); },
            [](Self& self, const Arguments& arguments) {
                self.setPart(u"INTERVAL", decimal(arguments.value().integer32()));
            }},
        LocalMember<Self>{u"RecurrenceType",
            [](Self& self, const Arguments&) -> Variant { return self.recurrenceType(); },
            [](Self& self, const Arguments& arguments) { self.setRecurrenceType(arguments.value().integer32()); }},
        LocalMember<Self>{u"DayOfWeekMask",
            [](Self& self, const Arguments&) -> Variant { return self.dayOfWeekMask(); },
            [](Self& self, const Arguments& arguments) { self.setDayOfWeekMask(arguments.value().integer32()); }},
        LocalMember<Self>{u"GetOccurrence",
            [](Self& self, const Arguments& arguments) -> Variant {
                return self.occurrenceAt(automation::toDate(self.item_->model().regional(), arguments[0]));
            }},
    };
    return table;
}

} // namespace rf::host
