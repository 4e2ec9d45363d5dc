#include "recording_dispatch.h"

#include "outlook/events.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>

namespace rf::outlook {

using automation::Reference;
using test::RecordingDispatch;
using test::someObject;

class OutlookEvents : public testing::Test {
protected:
    template <class Face>
    [[nodiscard]] Face source() const
    {
        return Face{automation::Object{source_}};
    }
    void raise(TextView event, std::vector<Variant> arguments = {}) const { source_->events.raise(event, arguments); }
    /// Raises an event with `cancel` by reference as its last argument, and answers with what came back.
    [[nodiscard]] bool raiseAsking(TextView event, bool cancel, std::vector<Variant> before = {}) const
    {
        Variant decision{cancel};
        before.emplace_back(Reference{&decision});
        raise(event, std::move(before));
        return decision.boolean();
    }

    std::shared_ptr<RecordingDispatch> source_ = std::make_shared<RecordingDispatch>();
};

TEST_F(OutlookEvents, TellTheApplicationsQuit)
{
    int quits = 0;
    const auto connection = connect(source<Application>(), {.quit = [&] { ++quits; }});
    raise(u"Quit");
    EXPECT_EQ(quits, 1);
    EXPECT_EQ(source_->advised, std::vector<Text>{u"ApplicationEvents"});
}

TEST_F(OutlookEvents, TellWhatAnExplorerDoes)
{
    Text heard;
    const auto connection = connect(source<Explorer>(),
        {.activate = [&] { heard += u'a'; }, .folderSwitch = [&] { heard += u'f'; }, .close = [&] { heard += u'c'; }});
    raise(u"FolderSwitch");
    raise(u"Activate");
    raise(u"Close");
    EXPECT_EQ(heard, u"fac");
}

TEST_F(OutlookEvents, HandOverTheWindowThatOpens)
{
    const Variant window = someObject();
    Inspector opened;
    const auto connection
        = connect(source<Inspectors>(), {.newInspector = [&](Inspector inspector) { opened = inspector; }});
    raise(u"NewInspector", {window});
    EXPECT_TRUE(Variant{opened} == window);
}

TEST_F(OutlookEvents, TellWhatAnInspectorDoes)
{
    Text heard;
    const auto connection = connect(source<Inspector>(),
        {.activate = [&] { heard += u'a'; }, .deactivate = [&] { heard += u'd'; }, .close = [&] { heard += u'c'; }});
    raise(u"Activate");
    raise(u"Deactivate");
    raise(u"Close");
    EXPECT_EQ(heard, u"adc");
}

TEST_F(OutlookEvents, HandOverTheItemThatCameOrChanged)
{
    const Variant added = someObject();
    Variant changed = someObject();
    std::vector<Variant> heard;
    int removed = 0;
    const auto connection = connect(source<Items>(),
        {.itemAdd = [&](Item item) { heard.emplace_back(item); },
            .itemChange = [&](Item item) { heard.emplace_back(item); },
            .itemRemove = [&] { ++removed; }});
    raise(u"ItemAdd", {added});
    raise(u"ItemChange", {Reference{&changed}});
    raise(u"ItemRemove");
    EXPECT_TRUE(heard == (std::vector<Variant>{added, changed}));
    EXPECT_EQ(removed, 1);
}

TEST_F(OutlookEvents, CarryTheDecisionToCancelBack)
{
    bool refuse = true;
    const auto connection = connect(source<AppointmentItem>(),
        {.write = [&](bool& cancel) { cancel = refuse; }, .open = [](bool& cancel) { cancel = true; }});
    EXPECT_TRUE(raiseAsking(u"Write", false));
    refuse = false;
    EXPECT_FALSE(raiseAsking(u"Write", true));
    EXPECT_TRUE(raiseAsking(u"Open", false));
}

TEST_F(OutlookEvents, TellTheHandlerWhatWasDecidedBefore)
{
    bool before = false;
    const auto connection = connect(source<Item>(), {.close = [&](bool& cancel) { before = cancel; }});
    EXPECT_TRUE(raiseAsking(u"Close", true));
    EXPECT_TRUE(before);
}

TEST_F(OutlookEvents, LeaveADecisionAloneThatNobodyHandles)
{
    int reads = 0;
    const auto connection = connect(source<Item>(), {.read = [&] { ++reads; }});
    EXPECT_TRUE(raiseAsking(u"Write", true));
    EXPECT_FALSE(raiseAsking(u"Close", false));
    raise(u"Read");
    EXPECT_EQ(reads, 1);
}

TEST_F(OutlookEvents, PassOverEventsTheyDoNotKnow)
{
    const auto connection = connect(source<Item>(), {.write = [](bool& cancel) { cancel = true; }});
    EXPECT_FALSE(raiseAsking(u"PropertyChange", false));
}

TEST_F(OutlookEvents, BearArgumentsThatTheSourceLeftOut)
{
    bool asked = false;
    Item heard{automation::Object{source_}};
    const auto write = connect(source<Item>(), {.write = [&](bool& cancel) { asked = !cancel; }});
    const auto add = connect(source<Items>(), {.itemAdd = [&](Item item) { heard = item; }});
    raise(u"Write");
    raise(u"ItemAdd");
    EXPECT_TRUE(asked);
    EXPECT_FALSE(heard);
}

TEST_F(OutlookEvents, CarryAClickAndItsDefaultBack)
{
    const Variant control = someObject();
    CommandBarButton clicked;
    const auto connection = connect(source<CommandBarButton>(), {.click = [&](CommandBarButton button, bool& cancel) {
        clicked = button;
        cancel = true;
    }});
    EXPECT_TRUE(raiseAsking(u"Click", false, {control}));
    EXPECT_TRUE(Variant{clicked} == control);
}

TEST_F(OutlookEvents, HandOverTheComboThatChanged)
{
    const Variant control = someObject();
    CommandBarComboBox changed;
    const auto connection
        = connect(source<CommandBarComboBox>(), {.change = [&](CommandBarComboBox combo) { changed = combo; }});
    raise(u"Change", {control});
    EXPECT_TRUE(Variant{changed} == control);
}

TEST_F(OutlookEvents, EndWithTheConnection)
{
    int quits = 0;
    {
        const auto connection = connect(source<Application>(), {.quit = [&] { ++quits; }});
    }
    raise(u"Quit");
    EXPECT_EQ(quits, 0);
}

TEST_F(OutlookEvents, LetAHandlerCutItsOwnConnection)
{
    int closes = 0;
    automation::Connection connection;
    const auto kept = std::make_shared<int>(5);
    connection = connect(source<Inspector>(), {.close = [&, kept] {
        connection.disconnect();
        closes += *kept;
    }});
    raise(u"Close");
    raise(u"Close");
    EXPECT_EQ(closes, 5);
    EXPECT_EQ(kept.use_count(), 1);
}

TEST_F(OutlookEvents, FailWithTheCallersLineWhenTheSourceHasNone)
{
    source_->failure = error_number::eventsNotSupported;
    const auto line = __LINE__ + 2;
    try {
        const auto connection = connect(source<Items>(), ItemsEvents{});
        FAIL() << "the failure is lost";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.number(), error_number::eventsNotSupported);
        EXPECT_EQ(error.where().line(), static_cast<unsigned>(line));
    }
}

TEST(EventTables, HoldTheIdsUnderWhichTheHostRaisesThem)
{
    const std::map<std::uint32_t, std::map<Text, int>> expected{
        {0x0006304E, {{u"Quit", 0xF007}}},
        {0x0006304F, {{u"Activate", 0xF001}, {u"FolderSwitch", 0xF002}, {u"Close", 0xF008}}},
        {0x00063079, {{u"NewInspector", 0xF001}}},
        {0x0006307D, {{u"Activate", 0xF001}, {u"Deactivate", 0xF006}, {u"Close", 0xF008}}},
        {0x0006303A, {{u"Read", 0xF001}, {u"Write", 0xF002}, {u"Open", 0xF003}, {u"Close", 0xF004}}},
        {0x00063077, {{u"ItemAdd", 0xF001}, {u"ItemChange", 0xF002}, {u"ItemRemove", 0xF003}}},
        {0x000C0351, {{u"Click", 1}}},
        {0x000C0354, {{u"Change", 1}}},
    };
    std::map<std::uint32_t, std::map<Text, int>> actual;
    for (const auto* events : allEventInterfaces())
        for (const auto& member : events->members)
            actual[events->id].emplace(member.name, member.id);
    EXPECT_EQ(actual, expected);
}

TEST(EventTables, HaveNamesOfTheirOwn)
{
    std::map<Text, int> names;
    for (const auto* events : allEventInterfaces())
        ++names[Text{events->name}];
    EXPECT_EQ(names.size(), allEventInterfaces().size());
}

} // namespace rf::outlook
