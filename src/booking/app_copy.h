#pragma once

#include "booking/booking_item.h"

#include <optional>

namespace rf {

class Session;

/// Makes the copy of a booking in another calendar, or brings the one that is there up to date: its subject,
/// categories, time, and as location and body the calendar that it comes from. The personal copy looks as the booking
/// does; the master copy bears the marks of this program. Copies are found by the link identifier and are never carried
/// back. Nothing happens without a target, nor where the booking lies in the target itself. An empty link identifier
/// finds no copy and makes a new one each time. A failure is reported and ends the program; a partly written copy stays
/// unsaved.
void subFixAppCopy(Session& session, BookingItem& booking, TextView ocid, TextView sourceName,
    const outlook::Folder& targetFolder, bool isPersonal);
void subFixAppCopy(Session& session, const outlook::AppointmentItem& item, TextView ocid, TextView sourceName,
    const outlook::Folder& targetFolder, bool isPersonal);

/// Whether the settings ask for copies of any kind.
[[nodiscard]] bool wantsCopies(const Session& session);

/// A calendar that takes copies, whose items are asked for once. Without a folder it takes none.
class CopyCalendar {
public:
    explicit CopyCalendar(outlook::Folder folder)
        : folder_(std::move(folder))
    {
    }

    [[nodiscard]] const outlook::Folder& folder() const { return folder_; }
    [[nodiscard]] const outlook::Items& items();

private:
    outlook::Folder folder_;
    std::optional<outlook::Items> items_;
};

/// The calendars that the settings want copies in, for as long as one handler works on a booking: each is looked up
/// when it is first needed, and once, since every look may go to another process.
class CopyCalendars {
public:
    explicit CopyCalendars(Session& session)
        : session_(session)
    {
    }

    /// Whether a copy carries that link identifier, looked for in the first of the calendars. False as well where there
    /// is none to look in; no error leaves it.
    [[nodiscard]] bool holdCopy(TextView ocid);

    /// Makes or refreshes the copies of a booking: first the personal one in the user's default calendar, then the
    /// master one. A calendar that cannot be had gets none.
    void copyBooking(BookingItem& booking, TextView ocid, TextView sourceName);

private:
    [[nodiscard]] CopyCalendar& personal();
    [[nodiscard]] CopyCalendar& master();

    Session& session_;
    std::optional<CopyCalendar> personal_;
    std::optional<CopyCalendar> master_;
};

} // namespace rf
