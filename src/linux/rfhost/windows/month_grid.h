#pragma once

#include "basic/clock.h"
#include "host/calendar_arrangement.h"
#include "linux/rfhost/windows/calendar_face.h"

#include <QWidget>

namespace rf::native {

/// The weeks of a month one below the other.
class MonthGrid final : public QWidget, public CalendarFace {
public:
    /// `clock` outlives it.
    MonthGrid(CalendarActions actions, const Clock& clock);

    [[nodiscard]] QWidget& widget() override { return *this; }
    void show(const host::ShownDays& days, std::vector<host::CalendarEntry> entries) override;
    [[nodiscard]] host::AppointmentTimes chosenTimes() const override;
    [[nodiscard]] std::optional<host::CalendarEntry> chosenEntry() const override { return chosen_; }
    void chooseDay(Date day) override;

    /// The cell of a day, from 0 up; and the first line of a booking, empty when it is not drawn.
    [[nodiscard]] QRect cellOf(int day) const;
    [[nodiscard]] QRect rectOf(const host::CalendarEntry& entry) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    struct Line {
        std::size_t entry = 0;
        QRect rect;
    };

    /// The bookings that there is room for, and how many of each day there is none for.
    struct Picture {
        std::vector<Line> lines;
        std::vector<int> hidden;
    };

    [[nodiscard]] int headerHeight() const;
    [[nodiscard]] int lineHeight() const;
    [[nodiscard]] int linesOfACell() const;
    [[nodiscard]] int dayAt(QPoint point) const;
    [[nodiscard]] Date dateOfCell(int day) const { return host::plusDays(days_.first, day); }
    [[nodiscard]] Picture arranged() const;
    [[nodiscard]] QRect rectOf(const host::PlacedBar& bar, int week) const;
    void paintCells(class QPainter& painter, const struct CalendarColors& colors, const std::vector<int>& hidden) const;
    [[nodiscard]] std::optional<host::CalendarEntry> entryAt(QPoint point) const;
    void choose(std::optional<host::CalendarEntry> entry);
    void stepDay(int days);
    void announce();

    CalendarActions actions_;
    const Clock& clock_;
    host::ShownDays days_;
    std::vector<host::CalendarEntry> entries_;
    std::optional<host::CalendarEntry> chosen_;
    Date day_;
    std::optional<host::CalendarEntry> dragged_;
    int draggedFrom_ = 0;
    int draggedTo_ = 0;
};

} // namespace rf::native
