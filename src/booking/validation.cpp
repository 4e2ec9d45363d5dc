#include "booking/validation.h"

#include "app/session.h"
#include "booking/conflicts.h"
#include "storage/settings.h"

namespace rf {

namespace {

bool isDoubleBooking(Session& session, BookingItem& booking)
{
    PendingError errors;
    const Text entryId = errors.attempt([&] { return booking.entryId(); });
    const Date start = errors.attempt([&] { return booking.start(); });
    const Date end = errors.attempt([&] { return booking.end(); });
    const auto folder = errors.attempt([&] { return booking.folder(); });
    return hasConflicts(session, entryId, start, end, folder);
}

/// The whole text of the categories is the project: an appointment of two categories has a project only when one is
/// called as both together.
bool hasProject(const cSettings& settings, BookingItem& booking)
{
    PendingError errors;
    const Text project = errors.attempt([&] { return booking.categories(); });
    return !project.empty() && settings.Projects.exists(project);
}

} // namespace

Text fncValidateBooking(Session& session, BookingItem& booking)
{
    if (!session.objSettings)
        return {};
    const cSettings& settings = *session.objSettings;
    const Phrases& phrases = session.language.phrases();
    PendingError errors;
    if (errors.attempt([&] { return booking.item().meetingStatus(); }) != outlook::MeetingStatus::NonMeeting)
        return {};
    if (settings.NoDoubles && isDoubleBooking(session, booking))
        return phrases.LNGDOUBLEBOOKING;
    if (settings.ProjectMandatory && !hasProject(settings, booking))
        return phrases.LNGREQUIREPROJ;
    if (settings.NoRecurring && errors.attempt([&] { return booking.isRecurring(); }))
        return phrases.LNGRECURRINGPREVENTMESSAGE;
    return {};
}

Text fncValidateBooking(Session& session, const outlook::AppointmentItem& item)
{
    BookingItem booking{item};
    return fncValidateBooking(session, booking);
}

} // namespace rf
