#include "linux/rfhost/windows/appointment_form.h"

#include "host/recurrence_choice.h"
#include "linux/qt_text.h"
#include "linux/rfhost/windows/qt_date.h"
#include "outlook/constants.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimeEdit>

namespace rf::native {

namespace {

using host::AppointmentTimes;
using host::ItemRecord;

/// A widget that programs for people with other needs know by the name on its label.
template <class Widget>
Widget* named(Widget* widget, const char* objectName, const char* accessibleName)
{
    widget->setObjectName(QLatin1StringView{objectName});
    widget->setAccessibleName(QLatin1StringView{accessibleName});
    return widget;
}

QDateEdit* makeDayBox(const char* objectName, const char* accessibleName)
{
    auto* const box = named(new QDateEdit, objectName, accessibleName);
    box->setCalendarPopup(true);
    // The short form of many languages has a year of two digits, which nobody can edit.
    QString format = box->locale().dateFormat(QLocale::ShortFormat);
    if (!format.contains(QStringLiteral("yyyy")))
        format.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    box->setDisplayFormat(QStringLiteral("ddd ") + format);
    // Qt has the width from the first and the last day that there is; other weekdays have wider names.
    constexpr int someLetters = 3;
    box->setMinimumWidth(box->sizeHint().width() + someLetters * box->fontMetrics().averageCharWidth());
    return box;
}

QTimeEdit* makeTimeBox(const char* objectName, const char* accessibleName)
{
    auto* const box = named(new QTimeEdit, objectName, accessibleName);
    box->setDisplayFormat(timeFormat());
    return box;
}

QLayout* inARow(std::initializer_list<QWidget*> widgets)
{
    constexpr int between = 8;
    auto* const row = new QHBoxLayout;
    row->setSpacing(between);
    for (QWidget* widget : widgets)
        row->addWidget(widget);
    row->addStretch(1);
    return row;
}

void showText(QLineEdit& box, const Text& text)
{
    if (textOf(box.text()) != text)
        box.setText(qtText(text));
}

void showMoment(QDateEdit& day, QTimeEdit& time, Date moment)
{
    const QSignalBlocker dayQuiet{day};
    const QSignalBlocker timeQuiet{time};
    // What is the same stays as a person has begun to type it.
    if (day.date() != qtDate(moment))
        day.setDate(qtDate(moment));
    if (time.time() != qtTime(moment))
        time.setTime(qtTime(moment));
}

Text shortDay(Date day) { return textOf(shortDayText(day)); }

} // namespace

QPlainTextEdit* makeBodyBox()
{
    auto* const box = named(new QPlainTextEdit, "body", "Text");
    box->setTabChangesFocus(true);
    return box;
}

void showBody(QPlainTextEdit& box, const Text& body)
{
    const QSignalBlocker quiet{box};
    if (const QString text = qtText(replaceAll(body, lineBreak, u"\n")); text != box.toPlainText())
        box.setPlainText(text);
}

Text bodyOf(const QPlainTextEdit& box) { return replaceAll(textOf(box.toPlainText()), u"\n", lineBreak); }

AppointmentForm::AppointmentForm(std::shared_ptr<host::Item> item)
    : item_(std::move(item))
    , layout_(new QFormLayout{this})
    , subject_(named(new QLineEdit, "subject", "Subject"))
    , location_(named(new QLineEdit, "location", "Location"))
    , attendees_(named(new QLineEdit, "attendees", "Attendees"))
    , startDay_(makeDayBox("startDay", "Start day"))
    , startTime_(makeTimeBox("startTime", "Start time"))
    , endDay_(makeDayBox("endDay", "End day"))
    , endTime_(makeTimeBox("endTime", "End time"))
    , allDay_(named(new QCheckBox{QStringLiteral("A&ll day event")}, "allDay", "All day event"))
    , recurrence_(named(new QLabel, "recurrence", "Recurrence"))
    , recur_(named(new QPushButton{QStringLiteral("&Recurrence…")}, "recur", "Recurrence"))
    , busy_(named(new QComboBox, "busy", "Show time as"))
    , categories_(named(new QLineEdit, "categories", "Categories"))
    , body_(makeBodyBox())
{
    for (const char* status : {"Free", "Tentative", "Busy", "Out of Office"})
        busy_->addItem(QLatin1StringView{status});
    build();
    refresh();
    listen();
}

void AppointmentForm::build()
{
    layout_->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    constexpr int betweenLabelAndField = 12;
    layout_->setHorizontalSpacing(betweenLabelAndField);
    layout_->addRow(QStringLiteral("Su&bject:"), subject_);
    layout_->addRow(QStringLiteral("L&ocation:"), location_);
    layout_->addRow(QStringLiteral("&Attendees:"), attendees_);
    layout_->addRow(QStringLiteral("S&tart:"), inARow({startDay_, startTime_, allDay_}));
    layout_->addRow(QStringLiteral("&End:"), inARow({endDay_, endTime_}));
    layout_->addRow(QStringLiteral("Repeats:"), inARow({recurrence_, recur_}));
    layout_->addRow(QStringLiteral("S&how time as:"), inARow({busy_}));
    layout_->addRow(QStringLiteral("Cate&gories:"), categories_);
    layout_->addRow(body_);
    for (const auto& [box, row] : {std::pair<QWidget*, int>{startDay_, 3}, {endDay_, 4}})
        if (auto* const label = dynamic_cast<QLabel*>(layout_->itemAt(row, QFormLayout::LabelRole)->widget()))
            label->setBuddy(box);
    if (auto* const label = dynamic_cast<QLabel*>(layout_->itemAt(6, QFormLayout::LabelRole)->widget()))
        label->setBuddy(busy_);
}

void AppointmentForm::edit(const std::function<void(ItemRecord& record)>& change)
{
    if (item_->isDeleted())
        return;
    change(item_->record());
    item_->touch();
}

AppointmentTimes AppointmentForm::times()
{
    const ItemRecord& record = item_->record();
    return {record.start, record.end, record.allDay};
}

void AppointmentForm::editTimes(const std::function<AppointmentTimes(const AppointmentTimes& times)>& change)
{
    const AppointmentTimes changed = change(times());
    if (changed == times())
        return;
    edit([&](ItemRecord& record) {
        record.start = changed.start;
        record.end = changed.end;
        record.allDay = changed.allDay;
    });
    refreshTimes();
}

void AppointmentForm::listenToText(QLineEdit& box, Text ItemRecord::*field)
{
    connect(&box, &QLineEdit::textEdited, this,
        [this, field](const QString& text) { edit([&](ItemRecord& record) { record.*field = textOf(text); }); });
}

void AppointmentForm::listen()
{
    listenToText(*subject_, &ItemRecord::subject);
    listenToText(*location_, &ItemRecord::location);
    listenToText(*attendees_, &ItemRecord::to);
    listenToText(*categories_, &ItemRecord::categories);
    const auto startEdited = [this] {
        editTimes([&](const AppointmentTimes& before) {
            return host::withStart(before, dateOf(startDay_->date(), startTime_->time()));
        });
    };
    const auto endEdited = [this] {
        editTimes([&](const AppointmentTimes& before) {
            const Date shown = dateOf(endDay_->date(), endTime_->time());
            return host::withEnd(before, host::endOfShown(shown, before.allDay));
        });
    };
    connect(startDay_, &QDateEdit::dateChanged, this, startEdited);
    connect(startTime_, &QTimeEdit::timeChanged, this, startEdited);
    connect(endDay_, &QDateEdit::dateChanged, this, endEdited);
    connect(endTime_, &QTimeEdit::timeChanged, this, endEdited);
    connect(allDay_, &QCheckBox::toggled, this,
        [this](bool on) { editTimes([&](const AppointmentTimes& before) { return host::withAllDay(before, on); }); });
    connect(busy_, &QComboBox::activated, this,
        [this](int status) { edit([&](ItemRecord& record) { record.busyStatus = status; }); });
    connect(body_, &QPlainTextEdit::textChanged, this,
        [this] { edit([&](ItemRecord& record) { record.body = bodyOf(*body_); }); });
    connect(recur_, &QPushButton::clicked, this, [this] {
        if (recurrenceWanted)
            recurrenceWanted();
    });
}

void AppointmentForm::refresh()
{
    const ItemRecord& record = item_->record();
    showText(*subject_, record.subject);
    showText(*location_, record.location);
    showText(*attendees_, record.to);
    showText(*categories_, record.categories);
    showBody(*body_, record.body);
    busy_->setCurrentIndex(record.busyStatus);
    layout_->setRowVisible(
        attendees_, record.meetingStatus != static_cast<std::int32_t>(outlook::MeetingStatus::NonMeeting));
    refreshTimes();
    refreshRecurrence();
}

void AppointmentForm::refreshTimes()
{
    const AppointmentTimes now = times();
    const QSignalBlocker quiet{allDay_};
    allDay_->setChecked(now.allDay);
    startTime_->setVisible(!now.allDay);
    endTime_->setVisible(!now.allDay);
    showMoment(*startDay_, *startTime_, now.start);
    showMoment(*endDay_, *endTime_, host::shownEnd(now));
}

void AppointmentForm::refreshRecurrence()
{
    const ItemRecord& record = item_->record();
    recur_->setEnabled(!item_->occurrence());
    if (item_->occurrence())
        recurrence_->setText(QStringLiteral("One occurrence of a series"));
    else if (!record.recurrence)
        recurrence_->setText(QStringLiteral("Never"));
    else if (const auto choice = host::choiceOf(record.recurrence->rule, record.start))
        recurrence_->setText(qtText(host::describe(*choice, record.start, shortDay)));
    else
        recurrence_->setText(QStringLiteral("By a rule that came with a calendar file"));
}

} // namespace rf::native
