#include "host_window_fixture.h"

#include "dbus_fixture.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QTreeWidget>

namespace rf::native {
namespace {

struct HostDialogs : HostWindowFixture {
    static QMessageBox& box(QDialog& dialog) { return dynamic_cast<QMessageBox&>(dialog); }
};

TEST_F(HostDialogs, AskWithTheButtonsOfTheAlert)
{
    whenAsked("alert", [](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Roomfold"));
        EXPECT_EQ(box(dialog).text(), QStringLiteral("Taken.\nGo on?"));
        EXPECT_EQ(box(dialog).icon(), QMessageBox::Warning);
        EXPECT_EQ(box(dialog).standardButtons(), QMessageBox::Yes | QMessageBox::No);
        box(dialog).button(QMessageBox::Yes)->click();
    });
    EXPECT_EQ(windows.alert(u"Roomfold", u"Taken.\r\nGo on?", 4, 3), 6);
}

TEST_F(HostDialogs, TakeTheClosingOfAnAlertForTheButtonThatDeclines)
{
    for (const auto& [buttons, answer] : std::vector<std::pair<int, int>>{{0, 1}, {1, 2}, {4, 7}}) {
        whenAsked("alert", [](QDialog& dialog) { dialog.close(); });
        EXPECT_EQ(windows.alert(u"Roomfold", u"Go on?", buttons, 2), answer) << buttons;
    }
}

TEST_F(HostDialogs, TakeEnterForTheFirstButton)
{
    whenAsked("alert", [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    EXPECT_EQ(windows.alert(u"Roomfold", u"Go on?", 1, 2), 1);
}

TEST_F(HostDialogs, ShowAnAlertsTextAsItIsWritten)
{
    whenAsked("alert", [](QDialog& dialog) {
        EXPECT_EQ(box(dialog).textFormat(), Qt::PlainText);
        dialog.close();
    });
    static_cast<void>(windows.alert(u"Roomfold", u"<b>Müller & Co</b>", 0, 0));
}

TEST_F(HostDialogs, OutliveTheWindowThatTheyStandBefore)
{
    display(newAppointment());
    whenAsked("alert", [this](QDialog&) {
        host->inspectors().active()->close(host::CloseMode::Discard);
        settle();
        // The window may take the alert along; nobody answered it then.
        if (auto* left = dynamic_cast<QDialog*>(QApplication::activeModalWidget()))
            left->close();
    });
    EXPECT_EQ(windows.alert(u"Roomfold", u"Go on?", 1, 2), 2);
}

TEST_F(HostDialogs, LetAPersonPickAFolder)
{
    whenAsked("folderPicker", [&](QDialog& dialog) {
        auto& tree = in<QTreeWidget>(&dialog, "folders");
        const auto found = tree.findItems(QStringLiteral("Room 1"), Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_EQ(found.size(), 1);
        tree.setCurrentItem(found.front());
        keepPicture(dialog, QStringLiteral("folder-picker.png"));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(windows.pickFolder(store.folders()), room);
}

TEST_F(HostDialogs, PickNoFolderWhenThePersonCancels)
{
    whenAsked("folderPicker", [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(windows.pickFolder(store.folders()), std::nullopt);
}

TEST_F(HostDialogs, AskWhetherToSave)
{
    const std::vector<std::pair<QMessageBox::StandardButton, host::SaveAnswer>> answers{
        {QMessageBox::Yes, host::SaveAnswer::Save}, {QMessageBox::No, host::SaveAnswer::Discard},
        {QMessageBox::Cancel, host::SaveAnswer::KeepOpen}};
    for (const auto& [button, answer] : answers) {
        whenAsked("askToSave", [button = button](QDialog& dialog) { box(dialog).button(button)->click(); });
        EXPECT_EQ(windows.askToSave(u"Meeting"), answer);
    }
}

TEST_F(HostDialogs, AreNotShownWhereSomebodyElseAnswers)
{
    host::HeadlessWindows answers;
    windows.setAnswers(&answers);
    EXPECT_EQ(windows.alert(u"Roomfold", u"Go on?", 4, 2), 7);
    EXPECT_EQ(windows.pickFolder(store.folders()), std::nullopt);
    EXPECT_EQ(windows.askToSave(u"Meeting"), host::SaveAnswer::Discard);
}

TEST_F(HostDialogs, LetProgramsBeServedWhileTheyWait)
{
    const dbus::PrivateBus bus;
    if (!bus.isThere())
        GTEST_SKIP() << "no dbus-daemon; install it with: apt-get install dbus-daemon";
    const auto served = dbus::Bridge::connect(dbus::offeredEvents);
    const auto client = dbus::Bridge::connect();
    auto own = std::make_shared<dbus::Boiler>();
    dbus::Server server{served};
    ASSERT_TRUE(server.exportClass(dbus::boilerClass, [&] { return own; }));
    const automation::Object boiler{client->root(served->ownName(), dbus::busName(dbus::boilerClass))};
    std::int32_t read = 0;
    whenAsked("alert", [&](QDialog& dialog) {
        read = boiler.get(u"Temperature").integer32();
        dialog.close();
    });
    EXPECT_EQ(windows.alert(u"Roomfold", u"Go on?", 4, 2), 7);
    EXPECT_EQ(read, 20);
}

} // namespace
} // namespace rf::native
