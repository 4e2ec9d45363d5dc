#include "explorer_window_fixture.h"
#include "sqlite_fixture.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace rf::native {
namespace {

/// The root folder with its home page; its temporary files lie in a folder of the test.
struct HomePageWindow : ExplorerWindows {
    const host::test::TemporaryFolder temporary;
    const rf::test::EnvironmentVariable variable{"TMPDIR", temporary.path()};

    [[nodiscard]] QListWidget& calendars() const { return in<QListWidget>(window, "calendars"); }
    [[nodiscard]] std::string selection() const { return host::test::bytesOf(temporary.file("RFSel.txt")); }
};

TEST_F(HomePageWindow, ListsTheCalendarsAndShowsTheChosenOne)
{
    host::ensureCalendar(store, root, u"Room 2");
    const auto id = book(u"Budget", at(5, 10), at(5, 11));
    window = explore(root);
    ASSERT_EQ(calendars().count(), 2);
    EXPECT_EQ(calendars().item(0)->checkState(), Qt::Checked);
    auto& home = in<QWidget>(window, "homePage");
    EXPECT_TRUE(home.isVisible());
    auto& shownPane = dynamic_cast<CalendarPane&>(in<QWidget>(&home, "calendar"));
    auto& grid = dynamic_cast<DayGrid&>(in<QWidget>(&shownPane, "hours"));
    EXPECT_FALSE(grid.rectOf(entryOf(id)).isEmpty());
    calendars().setCurrentRow(1);
    settle();
    EXPECT_TRUE(grid.rectOf(entryOf(id)).isEmpty());
    EXPECT_EQ(host->explorers().active()->folder()->id(), root);
}

TEST_F(HomePageWindow, WritesTheTickedCalendarsIntoTheSelectionFile)
{
    host::ensureCalendar(store, root, u"Room 2");
    window = explore(root);
    calendars().item(0)->setCheckState(Qt::Unchecked);
    EXPECT_EQ(selection(), "Room 2\r\n");
    calendars().item(0)->setCheckState(Qt::Checked);
    EXPECT_EQ(selection(), "Room 1\r\nRoom 2\r\n");
}

TEST_F(HomePageWindow, AddsAResource)
{
    window = explore(root);
    constexpr int interval = 20;
    QTimer::singleShot(interval, qApp, [] {
        auto* const dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("Room 2"));
        QTest::keyClick(dialog->findChild<QLineEdit*>(), Qt::Key_Return);
    });
    click(in<QPushButton>(window, "addResource"));
    QTest::qWait(100);
    EXPECT_EQ(calendars().count(), 2);
    EXPECT_EQ(calendars().currentItem()->text(), QStringLiteral("Room 2"));
    EXPECT_EQ(selection(), "Room 1\r\nRoom 2\r\n");
    EXPECT_TRUE(host::folderAt(store, u"Public Folders\\All Public Folders\\Roomfold\\Room 2"));
}

TEST_F(HomePageWindow, OpensTheDescriptionThroughTheCommandLineOfTheProgram)
{
    host::ItemRecord post;
    post.folder = root;
    post.messageClass = u"IPM.Post";
    post.subject = u"Room 1";
    post.userProperties = {{u"strHTMLDesc0", 1, Text{u"<p>Größe</p>"}}, {u"strHTMLDescCount", 3, std::int32_t{0}}};
    store.save(post);
    const auto script = temporary.file("program");
    host::test::writeBytes(script,
        "#!/bin/sh\necho \"$*\" > " + temporary.file("words.new").string() + "\nmv "
            + temporary.file("words.new").string() + " " + temporary.file("words").string() + "\n");
    std::filesystem::permissions(script, std::filesystem::perms::owner_all);
    HomePage page{*host, script};
    windows.setHomePage(&page);
    window = explore(root);
    click(in<QPushButton>(window, "description"));
    const auto words = temporary.file("words");
    for (int round = 0; round < 200 && !std::filesystem::exists(words); ++round)
        QTest::qWait(10);
    const std::string file = temporary.file("RFDescription.htm").string();
    EXPECT_EQ(host::test::bytesOf(words), "1 " + file + "\n");
    EXPECT_EQ(host::test::bytesOf(file),
        "\xEF\xBB\xBF<p>Gr\xC3\xB6\xC3\x9F"
        "e</p>");
}

TEST_F(HomePageWindow, OpensOneDescriptionForADoubleClick)
{
    const auto script = temporary.file("program");
    const auto starts = temporary.file("starts");
    host::test::writeBytes(script, "#!/bin/sh\n[ $# = 0 ] || echo >> " + starts.string() + "\n");
    std::filesystem::permissions(script, std::filesystem::perms::owner_all);
    HomePage page{*host, script};
    windows.setHomePage(&page);
    window = explore(root);
    auto& description = in<QPushButton>(window, "description");
    const auto startsBecome = [&](const std::string& expected) {
        for (int round = 0; round < 200 && host::test::bytesOf(starts) != expected; ++round)
            QTest::qWait(10);
        return host::test::bytesOf(starts) == expected;
    };
    click(description);
    click(description);
    EXPECT_TRUE(startsBecome("\n"));
    QTest::qWait(QApplication::doubleClickInterval() + 1);
    EXPECT_EQ(host::test::bytesOf(starts), "\n");
    click(description);
    EXPECT_TRUE(startsBecome("\n\n"));
}

TEST_F(HomePageWindow, SaysWhatToDoWhereThereIsNoResource)
{
    store.removeFolder(room);
    window = explore(root);
    EXPECT_EQ(calendars().count(), 0);
    EXPECT_FALSE(in<QPushButton>(window, "description").isEnabled());
}

TEST_F(HomePageWindow, LooksGoodInLightAndDark)
{
    host::ensureCalendar(store, root, u"Small meeting room");
    book(u"Budget for the next year", at(5, 9), at(5, 11), u"Large room");
    book(u"Interview", at(5, 10), at(5, 12));
    book(u"Short", at(6, 9), at(6, 9, 10));
    book(u"Training", at(6, 13), at(6, 16, 30), u"Room 1");
    book(u"Late shift", at(8, 12), at(8, 14));
    auto fair = host::test::appointment(room, u"Fair", at(7, 0), at(10, 0));
    fair.allDay = true;
    fair.busyStatus = 3;
    store.save(fair);
    auto series = host::test::appointment(room, u"Stand-up", at(5, 8, 30), at(5, 9));
    series.recurrence.emplace().rule = u"FREQ=DAILY;COUNT=20";
    series.recurrence->lastEnd = at(24, 9);
    series.busyStatus = 1;
    store.save(series);
    window = explore(root);
    keepPicture(*window, QStringLiteral("home-light.png"));
    auto& calendar = dynamic_cast<CalendarPane&>(in<QWidget>(&in<QWidget>(window, "homePage"), "calendar"));
    calendar.setView(host::CalendarView::Month);
    keepPicture(*window, QStringLiteral("month-light.png"));
    darken();
    keepPicture(*window, QStringLiteral("month-dark.png"));
    calendar.setView(host::CalendarView::Week);
    keepPicture(*window, QStringLiteral("home-dark.png"));
    calendar.setView(host::CalendarView::List);
    keepPicture(*window, QStringLiteral("list-dark.png"));
}

} // namespace
} // namespace rf::native
