#include "linux/rfhost/windows/calendar_pane.h"

#include "host/item_factory.h"
#include "linux/qt_text.h"
#include "linux/rfhost/windows/booking_list.h"
#include "linux/rfhost/windows/day_grid.h"
#include "linux/rfhost/windows/month_grid.h"
#include "linux/rfhost/windows/person.h"
#include "linux/rfhost/windows/qt_date.h"

#include <QAction>
#include <QActionGroup>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace rf::native {

namespace {

using host::AppointmentTimes;
using host::CalendarEntry;
using host::CalendarView;

int firstWeekday() { return QLocale{}.firstDayOfWeek() == Qt::Sunday ? host::sunday : host::monday; }

} // namespace

CalendarPane::CalendarPane(std::shared_ptr<host::Model> model)
    : model_(std::move(model))
    , day_(host::dayOf(model_->clock().now()))
    , title_(new QLabel)
    , name_(new QLabel)
    , stack_(new QStackedWidget)
    , hours_(std::make_unique<DayGrid>(actions(), model_->clock()))
    , month_(std::make_unique<MonthGrid>(actions(), model_->clock()))
    , list_(std::make_unique<BookingList>(actions()))
{
    setObjectName(QStringLiteral("calendar"));
    build();
}

CalendarPane::~CalendarPane() = default;

void CalendarPane::build()
{
    constexpr float larger = 1.2F;
    auto* const bar = new QToolBar;
    bar->setAccessibleName(QStringLiteral("Calendar"));
    QFont font = title_->font();
    font.setPointSizeF(font.pointSizeF() * larger);
    title_->setFont(font);
    title_->setObjectName(QStringLiteral("shownDays"));
    name_->setObjectName(QStringLiteral("calendarName"));
    addWays(*bar);
    addViews(*bar);
    auto* const heading = new QHBoxLayout;
    heading->addWidget(title_);
    heading->addStretch(1);
    heading->addWidget(name_);
    for (CalendarFace* face : {hours_.get(), month_.get(), list_.get()})
        stack_->addWidget(&face->widget());
    auto* const layout = new QVBoxLayout{this};
    layout->addWidget(bar);
    layout->addLayout(heading);
    layout->addWidget(stack_, 1);
}

QAction* CalendarPane::addButton(
    QToolBar& bar, const char* name, const QKeySequence& key, const std::function<void()>& step)
{
    auto* const action = bar.addAction(QLatin1StringView{name});
    action->setShortcut(key);
    action->setToolTip(QStringLiteral("%1 (%2)").arg(action->text(), key.toString(QKeySequence::NativeText)));
    connect(action, &QAction::triggered, this, [this, step] { later(this, step); });
    auto* const button = dynamic_cast<QToolButton*>(bar.widgetForAction(action));
    button->setObjectName(action->text());
    button->setAccessibleName(action->text());
    button->setFocusPolicy(Qt::TabFocus);
    return action;
}

void CalendarPane::addWays(QToolBar& bar)
{
    addButton(bar, "New", QKeySequence::New, [this] { create(face().chosenTimes()); });
    bar.addSeparator();
    addButton(bar, "Today", {Qt::ALT | Qt::Key_Home}, [this] { setDay(host::dayOf(model_->clock().now())); });
    const auto addStep = [&](const char* name, Qt::Key key, Qt::ArrowType arrow, int steps) {
        auto* const action
            = addButton(bar, name, {Qt::ALT | key}, [this, steps] { setDay(host::steppedDay(view_, day_, steps)); });
        auto* const button = dynamic_cast<QToolButton*>(bar.widgetForAction(action));
        button->setArrowType(arrow);
        button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    };
    addStep("Previous", Qt::Key_PageUp, Qt::LeftArrow, -1);
    addStep("Next", Qt::Key_PageDown, Qt::RightArrow, 1);
}

void CalendarPane::addViews(QToolBar& bar)
{
    constexpr std::array names{"Day", "Work Week", "Week", "Month", "List"};
    constexpr std::array keys{Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5};
    auto* const space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar.addWidget(space);
    auto* const group = new QActionGroup{this};
    for (std::size_t index = 0; index < names.size(); ++index) {
        const auto view = static_cast<CalendarView>(index);
        views_.at(index) = addButton(bar, names.at(index), {Qt::ALT | keys.at(index)}, [this, view] { setView(view); });
        views_.at(index)->setCheckable(true);
        group->addAction(views_.at(index));
    }
}

CalendarActions CalendarPane::actions()
{
    // What a program does in answer may close the window that the view is in.
    return {.open = [this](const CalendarEntry& entry) { later(this, [this, entry] { open(entry); }); },
        .create = [this](const AppointmentTimes& times) { later(this, [this, times] { create(times); }); },
        .createNamed
        = [this](const AppointmentTimes& times,
              const Text& subject) { later(this, [this, times, subject] { createNamed(times, subject); }); },
        .move = [this](const CalendarEntry& entry,
                    const AppointmentTimes& times) { later(this, [this, entry, times] { move(entry, times); }); },
        .remove = [this](const CalendarEntry& entry) { later(this, [this, entry] { remove(entry); }); },
        .showDay = [this](Date day) { setDay(day); }};
}

CalendarFace& CalendarPane::face() const
{
    switch (view_) {
    case CalendarView::Month:
        return *month_;
    case CalendarView::List:
        return *list_;
    case CalendarView::Day:
    case CalendarView::WorkWeek:
    case CalendarView::Week:
        break;
    }
    return *hours_;
}

void CalendarPane::show(const host::FolderRecord& folder)
{
    folder_ = folder;
    name_->setText(qtText(folder.name));
    refresh();
}

void CalendarPane::setView(CalendarView view)
{
    view_ = view;
    attempt(this, [this] { refresh(); });
    face().widget().setFocus();
}

void CalendarPane::setDay(Date day)
{
    day_ = host::dayOf(day);
    attempt(this, [this] { refresh(); });
}

void CalendarPane::refresh()
{
    if (folder_.id == host::FolderId::None)
        return;
    const host::ShownDays shown = host::shownDays(view_, day_, firstWeekday());
    const QString title = titleOf(shown);
    title_->setText(title);
    views_.at(static_cast<std::size_t>(view_))->setChecked(true);
    face().show(shown, host::entriesBetween(*model_, folder_.id, shown.first, host::endOf(shown)));
    face().chooseDay(day_);
    face().widget().setAccessibleName(QStringLiteral("%1, %2").arg(qtText(folder_.name), title));
    stack_->setCurrentWidget(&face().widget());
}

QString CalendarPane::titleOf(const host::ShownDays& shown) const
{
    if (view_ == CalendarView::Month || view_ == CalendarView::List)
        return QLocale{}.toString(qtDate(day_), QStringLiteral("MMMM yyyy"));
    if (shown.count == 1)
        return dayText(shown.first);
    return dayText(shown.first) + QStringLiteral(" – ") + dayText(host::plusDays(shown.first, shown.count - 1));
}

void CalendarPane::create(const AppointmentTimes& times)
{
    CalendarEntry entry;
    entry.start = times.start;
    entry.end = times.end;
    entry.allDay = times.allDay;
    host::openNewAppointment(model_, folder_.id, entry);
}

void CalendarPane::createNamed(const AppointmentTimes& times, const Text& subject)
{
    CalendarEntry entry;
    entry.start = times.start;
    entry.end = times.end;
    entry.allDay = times.allDay;
    entry.subject = subject;
    host::saveNewAppointment(model_, folder_.id, entry);
    refresh();
}

std::optional<bool> CalendarPane::asksForSeries(const QString& question)
{
    // The window may close meanwhile, and the box with it.
    const QPointer box{
        new QMessageBox{QMessageBox::Question, QStringLiteral("Outlook"), question, QMessageBox::Cancel, window()}};
    box->setObjectName(QStringLiteral("seriesQuestion"));
    auto* const one = box->addButton(QStringLiteral("This &occurrence"), QMessageBox::AcceptRole);
    auto* const all = box->addButton(QStringLiteral("The &series"), QMessageBox::AcceptRole);
    box->setDefaultButton(one);
    box->exec();
    if (box == nullptr)
        return std::nullopt;
    box->deleteLater();
    if (box->clickedButton() == all)
        return true;
    return box->clickedButton() == one ? std::optional{false} : std::nullopt;
}

void CalendarPane::open(const CalendarEntry& entry)
{
    if (!entry.isRecurring())
        return host::openItem(*host::itemOfEntry(model_, entry));
    const auto series = asksForSeries(
        QStringLiteral("“%1” is one of a series. What do you want to open?").arg(qtText(entry.subject)));
    if (series)
        host::openItem(*(*series ? host::seriesOfEntry(model_, entry) : host::itemOfEntry(model_, entry)));
}

void CalendarPane::move(const CalendarEntry& entry, const AppointmentTimes& times)
{
    host::moveEntry(model_, entry, times.start, times.end);
    refresh();
}

void CalendarPane::remove(const CalendarEntry& entry)
{
    const QPointer self{this};
    std::optional<bool> series = false;
    if (entry.isRecurring())
        series = asksForSeries(
            QStringLiteral("“%1” is one of a series. What do you want to delete?").arg(qtText(entry.subject)));
    if (!series || self == nullptr)
        return;
    (*series ? host::seriesOfEntry(model_, entry) : host::itemOfEntry(model_, entry))->remove();
    refresh();
}

} // namespace rf::native
