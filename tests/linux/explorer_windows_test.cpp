#include "explorer_window_fixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QToolButton>

namespace rf::native {
namespace {

TEST_F(ExplorerWindows, ShowTheFoldersAsATree)
{
    window = explore(room);
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Room 1 - Outlook"));
    ASSERT_NE(folderNamed("Room 1"), nullptr);
    EXPECT_EQ(folderNamed("Room 1")->parent()->text(0), QStringLiteral("Roomfold"));
    EXPECT_EQ(in<QTreeWidget>(window, "folders").currentItem(), folderNamed("Room 1"));
}

TEST_F(ExplorerWindows, SwitchToTheFolderThatAPersonChooses)
{
    window = explore(room);
    in<QTreeWidget>(window, "folders").setCurrentItem(folderNamed("Inbox"));
    settle();
    EXPECT_EQ(host->explorers().active()->folder()->record().name, u"Inbox");
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Inbox - Outlook"));
    EXPECT_TRUE(in<QWidget>(window, "items").isVisible());
}

TEST_F(ExplorerWindows, ShowTheFolderThatAProgramSwitchesTo)
{
    window = explore(root);
    host->explorers().active()->switchTo(std::make_shared<host::Folder>(model(), room));
    settle();
    EXPECT_EQ(in<QTreeWidget>(window, "folders").currentItem(), folderNamed("Room 1"));
    EXPECT_TRUE(pane().isVisible());
}

TEST_F(ExplorerWindows, ShowAFolderThatAnotherProcessAdds)
{
    window = explore(root);
    host::ensureCalendar(store, root, u"Room 2");
    QTest::qWait(600);
    EXPECT_NE(folderNamed("Room 2"), nullptr);
}

TEST_F(ExplorerWindows, CloseTheirObject)
{
    window = explore(room);
    bool last = false;
    windows.setLastClosed([&] { last = true; });
    window->close();
    settle();
    EXPECT_EQ(host->explorers().count(), 0U);
    EXPECT_TRUE(last);
}

TEST_F(ExplorerWindows, DrawTheBookingsOfTheShownDays)
{
    const auto id = book(u"Budget", at(7, 10), at(7, 11));
    const auto other = book(u"Next week", at(14, 10), at(14, 11));
    openCalendar();
    EXPECT_EQ(in<QLabel>(&pane(), "shownDays").text(), QStringLiteral("Monday, 5 March 2007 – Friday, 9 March 2007"));
    EXPECT_FALSE(hours().rectOf(entryOf(id)).isEmpty());
    EXPECT_TRUE(hours().rectOf(entryOf(other)).isEmpty());
    click(in<QToolButton>(&pane(), "Next"));
    EXPECT_FALSE(hours().rectOf(entryOf(other)).isEmpty());
    EXPECT_TRUE(hours().rectOf(entryOf(id)).isEmpty());
    click(in<QToolButton>(&pane(), "Today"));
    EXPECT_FALSE(hours().rectOf(entryOf(id)).isEmpty());
}

TEST_F(ExplorerWindows, DrawWhatAnotherProcessBooks)
{
    openCalendar();
    const auto id = book(u"Budget", at(7, 10), at(7, 11));
    QTest::qWait(600);
    EXPECT_FALSE(hours().rectOf(entryOf(id)).isEmpty());
}

TEST_F(ExplorerWindows, OpenABookingOnADoubleClick)
{
    const auto id = book(u"Budget", at(7, 10), at(7, 11));
    openCalendar();
    QTest::mouseDClick(hours().viewport(), Qt::LeftButton, {}, middleOf(id));
    settle();
    ASSERT_EQ(host->inspectors().count(), 1U);
    EXPECT_EQ(host->inspectors().active()->item().record().id, id);
}

TEST_F(ExplorerWindows, BeginANewAppointmentOnADoubleClickBetweenBookings)
{
    openCalendar();
    const QPoint point = pointOf(at(8, 14, 30));
    QTest::mouseClick(hours().viewport(), Qt::LeftButton, {}, point);
    QTest::mouseDClick(hours().viewport(), Qt::LeftButton, {}, point);
    settle();
    ASSERT_EQ(host->inspectors().count(), 1U);
    const auto& record = host->inspectors().active()->item().record();
    EXPECT_EQ(record.start, at(8, 14, 30));
    EXPECT_EQ(record.end, at(8, 15));
    EXPECT_EQ(record.folder, room);
}

TEST_F(ExplorerWindows, MoveABookingByDragging)
{
    const auto id = book(u"Budget", at(7, 10), at(7, 11));
    openCalendar();
    drag(*hours().viewport(), middleOf(id), middleOf(id) + pointOf(at(8, 14)) - pointOf(at(7, 10)));
    EXPECT_EQ(only().start, at(8, 14));
    EXPECT_EQ(only().end, at(8, 15));
}

TEST_F(ExplorerWindows, StretchABookingByDraggingItsEdge)
{
    const auto id = book(u"Budget", at(7, 10), at(7, 11));
    openCalendar();
    const QRect rect = hours().rectOf(entryOf(id));
    drag(*hours().viewport(), {rect.center().x(), rect.bottom() - 1}, pointOf(at(7, 12, 20)));
    EXPECT_EQ(only().start, at(7, 10));
    EXPECT_EQ(only().end, at(7, 12, 30));
    const QRect stretched = hours().rectOf(entryOf(id));
    drag(*hours().viewport(), {stretched.center().x(), stretched.top() + 1}, pointOf(at(7, 9, 15)));
    EXPECT_EQ(only().start, at(7, 9, 15));
}

TEST_F(ExplorerWindows, LeaveABookingThatIsOnlyClicked)
{
    const auto id = book(u"Budget", at(7, 10), at(7, 11));
    openCalendar();
    const auto revision = only().revision;
    QTest::mouseClick(hours().viewport(), Qt::LeftButton, {}, middleOf(id));
    settle();
    EXPECT_EQ(only().revision, revision);
    EXPECT_EQ(hours().chosenEntry()->item, id);
}

TEST_F(ExplorerWindows, MoveAndStretchABookingByTheKeyboard)
{
    book(u"Budget", at(7, 10), at(7, 11));
    openCalendar();
    hours().setFocus();
    press(hours(), Qt::Key_Tab);
    ASSERT_TRUE(hours().chosenEntry());
    press(hours(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(only().start, at(7, 10, 15));
    press(hours(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(only().start, at(8, 10, 15));
    press(hours(), Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(only().end, at(8, 11, 30));
    press(hours(), Qt::Key_Return);
    EXPECT_EQ(host->inspectors().count(), 1U);
}

TEST_F(ExplorerWindows, BookWhatIsTypedIntoAFreeSlot)
{
    openCalendar();
    hours().setFocus();
    QTest::mouseClick(hours().viewport(), Qt::LeftButton, {}, pointOf(at(7, 10)));
    press(hours(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&hours(), 'B');
    auto& editor = in<QLineEdit>(&hours(), "newSubject");
    QTest::keyClicks(&editor, QStringLiteral("udget"));
    press(editor, Qt::Key_Return);
    EXPECT_EQ(only().subject, u"Budget");
    EXPECT_EQ(only().start, at(7, 10));
    EXPECT_EQ(only().end, at(7, 11));
}

TEST_F(ExplorerWindows, BookNothingWhenThePersonTurnsBackWhileTyping)
{
    openCalendar();
    hours().setFocus();
    QTest::keyClick(&hours(), 'B');
    press(in<QLineEdit>(&hours(), "newSubject"), Qt::Key_Escape);
    EXPECT_TRUE(store.items(room).empty());
    EXPECT_EQ(hours().findChild<QLineEdit*>(QStringLiteral("newSubject")), nullptr);
}

TEST_F(ExplorerWindows, DeleteABooking)
{
    const auto id = book(u"Budget", at(7, 10), at(7, 11));
    openCalendar();
    QTest::mouseClick(hours().viewport(), Qt::LeftButton, {}, middleOf(id));
    press(hours(), Qt::Key_Delete);
    EXPECT_TRUE(store.items(room).empty());
}

TEST_F(ExplorerWindows, AskWhetherOneOfASeriesIsMeant)
{
    auto record = host::test::appointment(room, u"Every day", at(5, 10), at(5, 11));
    record.recurrence.emplace().rule = u"FREQ=DAILY;COUNT=5";
    record.recurrence->lastEnd = at(9, 11);
    store.save(record);
    openCalendar();
    const auto entries = host::entriesBetween(host->model(), room, at(5, 0), at(10, 0));
    ASSERT_EQ(entries.size(), 5U);
    hours().setFocus();
    QTest::mouseClick(hours().viewport(), Qt::LeftButton, {}, hours().rectOf(entries[2]).center());
    const auto answer = [](const char* button) {
        whenAsked("seriesQuestion", [button](QDialog& dialog) {
            for (QAbstractButton* one : dynamic_cast<QMessageBox&>(dialog).buttons())
                if (one->text() == QLatin1StringView{button})
                    return one->click();
        });
    };
    answer("This &occurrence");
    press(hours(), Qt::Key_Delete);
    QTest::qWait(50);
    EXPECT_EQ(host::entriesBetween(host->model(), room, at(5, 0), at(10, 0)).size(), 4U);
    QTest::mouseClick(hours().viewport(), Qt::LeftButton, {}, hours().rectOf(entries[1]).center());
    answer("The &series");
    press(hours(), Qt::Key_Delete);
    QTest::qWait(50);
    EXPECT_TRUE(store.items(room).empty());
}

TEST_F(ExplorerWindows, TellAScreenReaderWhatIsChosen)
{
    book(u"Budget", at(7, 10), at(7, 11), u"Room 1");
    openCalendar();
    hours().setFocus();
    EXPECT_EQ(hours().accessibleName(), QStringLiteral("Room 1, Monday, 5 March 2007 – Friday, 9 March 2007"));
    press(hours(), Qt::Key_Tab);
    EXPECT_TRUE(hours().accessibleDescription().startsWith(QStringLiteral("Budget, Wednesday, 7 March 2007, 10:00")));
}

TEST_F(ExplorerWindows, ListTheBookingsOfTheMonth)
{
    book(u"Second", at(7, 10), at(7, 11));
    book(u"First", at(1, 10), at(1, 11));
    openCalendar(host::CalendarView::List);
    ASSERT_EQ(list().topLevelItemCount(), 2);
    EXPECT_EQ(list().topLevelItem(0)->text(2), QStringLiteral("First"));
    list().setCurrentItem(list().topLevelItem(1));
    press(list(), Qt::Key_Delete);
    EXPECT_EQ(only().subject, u"First");
}

TEST_F(ExplorerWindows, ChangeTheirViewByTheKeyboardWhereverTheFocusIs)
{
    openCalendar();
    in<QTreeWidget>(window, "folders").setFocus();
    const std::vector<std::pair<Qt::Key, host::CalendarView>> keys{{Qt::Key_1, host::CalendarView::Day},
        {Qt::Key_3, host::CalendarView::Week}, {Qt::Key_4, host::CalendarView::Month},
        {Qt::Key_5, host::CalendarView::List}, {Qt::Key_2, host::CalendarView::WorkWeek}};
    for (const auto& [key, view] : keys) {
        press(*window, key, Qt::AltModifier);
        EXPECT_EQ(pane().view(), view);
    }
    press(*window, Qt::Key_PageDown, Qt::AltModifier);
    EXPECT_EQ(pane().day(), at(12, 0));
    press(*window, Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(host->inspectors().count(), 1U);
}

TEST_F(ExplorerWindows, MoveABookingBetweenTheDaysOfAMonth)
{
    const auto id = book(u"Budget", at(7, 10), at(7, 11));
    openCalendar(host::CalendarView::Month);
    const QPoint from = month().rectOf(entryOf(id)).center();
    // The month begins with Monday 26 February.
    constexpr int twentieth = 22;
    drag(month(), from, month().cellOf(twentieth).center());
    EXPECT_EQ(only().start, at(20, 10));
    EXPECT_EQ(only().end, at(20, 11));
}

TEST_F(ExplorerWindows, GoThroughTheMonthByTheKeyboard)
{
    openCalendar(host::CalendarView::Month);
    month().setFocus();
    press(month(), Qt::Key_Right);
    press(month(), Qt::Key_Down);
    EXPECT_EQ(pane().day(), at(13, 0));
    press(month(), Qt::Key_Return);
    ASSERT_EQ(host->inspectors().count(), 1U);
    EXPECT_EQ(host->inspectors().active()->item().record().start, at(13, 8));
}

} // namespace
} // namespace rf::native
