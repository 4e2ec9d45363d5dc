#include "storage/frm_room.h"

#include "app/session.h"
#include "outlook/recording_dispatch.h"
#include "outlook/webbrowser.h"
#include "support/session_fixture.h"

namespace rf {
namespace {

using namespace test;

/// The viewer on a machine whose browser notes what it is told.
class RoomViewer : public SessionTest {
protected:
    RoomViewer()
    {
        toolkit.components[Text{outlook::webBrowserClass}] = [this] { return automation::Object{browser}; };
    }

    /// The window of a viewer that shows the page.
    RecordingWindow& show()
    {
        const auto room = std::make_shared<frmRoom>(session, u"/home/jane/room one.html");
        session.forms.load(room);
        room->show();
        return *toolkit.lastWindow();
    }

    std::shared_ptr<RecordingDispatch> browser = std::make_shared<RecordingDispatch>();
    Session session{services()};
};

TEST_F(RoomViewer, ShowsThePageInItsBrowser)
{
    const auto& window = show();
    EXPECT_TRUE(window.isShown());
    EXPECT_EQ(window.caption(), u"Roomfold for Outlook Booking Info");
    ASSERT_EQ(browser->uses.size(), 1U);
    EXPECT_EQ(browser->uses.front().member, u"Navigate2");
    EXPECT_EQ(browser->uses.front().arguments.front().text(), u"/home/jane/room one.html");
    EXPECT_EQ(window.at(u"wb").bounds().width, window.size().first);
    EXPECT_EQ(window.at(u"wb").bounds().height, window.size().second);
}

TEST_F(RoomViewer, TellsItsCaptionToWhoeverLooksForIt)
{
    show();
    EXPECT_EQ(session.forms.find(frmRoom::formName)->caption(), u"Roomfold for Outlook Booking Info");
}

TEST_F(RoomViewer, IsUnloadedWhenItsWindowIsClosed)
{
    show().closeBySystemBox();
    EXPECT_EQ(session.forms.count(), 0U);
    EXPECT_TRUE(toolkit.formWindows.empty());
}

TEST_F(RoomViewer, HasNothingOnTheScreenBeforeItIsLoaded)
{
    frmRoom room{session, u"/home/jane/room one.html"};
    room.show();
    room.setFocus();
    room.unload();
    EXPECT_EQ(room.caption(), u"");
    EXPECT_EQ(room.window(), 0);
    EXPECT_EQ(room.strRoomPage(), u"/home/jane/room one.html");
    EXPECT_TRUE(toolkit.formWindows.empty());
}

TEST_F(RoomViewer, IsKnownByItsWindow)
{
    const auto& window = show();
    const auto room = session.forms.find(frmRoom::formName);
    room->setFocus();
    EXPECT_TRUE(window.isShown());
    EXPECT_EQ(room->window(), window.handle());
}

TEST_F(RoomViewer, StaysEmptyWhereThereIsNoBrowser)
{
    toolkit.components.clear();
    EXPECT_TRUE(show().isShown());
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(RoomViewer, StaysOpenWhenThePageCannotBeShown)
{
    browser->failure = error_number::invalidCall;
    EXPECT_TRUE(show().isShown());
    EXPECT_TRUE(toolkit.messages.empty());
}

} // namespace
} // namespace rf
