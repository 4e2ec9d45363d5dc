#pragma once

#include "booking/booking_item.h"

namespace rf {

class CopyCalendars;
class Session;

/// When the rules accepted a booking last, as its own properties have it.
struct AcceptedTime {
    /// The zero date where the booking has none yet.
    Date start;
    /// In minutes; 0 where the booking has none yet.
    std::int32_t duration = 0;
};

/// The remembered time. What is stored but is no date or number counts as none. Fails as the host does.
[[nodiscard]] AcceptedTime acceptedTime(Session& session, BookingItem& booking);

/// The booking's link identifier; empty when it has none. Fails as the host does.
[[nodiscard]] Text linkIdentifier(Session& session, BookingItem& booking);

/// Remembers the booking's start, or its duration, as accepted. Error 91 when the booking lacks the property.
void rememberStart(BookingItem& booking);
void rememberDuration(BookingItem& booking);

/// Gives a booking that is about to be saved what an accepted one carries: the properties, the current user as its
/// organizer where it has none, its time as the accepted one, and a link identifier where it has none. Answers with the
/// link identifier; empty when it is not known, and a booking without one must not be copied. When the properties
/// cannot be added nothing more is written. No error leaves it, but a new identifier that cannot be written is reported
/// and ends the program. The caller's save stores it all.
Text acceptBooking(Session& session, BookingItem& booking, CopyCalendars& copies);

} // namespace rf
