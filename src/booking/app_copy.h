#pragma once

#include "booking/booking_item.h"

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

/// Whether a copy carries that link identifier, looked for in the first calendar that the settings have copies in.
/// False as well where there is none to look in; no error leaves it.
[[nodiscard]] bool hasCopy(const Session& session, TextView ocid);

/// Makes or refreshes the copies that the settings ask for: first the personal one in the user's default calendar, then
/// the master one. A calendar that cannot be had gets none.
void copyBooking(Session& session, BookingItem& booking, TextView ocid, TextView sourceName);

} // namespace rf
