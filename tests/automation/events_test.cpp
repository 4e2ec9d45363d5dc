#include "automation/events.h"

#include "automation/room.h"
#include "automation/variant.h"

#include <gtest/gtest.h>

#include <optional>
#include <utility>

namespace rf::automation {

class EventSourceTest : public testing::Test {
protected:
    /// Hears every event as one letter.
    [[nodiscard]] EventHandler noting(char16_t letter)
    {
        return [this, letter](TextView, std::span<Variant>) { heard_ += letter; };
    }
    /// Hears every event as one letter and does something else besides.
    template <class Step>
    [[nodiscard]] EventHandler notingAnd(char16_t letter, Step step)
    {
        return [this, letter, step](TextView, std::span<Variant>) {
            heard_ += letter;
            step();
        };
    }

    std::optional<EventSource> source_{std::in_place};
    Text heard_;
};

TEST(EventInterfaces, FindTheirMembersByName)
{
    ASSERT_NE(test::roomEvents.find(u"Closing"), nullptr);
    EXPECT_EQ(test::roomEvents.find(u"Closing")->id, 2);
    EXPECT_EQ(test::roomEvents.find(u"Opening"), nullptr);
}

TEST(EventInterfaces, FindTheirMembersById)
{
    ASSERT_NE(test::roomEvents.find(1), nullptr);
    EXPECT_EQ(test::roomEvents.find(1)->name, u"Booked");
    EXPECT_EQ(test::roomEvents.find(3), nullptr);
}

TEST(Connections, AreCutOnce)
{
    int cuts = 0;
    Connection connection{[&] { ++cuts; }};
    EXPECT_TRUE(connection);
    connection.disconnect();
    EXPECT_FALSE(connection);
    connection.disconnect();
    EXPECT_EQ(cuts, 1);
}

TEST(Connections, AreCutWhenTheyGo)
{
    int cuts = 0;
    {
        const Connection connection{[&] { ++cuts; }};
        EXPECT_EQ(cuts, 0);
    }
    EXPECT_EQ(cuts, 1);
}

TEST(Connections, ToNothingDoNothing)
{
    Connection connection;
    EXPECT_FALSE(connection);
    connection.disconnect();
}

TEST(Connections, AreCutByTheirLastOwner)
{
    int cuts = 0;
    {
        Connection first{[&] { ++cuts; }};
        const Connection second{std::move(first)};
        EXPECT_TRUE(second);
        // NOLINTNEXTLINE(bugprone-use-after-move): what the moved one still does is the question.
        first.disconnect();
        EXPECT_EQ(cuts, 0);
    }
    EXPECT_EQ(cuts, 1);
}

TEST(Connections, AreCutWhenAnotherTakesTheirPlace)
{
    Text cut;
    Connection connection{[&] { cut += u'a'; }};
    connection = Connection{[&] { cut += u'b'; }};
    EXPECT_EQ(cut, u"a");
    connection = {};
    EXPECT_EQ(cut, u"ab");
    EXPECT_FALSE(connection);
}

TEST(Connections, StayWhenTheyAreMovedOntoThemselves)
{
    int cuts = 0;
    Connection connection{[&] { ++cuts; }};
    auto& same = connection;
    connection = std::move(same);
    EXPECT_TRUE(connection);
    EXPECT_EQ(cuts, 0);
}

TEST(Connections, MayLookAtThemselvesWhileTheyAreCut)
{
    bool cutAlready = false;
    Connection connection;
    connection = Connection{[&] { cutAlready = !connection; }};
    connection.disconnect();
    EXPECT_TRUE(cutAlready);
}

TEST_F(EventSourceTest, CallsItsHandlersInTheOrderOfTheirConnection)
{
    const auto first = source_->connect(noting(u'a'));
    const auto second = source_->connect(noting(u'b'));
    const auto third = source_->connect(noting(u'c'));
    source_->raise(u"Booked");
    EXPECT_EQ(heard_, u"abc");
}

TEST_F(EventSourceTest, PutsAHandlerThatComesBackAtTheEnd)
{
    auto first = source_->connect(noting(u'a'));
    const auto second = source_->connect(noting(u'b'));
    first = source_->connect(noting(u'a'));
    source_->raise(u"Booked");
    EXPECT_EQ(heard_, u"ba");
}

TEST_F(EventSourceTest, TellsTheEventAndItsArguments)
{
    Text event;
    std::vector<Variant> given;
    const auto connection = source_->connect([&](TextView name, std::span<Variant> arguments) {
        event = name;
        given.assign(arguments.begin(), arguments.end());
    });
    std::vector<Variant> arguments{1, u"two"};
    source_->raise(u"Booked", arguments);
    EXPECT_EQ(event, u"Booked");
    EXPECT_TRUE(given == arguments);
    source_->raise(u"Closing");
    EXPECT_EQ(event, u"Closing");
    EXPECT_TRUE(given.empty());
}

TEST_F(EventSourceTest, TakesADecisionBackByReference)
{
    const auto connection
        = source_->connect([](TextView, std::span<Variant> arguments) { arguments.back().assignThrough(true); });
    Variant cancel{false};
    std::vector<Variant> arguments{u"Room 1", Reference{&cancel}};
    source_->raise(u"Closing", arguments);
    EXPECT_TRUE(cancel.boolean());
}

TEST_F(EventSourceTest, ShowsALaterHandlerWhatAnEarlierOneDecided)
{
    bool seen = false;
    const auto first
        = source_->connect([](TextView, std::span<Variant> arguments) { arguments[0].assignThrough(true); });
    const auto second
        = source_->connect([&](TextView, std::span<Variant> arguments) { seen = arguments[0].boolean(); });
    Variant cancel{false};
    std::vector<Variant> arguments{Reference{&cancel}};
    source_->raise(u"Closing", arguments);
    EXPECT_TRUE(seen);
}

TEST_F(EventSourceTest, KnowsWhetherAnybodyListens)
{
    EXPECT_FALSE(source_->hasHandlers());
    auto connection = source_->connect(noting(u'a'));
    EXPECT_TRUE(source_->hasHandlers());
    connection.disconnect();
    EXPECT_FALSE(source_->hasHandlers());
}

TEST_F(EventSourceTest, CallsNobodyWhoHasGone)
{
    {
        const auto connection = source_->connect(noting(u'a'));
    }
    source_->raise(u"Booked");
    EXPECT_EQ(heard_, u"");
}

TEST_F(EventSourceTest, LetsAHandlerCutItself)
{
    const auto kept = std::make_shared<int>(0);
    Connection connection;
    connection = source_->connect(notingAnd(u'a', [&connection, kept] {
        connection.disconnect();
        ++*kept;
    }));
    const auto other = source_->connect(noting(u'b'));
    source_->raise(u"Booked");
    source_->raise(u"Booked");
    EXPECT_EQ(heard_, u"abb");
    EXPECT_EQ(*kept, 1);
    EXPECT_EQ(kept.use_count(), 1);
}

TEST_F(EventSourceTest, PassesOverAHandlerThatAnEarlierOneCuts)
{
    Connection second;
    const auto first = source_->connect(notingAnd(u'a', [&] { second.disconnect(); }));
    second = source_->connect(noting(u'b'));
    const auto third = source_->connect(noting(u'c'));
    source_->raise(u"Booked");
    EXPECT_EQ(heard_, u"ac");
}

TEST_F(EventSourceTest, GoesOnWhenAHandlerCutsAnEarlierOne)
{
    auto first = source_->connect(noting(u'a'));
    const auto second = source_->connect(notingAnd(u'b', [&] { first.disconnect(); }));
    const auto third = source_->connect(noting(u'c'));
    source_->raise(u"Booked");
    source_->raise(u"Booked");
    EXPECT_EQ(heard_, u"abcbc");
}

TEST_F(EventSourceTest, LetsANewHandlerHearTheNextEventOnly)
{
    Connection late;
    const auto first = source_->connect(notingAnd(u'a', [&] {
        if (!late)
            late = source_->connect(noting(u'b'));
    }));
    source_->raise(u"Booked");
    EXPECT_EQ(heard_, u"a");
    source_->raise(u"Booked");
    EXPECT_EQ(heard_, u"aab");
}

TEST_F(EventSourceTest, NestsAnEventThatAHandlerRaises)
{
    int depth = 0;
    const auto first = source_->connect(notingAnd(u'a', [&] {
        if (depth++ == 0)
            source_->raise(u"Closing");
    }));
    const auto second = source_->connect(noting(u'b'));
    source_->raise(u"Booked");
    EXPECT_EQ(heard_, u"aabb");
}

TEST_F(EventSourceTest, MayGoBeforeItsConnections)
{
    auto connection = source_->connect(noting(u'a'));
    source_.reset();
    EXPECT_TRUE(connection);
    connection.disconnect();
    EXPECT_FALSE(connection);
}

TEST_F(EventSourceTest, MayGoWhileItRaisesAnEvent)
{
    const auto first = source_->connect(notingAnd(u'a', [this] { source_.reset(); }));
    const auto second = source_->connect(noting(u'b'));
    source_->raise(u"Booked");
    EXPECT_EQ(heard_, u"ab");
    EXPECT_FALSE(source_);
}

TEST_F(EventSourceTest, KeepsAHandlerWhoseConnectionIsMoved)
{
    auto connection = source_->connect(noting(u'a'));
    std::vector<Connection> kept;
    kept.push_back(std::move(connection));
    source_->raise(u"Booked");
    kept.clear();
    source_->raise(u"Booked");
    EXPECT_EQ(heard_, u"a");
}

TEST_F(EventSourceTest, LetsGoOfWhatAHandlerHolds)
{
    const auto held = std::make_shared<int>(0);
    auto connection = source_->connect([held](TextView, std::span<Variant>) { ++*held; });
    EXPECT_EQ(held.use_count(), 2);
    connection.disconnect();
    EXPECT_EQ(held.use_count(), 1);
}

} // namespace rf::automation
