#pragma once

#include "linux/rfhost/windows/booking_list.h"
#include "linux/rfhost/windows/calendar_pane.h"
#include "linux/rfhost/windows/day_grid.h"
#include "linux/rfhost/windows/month_grid.h"

#include "host_window_fixture.h"

#include <QTreeWidget>
#include <stdexcept>

namespace rf::native {

/// The window of one explorer.
struct ExplorerWindows : HostWindowFixture {
    ExplorerWindow* window = nullptr;

    void openCalendar(host::CalendarView view = host::CalendarView::WorkWeek)
    {
        window = explore(room);
        pane().setView(view);
        settle();
    }

    [[nodiscard]] CalendarPane& pane() const { return dynamic_cast<CalendarPane&>(in<QWidget>(window, "calendar")); }
    [[nodiscard]] DayGrid& hours() const { return dynamic_cast<DayGrid&>(in<QWidget>(&pane(), "hours")); }
    [[nodiscard]] MonthGrid& month() const { return dynamic_cast<MonthGrid&>(in<QWidget>(&pane(), "month")); }
    [[nodiscard]] BookingList& list() const { return dynamic_cast<BookingList&>(in<QWidget>(&pane(), "bookings")); }
    [[nodiscard]] host::CalendarEntry entryOf(host::ItemId id) const
    {
        for (const auto& entry : host::entriesBetween(host->model(), room, at(1, 0), at(31, 0)))
            if (entry.item == id)
                return entry;
        throw std::runtime_error{"no such booking"};
    }
    /// The middle of a booking in the view with hours.
    [[nodiscard]] QPoint middleOf(host::ItemId id) const { return hours().rectOf(entryOf(id)).center(); }
    [[nodiscard]] QPoint pointOf(Date moment) const
    {
        const DayGeometry geometry = hours().geometryNow();
        const int day = geometry.columnOf(moment);
        constexpr int inside = 3;
        return {
            (geometry.leftOf(day) + geometry.leftOf(day + 1)) / 2, geometry.yOf(host::timeOfDay(moment) / 60) + inside};
    }
    static void drag(QWidget& widget, QPoint from, QPoint to)
    {
        QTest::mousePress(&widget, Qt::LeftButton, {}, from);
        QTest::mouseMove(&widget, (from + to) / 2);
        QTest::mouseMove(&widget, to);
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
        settle();
    }
    [[nodiscard]] host::ItemRecord only() const
    {
        const auto ids = store.items(room);
        EXPECT_EQ(ids.size(), 1U);
        return ids.empty() ? host::ItemRecord{} : *store.read(ids.front());
    }
    [[nodiscard]] QTreeWidgetItem* folderNamed(const char* folder) const
    {
        const auto found = in<QTreeWidget>(window, "folders")
                               .findItems(QLatin1StringView{folder}, Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? nullptr : found.front();
    }
};

} // namespace rf::native
