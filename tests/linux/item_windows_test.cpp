#include "item_window_fixture.h"

#include "outlook/appointment_item.h"
#include "outlook/command_bars.h"
#include "outlook/events.h"
#include "outlook/inspector.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTimeEdit>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>

namespace rf::native {
namespace {

TEST_F(ItemWindow, HasTheCaptionOfItsSubject)
{
    open();
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Untitled - Appointment"));
    type(line("subject"), QStringLiteral("Budget"));
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Budget - Appointment"));
    EXPECT_EQ(textOf(window->windowTitle()), inspector().caption());
}

TEST_F(ItemWindow, ShowsTheItem)
{
    const auto id = book(u"Budget", at(5, 10), at(5, 11, 30), u"Room 1");
    auto record = *store.read(id);
    record.categories = u"Project A";
    record.body = u"one\r\ntwo";
    record.busyStatus = 1;
    store.save(record);
    open(stored(id));
    EXPECT_EQ(line("subject").text(), QStringLiteral("Budget"));
    EXPECT_EQ(line("location").text(), QStringLiteral("Room 1"));
    EXPECT_EQ(line("categories").text(), QStringLiteral("Project A"));
    EXPECT_EQ(in<QPlainTextEdit>(window, "body").toPlainText(), QStringLiteral("one\ntwo"));
    EXPECT_EQ(in<QDateEdit>(window, "startDay").date(), QDate(2007, 3, 5));
    EXPECT_EQ(in<QTimeEdit>(window, "startTime").time(), QTime(10, 0));
    EXPECT_EQ(in<QTimeEdit>(window, "endTime").time(), QTime(11, 30));
    EXPECT_EQ(in<QComboBox>(window, "busy").currentText(), QStringLiteral("Tentative"));
    EXPECT_FALSE(in<QCheckBox>(window, "allDay").isChecked());
    EXPECT_FALSE(item->hasChanges());
}

TEST_F(ItemWindow, ShowsEveryDayOfAWeekWhole)
{
    constexpr int frameAndCursor = 5;
    const auto id = book(u"Budget", at(5, 10), at(5, 11));
    open(stored(id));
    auto& day = in<QDateEdit>(window, "startDay");
    const auto& field = in<QLineEdit>(&day, "qt_spinbox_lineedit");
    for (int weekday = 0; weekday < 7; ++weekday) {
        day.setDate(QDate{2007, 3, 21}.addDays(weekday));
        settle();
        EXPECT_LE(field.fontMetrics().horizontalAdvance(field.text()) + frameAndCursor, field.width())
            << field.text().toStdString();
    }
}

TEST_F(ItemWindow, WritesWhatAPersonEntersIntoTheItem)
{
    open();
    type(line("subject"), QStringLiteral("Budget"));
    type(line("location"), QStringLiteral("Room 1"));
    type(line("categories"), QStringLiteral("Project A"));
    auto& body = in<QPlainTextEdit>(window, "body");
    type(body, QStringLiteral("one"));
    press(body, Qt::Key_Return);
    type(body, QStringLiteral("two"));
    EXPECT_EQ(item->record().subject, u"Budget");
    EXPECT_EQ(item->record().location, u"Room 1");
    EXPECT_EQ(item->record().categories, u"Project A");
    EXPECT_EQ(item->record().body, u"one\r\ntwo");
    EXPECT_TRUE(item->hasChanges());
}

TEST_F(ItemWindow, MovesTheEndWithTheStart)
{
    open(stored(book(u"Budget", at(5, 10), at(5, 11))));
    in<QDateEdit>(window, "startDay").setDate({2007, 3, 7});
    in<QTimeEdit>(window, "startTime").setTime({14, 15});
    settle();
    EXPECT_EQ(item->record().start, at(7, 14, 15));
    EXPECT_EQ(item->record().end, at(7, 15, 15));
    EXPECT_EQ(in<QDateEdit>(window, "endDay").date(), QDate(2007, 3, 7));
    EXPECT_EQ(in<QTimeEdit>(window, "endTime").time(), QTime(15, 15));
}

TEST_F(ItemWindow, HidesTheTimesOfAnAllDayEvent)
{
    open(stored(book(u"Fair", at(5, 10), at(6, 11))));
    in<QCheckBox>(window, "allDay").click();
    settle();
    EXPECT_TRUE(item->record().allDay);
    EXPECT_EQ(item->record().start, at(5, 0));
    EXPECT_EQ(item->record().end, at(7, 0));
    EXPECT_EQ(in<QDateEdit>(window, "endDay").date(), QDate(2007, 3, 6));
    EXPECT_FALSE(in<QTimeEdit>(window, "startTime").isVisible());
}

TEST_F(ItemWindow, ShowsWhatAProgramAssigns)
{
    open();
    outlook::Item{automation::Object{item->dispatch()}}.setSubject(u"From a program");
    settle();
    EXPECT_EQ(line("subject").text(), QStringLiteral("From a program"));
    EXPECT_EQ(window->windowTitle(), QStringLiteral("From a program - Appointment"));
}

TEST_F(ItemWindow, SavesAndCloses)
{
    open();
    type(line("subject"), QStringLiteral("Budget"));
    click(in<QToolButton>(window, "Save and Close"));
    EXPECT_EQ(shown<InspectorWindow>(), nullptr);
    ASSERT_EQ(booked().size(), 1U);
    EXPECT_EQ(booked()[0].subject, u"Budget");
    EXPECT_EQ(host->inspectors().count(), 0U);
}

TEST_F(ItemWindow, SavesAndClosesByTheKeyboard)
{
    open();
    type(line("subject"), QStringLiteral("Budget"));
    press(*window, Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(booked().size(), 1U);
    EXPECT_EQ(shown<InspectorWindow>(), nullptr);
}

TEST_F(ItemWindow, StaysOpenWhenAProgramRefusesTheSave)
{
    open();
    type(line("subject"), QStringLiteral("Budget"));
    const auto connection = outlook::connect(outlook::Item{automation::Object{item->dispatch()}},
        outlook::ItemEvents{.write = [](bool& cancel) { cancel = true; }});
    click(in<QToolButton>(window, "Save and Close"));
    EXPECT_NE(shown<InspectorWindow>(), nullptr);
    EXPECT_TRUE(booked().empty());
}

TEST_F(ItemWindow, AsksAboutChangesWhenItIsClosed)
{
    open();
    type(line("subject"), QStringLiteral("Budget"));
    whenAsked(
        "askToSave", [](QDialog& dialog) { dynamic_cast<QMessageBox&>(dialog).button(QMessageBox::Cancel)->click(); });
    window->close();
    settle();
    QTest::qWait(50);
    EXPECT_NE(shown<InspectorWindow>(), nullptr);
    whenAsked(
        "askToSave", [](QDialog& dialog) { dynamic_cast<QMessageBox&>(dialog).button(QMessageBox::Yes)->click(); });
    window->activateWindow();
    static_cast<void>(QTest::qWaitForWindowActive(window));
    press(*window, Qt::Key_Escape);
    QTest::qWait(50);
    EXPECT_EQ(shown<InspectorWindow>(), nullptr);
    EXPECT_EQ(booked().size(), 1U);
}

TEST_F(ItemWindow, ClosesWithoutAWordWhenNothingChanged)
{
    open(stored(book(u"Budget", at(5, 10), at(5, 11))));
    window->close();
    settle();
    EXPECT_EQ(shown<InspectorWindow>(), nullptr);
}

TEST_F(ItemWindow, DeletesTheItem)
{
    open(stored(book(u"Budget", at(5, 10), at(5, 11))));
    press(*window, Qt::Key_D, Qt::ControlModifier);
    EXPECT_TRUE(booked().empty());
    EXPECT_EQ(shown<InspectorWindow>(), nullptr);
}

TEST_F(ItemWindow, TellsOfAFailureInFrontOfTheWindow)
{
    const auto id = book(u"Budget", at(5, 10), at(5, 11));
    open(stored(id));
    ASSERT_TRUE(store.remove(id));
    bool told = false;
    whenAsked("failure", [&](QDialog& dialog) {
        told = true;
        dialog.close();
    });
    click(in<QToolButton>(window, "Save"));
    QTest::qWait(50);
    EXPECT_TRUE(told);
    EXPECT_NE(shown<InspectorWindow>(), nullptr);
}

TEST_F(ItemWindow, HidesAPageOfTheForm)
{
    open();
    auto& tabs = in<QTabWidget>(window, "pages");
    EXPECT_TRUE(tabs.isTabVisible(1));
    inspector().hideFormPage(u"Scheduling");
    settle();
    EXPECT_FALSE(tabs.isTabVisible(1));
    EXPECT_FALSE(tabs.tabBar()->isVisible());
}

TEST_F(ItemWindow, ShowsTheOtherBookingsOfTheDayOnTheSchedulingPage)
{
    book(u"Other", at(5, 10, 30), at(5, 12));
    book(u"Next day", at(6, 10), at(6, 11));
    open(stored(book(u"Budget", at(5, 10), at(5, 11))));
    in<QTabWidget>(window, "pages").setCurrentIndex(1);
    settle();
    auto& list = in<QTreeWidget>(window, "scheduling");
    ASSERT_EQ(list.topLevelItemCount(), 1);
    EXPECT_EQ(list.topLevelItem(0)->text(2), QStringLiteral("Other"));
    EXPECT_TRUE(in<QLabel>(window, "schedulingSummary").text().startsWith(QStringLiteral("Another booking overlaps")));
}

TEST_F(ItemWindow, ShowsAMailWithItsAddressees)
{
    const auto mail = host::itemOf(host::makeItem(model(), host::newRecord(host->model(), room, u"IPM.Note")));
    mail->record().to = u"support@example.com";
    mail->record().subject = u"Report";
    open(mail);
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Report - Message"));
    EXPECT_EQ(line("to").text(), QStringLiteral("support@example.com"));
}

/// The bar that a program puts on an appointment's window.
struct ItemWindowWithABar : ItemWindow {
    outlook::CommandBar bar;
    outlook::CommandBarButton button;
    outlook::CommandBarComboBox combo;

    void addBar()
    {
        bar = inspector().commandBars().add(u"Roomfold", outlook::BarPosition::Top, false, true);
        button = bar.controls().addButton(true);
        button.setCaption(u"Booking info");
        combo = bar.controls().addComboBox(true);
        combo.setCaption(u"Project");
        for (const char16_t* project : {u"Alpha", u"Beta"})
            combo.addItem(project);
        bar.setVisible(true);
        settle();
    }
};

TEST_F(ItemWindowWithABar, ShowsTheControlsOfTheBar)
{
    open();
    addBar();
    EXPECT_TRUE(in<QToolBar>(window, "Roomfold").isVisible());
    EXPECT_EQ(in<QToolButton>(window, "Booking info").text(), QStringLiteral("Booking info"));
    EXPECT_EQ(in<QComboBox>(window, "Project").count(), 2);
    combo.setWidth(240);
    button.setVisible(false);
    settle();
    EXPECT_EQ(in<QComboBox>(window, "Project").width(), 240);
    EXPECT_EQ(window->findChild<QToolButton*>(QStringLiteral("Booking info")), nullptr);
}

TEST_F(ItemWindowWithABar, TellsTheProgramOfAClick)
{
    open();
    addBar();
    int clicks = 0;
    const auto connection
        = outlook::connect(button, outlook::CommandBarButtonEvents{.click = [&](auto, bool&) { ++clicks; }});
    click(in<QToolButton>(window, "Booking info"));
    EXPECT_EQ(clicks, 1);
    auto& control = in<QToolButton>(window, "Booking info");
    control.setFocus();
    press(control, Qt::Key_Space);
    EXPECT_EQ(clicks, 2);
}

TEST_F(ItemWindowWithABar, TellsTheProgramOfAChoice)
{
    open();
    addBar();
    std::vector<Text> chosen;
    const auto connection = outlook::connect(
        combo, outlook::CommandBarComboBoxEvents{.change = [&](auto) { chosen.push_back(combo.text()); }});
    auto& box = in<QComboBox>(window, "Project");
    box.setFocus();
    press(box, Qt::Key_Down);
    EXPECT_EQ(chosen, std::vector<Text>{u"Alpha"});
    box.lineEdit()->selectAll();
    type(*box.lineEdit(), QStringLiteral("Gamma"));
    press(*box.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(chosen, (std::vector<Text>{u"Alpha", u"Gamma"}));
}

TEST_F(ItemWindowWithABar, ShowsTheTextThatAProgramGivesACombo)
{
    open();
    addBar();
    combo.setText(u"Beta");
    settle();
    EXPECT_EQ(in<QComboBox>(window, "Project").currentText(), QStringLiteral("Beta"));
}

TEST_F(ItemWindowWithABar, MayCloseItsWindowInAnAnswerToAClick)
{
    open();
    addBar();
    const auto connection = outlook::connect(button,
        outlook::CommandBarButtonEvents{.click = [&](auto, bool&) { inspector().close(outlook::CloseMode::Discard); }});
    click(in<QToolButton>(window, "Booking info"));
    EXPECT_EQ(shown<InspectorWindow>(), nullptr);
}

TEST_F(ItemWindowWithABar, GoesWhereAProgramPutsItAndTellsWhereItIs)
{
    open();
    inspector().setLeft(120);
    inspector().setTop(80);
    settle();
    EXPECT_EQ(window->pos(), QPoint(120, 80));
    window->move(200, 150);
    settle();
    EXPECT_EQ(inspector().left(), 200);
    EXPECT_EQ(inspector().top(), 150);
}

TEST_F(ItemWindowWithABar, LooksGoodInLightAndDark)
{
    book(u"Other", at(5, 10, 30), at(5, 12));
    const auto id = book(u"Budget for the next year", at(5, 10), at(5, 11), u"Room 1");
    auto record = *store.read(id);
    record.body = u"Agenda\r\n1. Last year\r\n2. Next year";
    record.categories = u"Alpha";
    store.save(record);
    open(stored(id));
    addBar();
    combo.setText(u"Alpha");
    keepPicture(*window, QStringLiteral("appointment-light.png"));
    darken();
    keepPicture(*window, QStringLiteral("appointment-dark.png"));
    in<QTabWidget>(window, "pages").setCurrentIndex(1);
    keepPicture(*window, QStringLiteral("scheduling-dark.png"));
}

} // namespace
} // namespace rf::native
