#include "booking/app_copy.h"

#include "app/session.h"
#include "storage/outlook_value.h"
#include "storage/settings.h"

namespace rf {

namespace {

constexpr TextView masterSubjectMark = u"FR: ";
constexpr TextView masterCategory = u"Roomfold";
constexpr TextView calendarMark = u"XXX";

/// The copy that carries the identifier; empty when there is none. A search that fails finds none: it does so in a
/// calendar that has never had a copy, whose fields do not know the identifier yet.
outlook::AppointmentItem findCopy(const outlook::Items& items, TextView ocid)
{
    // A copy without an identifier is nobody's: asked for an empty one, a host would answer with any appointment.
    if (ocid.empty())
        return {};
    PendingError errors;
    return errors.attempt([&] {
        // Doubled, or a name such as O'Neil would end the text in the middle and every save would make another copy.
        return items.find(u"[OCID] = '" + replaceAll(ocid, u"'", u"''") + u"'").as<outlook::AppointmentItem>();
    });
}

outlook::AppointmentItem addCopy(Session& session, const outlook::Items& items, TextView ocid)
{
    session.trace.subTrace(u"Adding new appointment to copy the one in an RF Calendar");
    auto copy = items.add().as<outlook::AppointmentItem>();
    // Among the folder's fields as well, for the next search can only find what is one of them.
    subSetOutlookValue(session, copy, nameOf(BookingProperty::LinkIdentifier), ocid, ValueKind::String, true);
    return copy;
}

void writeCopy(
    Session& session, BookingItem& booking, const outlook::AppointmentItem& copy, TextView sourceName, bool isPersonal)
{
    session.trace.subTrace(u"Setting copy properties");
    copy.setSubject(isPersonal ? booking.subject() : Text{masterSubjectMark} + booking.subject());
    copy.setCategories(isPersonal ? booking.categories() : Text{masterCategory});
    copy.setStart(booking.start());
    copy.setDuration(booking.duration());
    copy.setLocation(sourceName);
    copy.setBody(replaceAll(session.language.phrases().LNGCOPIEDAPPOINTMENT, calendarMark, sourceName));
    copy.close(outlook::CloseMode::Save);
}

outlook::Folder ownCalendar(const Session& session)
{
    PendingError errors;
    return errors.attempt([&] { return session.ounNameSpace.getDefaultFolder(outlook::DefaultFolder::Calendar); });
}

void fixAppCopy(
    Session& session, BookingItem& booking, TextView ocid, TextView sourceName, CopyCalendar& target, bool isPersonal)
{
    session.trace.subTrace(
        u"Checking if there already is an appointment in the personal calendar which is a copy of this one!");
    if (!target.folder() || booking.folderEntryId() == target.folder().entryId())
        return;
    auto copy = findCopy(target.items(), ocid);
    if (!copy)
        copy = addCopy(session, target.items(), ocid);
    writeCopy(session, booking, copy, sourceName, isPersonal);
}

void subFixAppCopy(
    Session& session, BookingItem& booking, TextView ocid, TextView sourceName, CopyCalendar& target, bool isPersonal)
{
    session.reporter.handled(
        u"cCurrInspector.subFixAppCopy", [&] { fixAppCopy(session, booking, ocid, sourceName, target, isPersonal); });
}

} // namespace

const outlook::Items& CopyCalendar::items()
{
    if (!items_)
        items_ = folder_.items();
    return *items_;
}

void subFixAppCopy(Session& session, BookingItem& booking, TextView ocid, TextView sourceName,
    const outlook::Folder& targetFolder, bool isPersonal)
{
    CopyCalendar target{targetFolder};
    subFixAppCopy(session, booking, ocid, sourceName, target, isPersonal);
}

void subFixAppCopy(Session& session, const outlook::AppointmentItem& item, TextView ocid, TextView sourceName,
    const outlook::Folder& targetFolder, bool isPersonal)
{
    BookingItem booking{item};
    subFixAppCopy(session, booking, ocid, sourceName, targetFolder, isPersonal);
}

bool wantsCopies(const Session& session)
{
    return session.objSettings && (session.objSettings->PersonalCopy || session.objSettings->MasterCopy);
}

CopyCalendar& CopyCalendars::personal()
{
    if (!personal_)
        personal_.emplace(ownCalendar(session_));
    return *personal_;
}

CopyCalendar& CopyCalendars::master()
{
    if (!master_)
        master_.emplace(session_.objSettings->objOUMasterFolder.GetFolder());
    return *master_;
}

bool CopyCalendars::holdCopy(TextView ocid)
{
    if (!wantsCopies(session_))
        return false;
    CopyCalendar& calendar = session_.objSettings->PersonalCopy ? personal() : master();
    PendingError errors;
    return calendar.folder() && static_cast<bool>(errors.attempt([&] { return findCopy(calendar.items(), ocid); }));
}

void CopyCalendars::copyBooking(BookingItem& booking, TextView ocid, TextView sourceName)
{
    if (!wantsCopies(session_))
        return;
    const cSettings& settings = *session_.objSettings;
    if (settings.PersonalCopy)
        subFixAppCopy(session_, booking, ocid, sourceName, personal(), true);
    if (settings.MasterCopy)
        subFixAppCopy(session_, booking, ocid, sourceName, master(), false);
}

} // namespace rf
