#include "booking/outlook_booking.h"

#include "app/session.h"
#include "basic/conversion.h"
#include "booking/booking_properties.h"
#include "diagnostics/pending_error.h"
#include "storage/long_property.h"
#include "storage/outlook_value.h"

namespace rf {

namespace {

constexpr double minutesPerHour = 60;
/// The host marks a date that it does not have with one behind this year.
constexpr int endOfDates = 4000;
constexpr TextView ordersProperty = u"strOrders";

bool sameDay(Date left, Date right)
{
    const auto first = left.fields();
    const auto second = right.fields();
    return first.day == second.day && first.month == second.month && first.year == second.year;
}

/// Runs a step; what it reads takes the place of the default only when it succeeds.
template <class Value, class Read>
void readInto(Value& field, PendingError& errors, const Read& read)
{
    errors.attempt([&] { field = read(); });
}

} // namespace

void OutlookBooking::subGetAppData(const outlook::AppointmentItem& ouiCurrItem)
{
    static_cast<BookingValues&>(*this) = {};
    PendingError errors;
    item = ouiCurrItem;
    readInto(subject, errors, [&] { return item.subject(); });
    session_.trace.subTrace(u"Reading values from appointment " + subject);
    const auto parent = errors.attempt([&] { return item.parent(); });
    isRecurring = errors.attempt(
        [&] { return item.isRecurring() || item.messageClass() == outlook::message_class::recurrenceException; });
    const bool parentIsItem = isRecurring && errors.attempt([&] { return parent.isAppointment(); });
    if (isRecurring)
        readSeries(parent, parentIsItem, errors);
    readItem(errors);
    readProperties(errors);
    // An occurrence lies in its series, and the series in the folder.
    readInto(storeId, errors, [&] { return (parentIsItem ? parent.parent() : parent).storeId(); });
}

/// Only a series is asked for its pattern: the question makes one of an appointment that stands alone.
void OutlookBooking::readSeries(const outlook::Parent& parent, bool parentIsItem, PendingError& errors)
{
    const auto series = parentIsItem ? parent.as<outlook::AppointmentItem>() : item;
    // Those of the occurrence itself replace them, unless they cannot be read.
    if (parentIsItem)
        readInto(categories, errors, [&] { return series.categories(); });
    const auto pattern = errors.attempt([&] { return series.getRecurrencePattern(); });
    readInto(recurrenceStart, errors, [&] { return pattern.startTime(); });
    readInto(recurrenceEnd, errors, [&] { return pattern.endTime(); });
}

void OutlookBooking::readItem(PendingError& errors)
{
    readInto(categories, errors, [&] { return item.categories(); });
    readInto(end, errors, [&] { return item.end(); });
    readInto(start, errors, [&] { return item.start(); });
    readInto(busyStatus, errors, [&] { return item.busyStatus(); });
    readInto(location, errors, [&] { return item.location(); });
    readInto(entryId, errors, [&] { return item.entryId(); });
    readInto(hours, errors, [&] { return item.duration() / minutesPerHour; });
    readInto(spansDays, errors, [&] { return !sameDay(start, end); });
    const Date creation = errors.attempt([&] { return item.creationTime(); });
    if (errors.attempt([&] { return creation.fields().year < endOfDates; }))
        created = creation;
}

void OutlookBooking::readProperties(PendingError& errors)
{
    const auto text
        = [&](TextView name) { return fncGetOutlookValue(session_, item, name, ValueKind::String, u"").text(); };
    organizer = text(nameOf(BookingProperty::SafeOrganizer));
    costCenter = text(nameOf(BookingProperty::CostCenter));
    orderComment = text(nameOf(BookingProperty::OrderComment));
    placeSetting = text(nameOf(BookingProperty::PlaceSetting));
    readInto(orderRows, errors, [&] { return fncTextToArray(fncGetLongProperty(session_, item, ordersProperty)); });
}

Text OutlookBooking::UniqueKey() const
{
    const Regional& regional = session_.services.regional;
    return regional.formatDate(start) + regional.formatDate(end) + subject + regional.formatDate(created);
}

cOrders OutlookBooking::Orders() const
{
    cOrders orders{session_};
    if (orderRows.columns() < 2)
        return orders;
    PendingError errors;
    for (std::size_t line = 0; line < orderRows.rows(); ++line) {
        cOrderRow row{orderRows.cell(line, 0), 0};
        readInto(row.Quantity, errors, [&] { return toLong(session_.services.regional, orderRows.cell(line, 1)); });
        errors.attempt([&] { orders.Add(row); });
    }
    return orders;
}

} // namespace rf
