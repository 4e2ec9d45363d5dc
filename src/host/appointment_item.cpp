#include "host/appointment_item.h"

#include "automation/conversion.h"
#include "host/host_error.h"
#include "host/model.h"
#include "host/recurrence_pattern.h"
#include "outlook/constants.h"

namespace rf::host {

using automation::Arguments;
using automation::LocalMember;
using automation::Variant;

namespace {

constexpr std::int64_t secondsInMinute = 60;

Date dateArgument(AppointmentItem& self, const Arguments& arguments)
{
    return automation::toDate(self.model().regional(), arguments.value());
}

LocalMember<AppointmentItem> dateMember(TextView name, Variant (*read)(AppointmentItem&, const Arguments&),
    void (*write)(AppointmentItem&, const Arguments&))
{
    return {name, read, write};
}

} // namespace

bool AppointmentItem::isRecurring() { return occurrence().has_value() || record().recurrence.has_value(); }

void AppointmentItem::beginSeries()
{
    if (isRecurring())
        return;
    record().recurrence.emplace().rule = u"FREQ=WEEKLY";
    touch();
}

void AppointmentItem::setStart(Date start)
{
    const std::int64_t length = record().end.seconds() - record().start.seconds();
    record().start = start;
    record().end = Date::fromSeconds(start.seconds() + length);
    touch();
}

void AppointmentItem::setEnd(Date end)
{
    if (end.seconds() < record().start.seconds())
        throw hostError(host_error::badArgument, u"An appointment cannot end before it starts.");
    record().end = end;
    touch();
}

void AppointmentItem::setDuration(std::int32_t minutes)
{
    if (minutes < 0)
        throw hostError(host_error::badArgument, u"An appointment cannot last less than nothing.");
    record().end = record().start.plusMinutes(minutes);
    touch();
}

std::int32_t AppointmentItem::duration()
{
    return static_cast<std::int32_t>((record().end.seconds() - record().start.seconds()) / secondsInMinute);
}

Text AppointmentItem::messageClass()
{
    if (occurrence() && occurrence()->exception)
        return Text{outlook::message_class::recurrenceException};
    return record().messageClass;
}

std::span<const LocalMember<AppointmentItem>> AppointmentItem::members()
{
    using Self = AppointmentItem;
    static const auto table = itemMembers<Self>({
        dateMember(
            u"Start", [](Self& self, const Arguments&) -> Variant { return self.record().start; },
            [](Self& self, const Arguments& arguments) { self.setStart(dateArgument(self, arguments)); }),
        dateMember(
            u"End", [](Self& self, const Arguments&) -> Variant { return self.record().end; },
            [](Self& self, const Arguments& arguments) { self.setEnd(dateArgument(self, arguments)); }),
        {u"Duration", [](Self& self, const Arguments&) -> Variant { return self.duration(); },
            [](Self& self, const Arguments& arguments) { self.setDuration(arguments.value().integer32()); }},
        {u"AllDayEvent", [](Self& self, const Arguments&) -> Variant { return self.record().allDay; },
            [](Self& self, const Arguments& arguments) {
                self.record().allDay = arguments.value().boolean();
                self.touch();
            }},
        {u"MessageClass", [](Self& self, const Arguments&) -> Variant { return self.messageClass(); }},
        {u"IsRecurring", [](Self& self, const Arguments&) -> Variant { return self.isRecurring(); }},
        {u"GetRecurrencePattern",
            [](Self& self, const Arguments&) -> Variant {
                self.beginSeries();
                return std::make_shared<RecurrencePattern>(self.self());
            }},
        {u"Class",
            [](Self&, const Arguments&) -> Variant {
                return static_cast<std::int32_t>(outlook::ObjectClass::Appointment);
            }},
        itemText<Self, &ItemRecord::location>(u"Location"),
        itemNumber<Self, &ItemRecord::busyStatus>(u"BusyStatus"),
        itemNumber<Self, &ItemRecord::meetingStatus>(u"MeetingStatus"),
    });
    return table;
}

} // namespace rf::host
