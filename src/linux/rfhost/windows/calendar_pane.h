#pragma once

#include "host/model.h"
#include "linux/rfhost/windows/calendar_face.h"

#include <QWidget>
#include <array>
#include <memory>

class QAction;
class QLabel;
class QStackedWidget;
class QToolBar;

namespace rf::native {

/// A calendar: the views of it, and the ways from one stretch of time to another.
class CalendarPane final : public QWidget {
public:
    explicit CalendarPane(std::shared_ptr<host::Model> model);
    ~CalendarPane() override;
    CalendarPane(const CalendarPane&) = delete;
    CalendarPane& operator=(const CalendarPane&) = delete;

    /// Shows a calendar as it is now, in the view and around the day that were shown before.
    void show(const host::FolderRecord& folder);
    void setView(host::CalendarView view);
    [[nodiscard]] host::CalendarView view() const { return view_; }
    void setDay(Date day);
    [[nodiscard]] Date day() const { return day_; }

private:
    void build();
    void addWays(QToolBar& bar);
    void addViews(QToolBar& bar);
    QAction* addButton(QToolBar& bar, const char* name, const QKeySequence& key, const std::function<void()>& step);
    [[nodiscard]] CalendarActions actions();
    [[nodiscard]] CalendarFace& face() const;
    /// Reads the shown days and shows them.
    void refresh();
    void create(const host::AppointmentTimes& times);
    void createNamed(const host::AppointmentTimes& times, const Text& subject);
    void open(const host::CalendarEntry& entry);
    void move(const host::CalendarEntry& entry, const host::AppointmentTimes& times);
    void remove(const host::CalendarEntry& entry);
    /// Whether the person means the series that an occurrence belongs to; nothing when the person turns back.
    [[nodiscard]] std::optional<bool> asksForSeries(const QString& question);
    [[nodiscard]] QString titleOf(const host::ShownDays& shown) const;

    std::shared_ptr<host::Model> model_;
    host::FolderRecord folder_;
    host::CalendarView view_ = host::CalendarView::WorkWeek;
    Date day_;
    QLabel* title_;
    QLabel* name_;
    QStackedWidget* stack_;
    std::array<QAction*, 5> views_{};
    std::unique_ptr<CalendarFace> hours_;
    std::unique_ptr<CalendarFace> month_;
    std::unique_ptr<CalendarFace> list_;
};

} // namespace rf::native
