#pragma once

#include "outlook/item.h"

namespace rf::outlook {

/// How a series of appointments repeats. The times of day stand on the zero date.
class RecurrencePattern : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] Date startTime(Where where = Where::current()) const
    {
        return object().get({u"StartTime", where}).date(where);
    }
    [[nodiscard]] Date endTime(Where where = Where::current()) const
    {
        return object().get({u"EndTime", where}).date(where);
    }
};

class AppointmentItem : public Item {
public:
    using Item::Item;

    [[nodiscard]] Date start(Where where = Where::current()) const
    {
        return object().get({u"Start", where}).date(where);
    }
    void setStart(Date start, Where where = Where::current()) const { object().put({u"Start", where}, start); }
    [[nodiscard]] Date end(Where where = Where::current()) const { return object().get({u"End", where}).date(where); }
    /// In minutes.
    [[nodiscard]] std::int32_t duration(Where where = Where::current()) const
    {
        return object().get({u"Duration", where}).integer32(where);
    }
    void setDuration(std::int32_t minutes, Where where = Where::current()) const
    {
        object().put({u"Duration", where}, minutes);
    }
    [[nodiscard]] Text location(Where where = Where::current()) const
    {
        return object().get({u"Location", where}).text(where);
    }
    void setLocation(TextView location, Where where = Where::current()) const
    {
        object().put({u"Location", where}, location);
    }
    [[nodiscard]] BusyStatus busyStatus(Where where = Where::current()) const
    {
        return constant<BusyStatus>(object().get({u"BusyStatus", where}), where);
    }
    [[nodiscard]] MeetingStatus meetingStatus(Where where = Where::current()) const
    {
        return constant<MeetingStatus>(object().get({u"MeetingStatus", where}), where);
    }
    [[nodiscard]] bool isRecurring(Where where = Where::current()) const
    {
        return object().get({u"IsRecurring", where}).boolean(where);
    }
    /// Asking an appointment that stands alone for its pattern makes it a series.
    [[nodiscard]] RecurrencePattern getRecurrencePattern(Where where = Where::current()) const
    {
        return face<RecurrencePattern>(object().call({u"GetRecurrencePattern", where}), where);
    }
};

} // namespace rf::outlook
