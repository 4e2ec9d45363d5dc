#pragma once

#include "orders/orders.h"
#include "orders/text_table.h"
#include "outlook/appointment_item.h"

namespace rf {

class PendingError;
class Session;

/// What is known of one booking. A value that could not be read is at its default: an empty text, the zero date, 0 or
/// false.
struct BookingValues {
    Date start;
    Date end;
    Text subject;
    outlook::BusyStatus busyStatus = outlook::BusyStatus::Free;
    Text location;
    Text entryId;
    /// Of the folder that holds the booking, or its series.
    Text storeId;
    double hours = 0;
    bool isRecurring = false;
    /// Whether it ends on another calendar day than it starts.
    bool spansDays = false;
    /// Times of day of the series; the zero date when the booking is not recurring.
    Date recurrenceStart;
    Date recurrenceEnd;
    /// The project.
    Text categories;
    Text organizer;
    Text costCenter;
    Text orderComment;
    Text placeSetting;
    /// The zero date for a booking whose host tells none.
    Date created;
    /// The order's lines by columns, as they were written: the item's name and the quantity.
    TextTable orderRows;
    /// The host's item, for later writes.
    outlook::AppointmentItem item;
};

/// One booking as the program keeps it in memory: read in one pass, so that later code need not go back to the host
/// item field by field.
class OutlookBooking : public BookingValues {
public:
    explicit OutlookBooking(Session& session)
        : session_(session)
    {
    }

    /// Fills every field from an item. No error leaves it.
    void subGetAppData(const outlook::AppointmentItem& ouiCurrItem);

    /// Tells two bookings apart: start, end, subject and creation, the dates in their general form, with nothing
    /// between them. Error 5 for a date outside the years 100 to 9999.
    [[nodiscard]] Text UniqueKey() const;

    /// The order, at the present supply list: rows whose item has left that list are not in it. A quantity that is no
    /// number counts as 0. Empty where the lines have no second column.
    [[nodiscard]] cOrders Orders() const;

private:
    void readSeries(const outlook::Parent& parent, bool parentIsItem, PendingError& errors);
    void readItem(PendingError& errors);
    void readProperties(PendingError& errors);

    Session& session_;
};

} // namespace rf
