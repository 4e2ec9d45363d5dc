#pragma once

#include "booking/booking_item.h"

namespace rf {

class Session;

/// Whether an appointment may be booked under the settings' rules: empty when it may, else the reason in the user's
/// language. A meeting always may, since its organizer decides on it elsewhere. No error leaves it: a rule whose
/// values cannot be read goes by empty ones.
[[nodiscard]] Text fncValidateBooking(Session& session, BookingItem& booking);
[[nodiscard]] Text fncValidateBooking(Session& session, const outlook::AppointmentItem& item);

} // namespace rf
