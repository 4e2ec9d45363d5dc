#pragma once

#include "host/item.h"
#include "host/records.h"

#include <memory>
#include <optional>
#include <vector>

namespace rf::host {

class Inspector;
class Model;

/// A booking as a view of a calendar shows it: an appointment that stands alone, or one occurrence of a series.
struct CalendarEntry {
    ItemId item = ItemId::None;
    std::optional<OccurrenceOf> occurrence;
    Date start;
    Date end;
    bool allDay = false;
    std::int32_t busyStatus = 0;
    Text subject;
    Text location;
    Text categories;

    [[nodiscard]] bool isRecurring() const { return occurrence.has_value(); }
    /// Whether it is shown above the hours: it has whole days, or lasts one at least.
    [[nodiscard]] bool isLong() const;
    /// Whether both stand for the same booking, changed or not.
    [[nodiscard]] bool isSame(const CalendarEntry& other) const;
};

/// The bookings of a folder that take place between two moments, in the order of their start. Nothing outside is read.
[[nodiscard]] std::vector<CalendarEntry> entriesBetween(const Model& model, FolderId folder, Date from, Date to);

/// The object of a booking as it is stored now; error `deleted` when it is gone.
[[nodiscard]] std::shared_ptr<Item> itemOfEntry(const std::shared_ptr<Model>& model, const CalendarEntry& entry);
/// The object of the series that an occurrence belongs to; error `deleted` when it is gone.
[[nodiscard]] std::shared_ptr<Item> seriesOfEntry(const std::shared_ptr<Model>& model, const CalendarEntry& entry);

/// Opens the window of an item, or brings the one to the front that shows the stored item already.
void openItem(Item& item);

/// Gives a booking other times and saves it.
void moveEntry(const std::shared_ptr<Model>& model, const CalendarEntry& entry, Date start, Date end);

/// A new appointment of a folder with those times, in its window.
void openNewAppointment(const std::shared_ptr<Model>& model, FolderId folder, const CalendarEntry& times);

/// The same without a window: its subject is all that is said of it.
void saveNewAppointment(const std::shared_ptr<Model>& model, FolderId folder, const CalendarEntry& times);

} // namespace rf::host
