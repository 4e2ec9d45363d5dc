#pragma once

#include "linux/rfhost/windows/calendar_face.h"

#include <QTreeWidget>

namespace rf::native {

/// The bookings of a month one below the other.
class BookingList final : public QTreeWidget, public CalendarFace {
public:
    explicit BookingList(CalendarActions actions);

    [[nodiscard]] QWidget& widget() override { return *this; }
    void show(const host::ShownDays& days, std::vector<host::CalendarEntry> entries) override;
    [[nodiscard]] host::AppointmentTimes chosenTimes() const override;
    [[nodiscard]] std::optional<host::CalendarEntry> chosenEntry() const override;
    void chooseDay(Date day) override { day_ = day; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    CalendarActions actions_;
    std::vector<host::CalendarEntry> entries_;
    Date day_;
};

} // namespace rf::native
