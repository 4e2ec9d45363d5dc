#include "booking/acceptance.h"

#include "app/session.h"
#include "app/user_name.h"
#include "automation/conversion.h"
#include "booking/app_copy.h"
#include "booking/link_identifier.h"
#include "storage/outlook_value.h"

namespace rf {

namespace {

using automation::Variant;

Variant valueOf(BookingItem& booking, BookingProperty name)
{
    const auto property = booking.property(name);
    return property ? property.value() : Variant{};
}

Text textOf(Session& session, BookingItem& booking, BookingProperty name)
{
    return toText(session.services.regional, valueOf(booking, name));
}

void nameOrganizer(Session& session, BookingItem& booking)
{
    if (textOf(session, booking, BookingProperty::SafeOrganizer).empty())
        booking.property(BookingProperty::SafeOrganizer).setValue(fncGetUserName(session));
}

} // namespace

AcceptedTime acceptedTime(Session& session, BookingItem& booking)
{
    const Regional& regional = session.services.regional;
    const Variant start = valueOf(booking, BookingProperty::OriginalStartDate);
    const Variant duration = valueOf(booking, BookingProperty::OriginalDuration);
    AcceptedTime time;
    if (isDate(regional, start))
        time.start = toDate(regional, start);
    // As the host counts minutes, in 32 bits: a booking of more than 22 days would not fit into 16, never be equal to
    // what is remembered, and be saved without end.
    if (isNumeric(regional, duration))
        time.duration = toLong(regional, duration);
    // A date that was never set reads as a far one; putting a booking back there would lose it.
    if (time.start == noDate)
        time.start = Date{};
    return time;
}

Text linkIdentifier(Session& session, BookingItem& booking)
{
    return textOf(session, booking, BookingProperty::LinkIdentifier);
}

void rememberStart(BookingItem& booking)
{
    booking.property(BookingProperty::OriginalStartDate).setValue(booking.start());
}

void rememberDuration(BookingItem& booking)
{
    booking.property(BookingProperty::OriginalDuration).setValue(booking.duration());
}

Text acceptBooking(Session& session, BookingItem& booking, CopyCalendars& copies)
{
    if (!fncAddBookingProps(booking))
        return {};
    PendingError errors;
    errors.attempt([&] { nameOrganizer(session, booking); });
    errors.attempt([&] { rememberStart(booking); });
    errors.attempt([&] { rememberDuration(booking); });
    std::optional<Text> ocid;
    errors.attempt([&] { ocid = linkIdentifier(session, booking); });
    // One that cannot be read may be there: another would part the booking from its copies.
    if (!ocid || !ocid->empty())
        return ocid.value_or(Text{});
    ocid = fncNewOCID(session, copies);
    subSetOutlookValue(
        session, booking.item(), nameOf(BookingProperty::LinkIdentifier), *ocid, ValueKind::String, false);
    return *ocid;
}

} // namespace rf
