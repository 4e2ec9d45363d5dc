#include "booking/link_identifier.h"

#include "app/session.h"
#include "app/user_name.h"
#include "booking/app_copy.h"

namespace rf {

namespace {

/// More than a person books while a program runs ahead of the clock; a host that finds everything must not keep it.
constexpr int mostTakenSeconds = 10'000;

/// Each field is a reading of its own: an identifier only has to differ from every other one, and those that exist were
/// made so. One that is made across a full minute may name a time that never was.
DateFields timeOfMaking(const Clock& clock)
{
    DateFields time;
    time.year = clock.now().fields().year;
    time.month = clock.now().fields().month;
    time.day = clock.now().fields().day;
    time.hour = clock.now().fields().hour;
    time.minute = clock.now().fields().minute;
    time.second = clock.now().fields().second;
    return time;
}

Text identifierOf(const DateFields& time, TextView user)
{
    return decimal(time.year) + u"-" + decimal(time.month) + u"-" + decimal(time.day) + u":" + decimal(time.hour) + u"."
        + decimal(time.minute) + u"." + decimal(time.second) + u"_" + Text{user};
}

std::int64_t secondOf(const DateFields& time) { return Date::fromFields(time).seconds(); }

} // namespace

Text fncNewOCID(Session& session, CopyCalendars& copies)
{
    DateFields time = timeOfMaking(session.services.clock);
    const Text user = fncGetUserName(session);
    const auto goOn = [&](std::int64_t second) { time = Date::fromSeconds(second + 1).fields(); };
    if (session.lastLink && secondOf(time) <= *session.lastLink)
        goOn(*session.lastLink);
    // An instance that ran before this one may have been ahead of the clock, and the user may run one elsewhere.
    for (int tries = 0; tries < mostTakenSeconds && copies.holdCopy(identifierOf(time, user)); ++tries)
        goOn(secondOf(time));
    session.lastLink = secondOf(time);
    return identifierOf(time, user);
}

Text fncNewOCID(Session& session)
{
    CopyCalendars copies{session};
    return fncNewOCID(session, copies);
}

} // namespace rf
