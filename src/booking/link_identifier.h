#pragma once

#include "basic/text.h"

namespace rf {

class CopyCalendars;
class Session;

/// A new link identifier, which a booking and its copies carry: the date and time and the current user's name, with
/// numbers as short as they are, such as "2007-3-5:9.4.17_Jane Smith". It is made once, when a booking gets its user
/// properties, and never changed. The time is that of its making, or the next second that no other identifier of this
/// user names: bookings come faster than one a second, and two with one identifier would have one copy between them.
[[nodiscard]] Text fncNewOCID(Session& session);
/// The same for a handler that goes on with the calendars of the copies.
[[nodiscard]] Text fncNewOCID(Session& session, CopyCalendars& copies);

} // namespace rf
