#pragma once

#include "basic/clock.h"
#include "host/calendar_drag.h"
#include "linux/rfhost/windows/calendar_face.h"
#include "linux/rfhost/windows/day_geometry.h"

#include <QAbstractScrollArea>
#include <QPointer>
#include <QTimer>

class QLineEdit;

namespace rf::native {

/// Days side by side with their hours from top to bottom.
class DayGrid final : public QAbstractScrollArea, public CalendarFace {
public:
    /// `clock` outlives it.
    DayGrid(CalendarActions actions, const Clock& clock);

    [[nodiscard]] QWidget& widget() override { return *this; }
    void show(const host::ShownDays& days, std::vector<host::CalendarEntry> entries) override;
    [[nodiscard]] host::AppointmentTimes chosenTimes() const override { return slots_; }
    [[nodiscard]] std::optional<host::CalendarEntry> chosenEntry() const override { return chosen_; }
    void chooseDay(Date day) override;

    /// Where a booking is drawn, in the viewport; empty when it is not.
    [[nodiscard]] QRect rectOf(const host::CalendarEntry& entry) const;
    [[nodiscard]] DayGeometry geometryNow() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    struct Drag {
        Date from;
        /// Nothing when free slots are dragged over.
        std::optional<host::CalendarEntry> entry;
        host::DragPart part = host::DragPart::Whole;
        QPoint pressed;
        bool isMoving = false;
        host::AppointmentTimes times;
    };

    /// What one press of an arrow key chooses.
    static constexpr int chosenMinutes = 30;
    [[nodiscard]] static host::AppointmentTimes slotAt(Date start);

    void arrange();
    void setScrollRange();
    /// The count of the bookings when it is none of them.
    [[nodiscard]] std::size_t indexOf(const host::CalendarEntry& entry) const;
    [[nodiscard]] std::optional<host::CalendarEntry> entryAt(QPoint point) const;
    [[nodiscard]] host::DragPart partAt(const host::CalendarEntry& entry, QPoint point) const;
    void choose(std::optional<host::CalendarEntry> entry);
    void chooseSlots(const host::AppointmentTimes& times);
    void drag(QPoint point);
    void showCursor(QPoint point);
    [[nodiscard]] bool pressOnEntry(const QKeyEvent& event);
    [[nodiscard]] bool moveChoice(const QKeyEvent& event);
    void stepDay(int days);
    void stepSlot(int steps, bool extends);
    void beginTyping(const QString& text);
    /// An empty subject books nothing.
    void endTyping(const host::AppointmentTimes& times, const Text& subject);
    void scrollTo(Date moment);
    void announce(const QString& text);

    CalendarActions actions_;
    const Clock& clock_;
    host::ShownDays days_;
    std::vector<host::CalendarEntry> entries_;
    host::DayArrangement arrangement_;
    std::optional<host::CalendarEntry> chosen_;
    host::AppointmentTimes slots_;
    std::optional<Drag> drag_;
    QPointer<QLineEdit> editor_;
    bool wasShown_ = false;
    /// Moves the line of the present time.
    QTimer minute_;
};

} // namespace rf::native
