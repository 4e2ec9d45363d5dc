#include "linux/rfhost/windows/recurrence_dialog.h"

#include "host/appointment_times.h"
#include "linux/qt_text.h"
#include "linux/rfhost/windows/qt_date.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace rf::native {

namespace {

using host::RecurrenceChoice;

constexpr int removed = 2;
constexpr int daysInWeek = 7;
constexpr int usualTimes = 10;
constexpr int usualWeeks = 10;

template <class Widget>
Widget* named(Widget* widget, const char* objectName, const char* accessibleName)
{
    widget->setObjectName(QLatin1StringView{objectName});
    widget->setAccessibleName(QLatin1StringView{accessibleName});
    return widget;
}

QSpinBox* makeNumber(const char* objectName, const char* accessibleName)
{
    constexpr int most = 999;
    auto* const box = named(new QSpinBox, objectName, accessibleName);
    box->setRange(1, most);
    return box;
}

/// The day of the week behind Monday by a number of days, as the object model's bit.
int bitOf(int day) { return (day + 1) % daysInWeek; }

} // namespace

RecurrenceDialog::RecurrenceDialog(QWidget* parent, const RecurrenceChoice& choice, Date start, bool isSeries)
    : QDialog(parent)
    , start_(start)
    , interval_(makeNumber("interval", "Every"))
    , unit_(named(new QComboBox, "unit", "Unit"))
    , onDate_(new QRadioButton)
    , onWeekday_(new QRadioButton)
    , never_(new QRadioButton{QStringLiteral("&No end date")})
    , after_(new QRadioButton{QStringLiteral("End &after")})
    , until_(new QRadioButton{QStringLiteral("End &by")})
    , times_(makeNumber("times", "Number of times"))
    , untilDay_(named(new QDateEdit, "untilDay", "End day"))
{
    setObjectName(QStringLiteral("recurrenceDialog"));
    setWindowTitle(QStringLiteral("Appointment Recurrence"));
    build(isSeries);
    show(choice);
    unitChosen();
}

void RecurrenceDialog::build(bool isSeries)
{
    auto* const layout = new QVBoxLayout{this};
    weekdayRow_ = weekdayRow();
    monthRow_ = monthRow();
    layout->addWidget(patternRow());
    layout->addWidget(weekdayRow_);
    layout->addWidget(monthRow_);
    layout->addWidget(endRows());
    auto* const buttons = new QDialogButtonBox{QDialogButtonBox::Ok | QDialogButtonBox::Cancel};
    auto* const remove = buttons->addButton(QStringLiteral("&Remove Recurrence"), QDialogButtonBox::DestructiveRole);
    remove->setObjectName(QStringLiteral("removeRecurrence"));
    remove->setEnabled(isSeries);
    layout->addStretch(1);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(remove, &QPushButton::clicked, this, [this] { done(removed); });
}

QWidget* RecurrenceDialog::patternRow()
{
    auto* const row = new QWidget;
    auto* const layout = new QHBoxLayout{row};
    layout->setContentsMargins({});
    auto* const label = new QLabel{QStringLiteral("Repeat &every")};
    label->setBuddy(interval_);
    for (const char* name : {"days", "weeks", "months", "years"})
        unit_->addItem(QLatin1StringView{name});
    layout->addWidget(label);
    layout->addWidget(interval_);
    layout->addWidget(unit_);
    layout->addStretch(1);
    connect(unit_, &QComboBox::currentIndexChanged, this, [this] { unitChosen(); });
    return row;
}

QWidget* RecurrenceDialog::weekdayRow()
{
    auto* const row = new QGroupBox{QStringLiteral("On these days")};
    auto* const layout = new QHBoxLayout{row};
    for (int day = 0; day < daysInWeek; ++day) {
        auto* const box = new QCheckBox{QLocale{}.dayName(day + 1, QLocale::ShortFormat)};
        box->setObjectName(QStringLiteral("weekday%1").arg(bitOf(day)));
        box->setAccessibleName(QLocale{}.dayName(day + 1));
        weekdays_.at(static_cast<std::size_t>(bitOf(day))) = box;
        layout->addWidget(box);
    }
    return row;
}

QWidget* RecurrenceDialog::monthRow()
{
    auto* const row = new QGroupBox{QStringLiteral("On")};
    auto* const layout = new QVBoxLayout{row};
    onDate_->setObjectName(QStringLiteral("onDate"));
    onWeekday_->setObjectName(QStringLiteral("onWeekday"));
    layout->addWidget(onDate_);
    layout->addWidget(onWeekday_);
    return row;
}

QWidget* RecurrenceDialog::endRows()
{
    auto* const box = new QGroupBox{QStringLiteral("Range")};
    auto* const layout = new QGridLayout{box};
    untilDay_->setCalendarPopup(true);
    never_->setObjectName(QStringLiteral("never"));
    after_->setObjectName(QStringLiteral("after"));
    until_->setObjectName(QStringLiteral("until"));
    layout->addWidget(never_, 0, 0);
    layout->addWidget(after_, 1, 0);
    layout->addWidget(times_, 1, 1);
    layout->addWidget(new QLabel{QStringLiteral("times")}, 1, 2);
    layout->addWidget(until_, 2, 0);
    layout->addWidget(untilDay_, 2, 1, 1, 2);
    layout->setColumnStretch(2, 1);
    connect(after_, &QRadioButton::toggled, times_, &QWidget::setEnabled);
    connect(until_, &QRadioButton::toggled, untilDay_, &QWidget::setEnabled);
    return box;
}

void RecurrenceDialog::show(const RecurrenceChoice& choice)
{
    interval_->setValue(choice.interval);
    unit_->setCurrentIndex(static_cast<int>(choice.unit));
    const std::int32_t days = choice.weekdays == 0 ? host::weekdayBit(start_) : choice.weekdays;
    for (std::size_t day = 0; day < weekdays_.size(); ++day)
        weekdays_.at(day)->setChecked((days >> day & 1) != 0);
    (choice.monthDay == RecurrenceChoice::MonthDay::Date ? onDate_ : onWeekday_)->setChecked(true);
    times_->setValue(usualTimes);
    untilDay_->setDate(qtDate(host::plusDays(start_, usualWeeks * daysInWeek)));
    times_->setEnabled(false);
    untilDay_->setEnabled(false);
    if (const auto* after = std::get_if<RecurrenceChoice::After>(&choice.end)) {
        times_->setValue(after->times);
        after_->setChecked(true);
    } else if (const auto* until = std::get_if<RecurrenceChoice::Until>(&choice.end)) {
        untilDay_->setDate(qtDate(until->day));
        until_->setChecked(true);
    } else {
        never_->setChecked(true);
    }
}

RecurrenceChoice::Unit RecurrenceDialog::unit() const
{
    return static_cast<RecurrenceChoice::Unit>(unit_->currentIndex());
}

void RecurrenceDialog::unitChosen()
{
    weekdayRow_->setVisible(unit() == RecurrenceChoice::Unit::Week);
    const bool inMonths = unit() == RecurrenceChoice::Unit::Month || unit() == RecurrenceChoice::Unit::Year;
    monthRow_->setVisible(inMonths);
    if (inMonths) {
        const auto [date, weekday] = host::monthDayNames(unit(), start_);
        onDate_->setText(qtText(date));
        onWeekday_->setText(qtText(weekday));
    }
    adjustSize();
}

RecurrenceDialog::Answer RecurrenceDialog::ask()
{
    switch (exec()) {
    case Accepted:
        return Answer::Chosen;
    case removed:
        return Answer::Removed;
    default:
        return Answer::Cancelled;
    }
}

RecurrenceChoice RecurrenceDialog::choice() const
{
    RecurrenceChoice choice;
    choice.unit = unit();
    choice.interval = interval_->value();
    if (choice.unit == RecurrenceChoice::Unit::Week)
        for (std::size_t day = 0; day < weekdays_.size(); ++day)
            choice.weekdays |= weekdays_.at(day)->isChecked() ? 1 << day : 0;
    if (monthRow_->isVisibleTo(this) && onWeekday_->isChecked())
        choice.monthDay = RecurrenceChoice::MonthDay::Weekday;
    if (after_->isChecked())
        choice.end = RecurrenceChoice::After{times_->value()};
    else if (until_->isChecked())
        choice.end = RecurrenceChoice::Until{dateOf(untilDay_->date())};
    return choice;
}

} // namespace rf::native
