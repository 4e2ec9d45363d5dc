#pragma once

#include "booking/booking_properties.h"
#include "diagnostics/pending_error.h"
#include "outlook/appointment_item.h"
#include "outlook/folder.h"

#include <optional>

namespace rf {

/// A booking in the host, for as long as one handler works on it: what it is asked for is asked of the host once, since
/// every question may go to another process. What is set here is known from then on. What fails is not kept, so the
/// next who needs it asks again. Every member fails as the host's own does.
class BookingItem {
public:
    using Where = outlook::Where;

    explicit BookingItem(outlook::AppointmentItem item)
        : item_(std::move(item))
    {
    }
    /// One whose folder is known already.
    BookingItem(outlook::AppointmentItem item, outlook::Folder folder)
        : item_(std::move(item))
        , folder_(std::move(folder))
    {
    }

    [[nodiscard]] const outlook::AppointmentItem& item() const { return item_; }

    /// Empty until the booking has been saved for the first time.
    [[nodiscard]] Text entryId(Where where = Where::current());
    [[nodiscard]] Text subject(Where where = Where::current());
    [[nodiscard]] Text categories(Where where = Where::current());
    [[nodiscard]] Date start(Where where = Where::current());
    [[nodiscard]] Date end(Where where = Where::current());
    /// In minutes.
    [[nodiscard]] std::int32_t duration(Where where = Where::current());
    [[nodiscard]] bool isRecurring(Where where = Where::current());
    /// The calendar that holds the booking, for an occurrence that of its series.
    [[nodiscard]] outlook::Folder folder(Where where = Where::current());
    [[nodiscard]] Text folderEntryId(Where where = Where::current());

    void setSubject(const Text& subject, Where where = Where::current());
    void setCategories(const Text& categories, Where where = Where::current());
    void setStart(Date start, Where where = Where::current());
    void setDuration(std::int32_t minutes, Where where = Where::current());

    /// Empty when the booking has none of that name.
    [[nodiscard]] outlook::UserProperty property(BookingProperty property, Where where = Where::current());
    /// Gives the booking every property that it lacks; none becomes a field of the folder, since nobody searches a
    /// resource calendar by them. A failing one is passed over and its error left pending.
    void addProperties(PendingError& errors);

private:
    [[nodiscard]] const outlook::UserProperties& userProperties(Where where);

    outlook::AppointmentItem item_;
    std::optional<Text> entryId_;
    std::optional<Text> subject_;
    std::optional<Text> categories_;
    std::optional<Date> start_;
    std::optional<Date> end_;
    std::optional<std::int32_t> duration_;
    std::optional<bool> isRecurring_;
    std::optional<outlook::Folder> folder_;
    std::optional<Text> folderEntryId_;
    std::optional<outlook::UserProperties> userProperties_;
    std::array<std::optional<outlook::UserProperty>, bookingProperties.size()> properties_;
};

/// Gives an item the user properties of a booking. False, with no error left pending, when the host raised an error;
/// the caller saves the item.
bool fncAddBookingProps(BookingItem& booking);
bool fncAddBookingProps(const outlook::AppointmentItem& item);

} // namespace rf
