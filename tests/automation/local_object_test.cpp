#include "automation/local_object.h"

#include "automation/failure_of.h"
#include "automation/room.h"
#include "basic/error_of.h"

#include <gtest/gtest.h>

namespace rf::automation {

using test::errorOf;
using test::expectFailure;
using test::failureOf;
using test::Room;

class LocalObjectTest : public testing::Test {
protected:
    /// Without `Object` around it, as a transport's server side uses it.
    Variant invoke(TextView member, Invocation kind, std::vector<Variant> arguments = {})
    {
        return room_->invoke(member, kind, arguments);
    }

    std::shared_ptr<Room> room_ = std::make_shared<Room>();
    Object object_{room_};
};

TEST_F(LocalObjectTest, FindsItsMembersInAnyCase)
{
    EXPECT_EQ(object_.get(u"Name").text(), u"Room 1");
    EXPECT_EQ(object_.get(u"NAME").text(), u"Room 1");
    object_.put(u"nAME", u"Room 2");
    EXPECT_EQ(object_.get(u"name").text(), u"Room 2");
}

TEST_F(LocalObjectTest, HasNoMemberOfAnotherName)
{
    for (const auto kind : {Invocation::Get, Invocation::Call, Invocation::Put})
        for (const TextView member : {u"Nam", u"Names", u"", u"Name "})
            EXPECT_EQ(errorOf([&] { return invoke(member, kind, {1}); }), 438) << toUtf8(member);
}

TEST_F(LocalObjectTest, ReadsTheSameWhetherItIsAskedOrCalled)
{
    EXPECT_EQ(invoke(u"Seats", Invocation::Get).integer32(), 12);
    EXPECT_EQ(invoke(u"Seats", Invocation::Call).integer32(), 12);
    EXPECT_EQ(invoke(u"Book", Invocation::Get, {1}).integer32(), 1);
    EXPECT_EQ(invoke(u"Book", Invocation::Call, {1}).integer32(), 1);
}

TEST_F(LocalObjectTest, AnswersAPutWithEmpty)
{
    EXPECT_TRUE(invoke(u"Name", Invocation::Put, {u"Room 2"}).isEmpty());
    EXPECT_EQ(room_->name, u"Room 2");
}

TEST_F(LocalObjectTest, TakesNoValueForAMemberWithoutWriter)
{
    const auto line = std::source_location::current().line() + 1;
    const auto failure = failureOf([&] { object_.put(u"seats", 13); });
    expectFailure(failure, 438, line, __FILE__, u"seats");
    EXPECT_EQ(failure->source(), u"Room");
}

TEST_F(LocalObjectTest, GivesNoValueOfAMemberWithoutReader)
{
    object_.put(u"Code", u"1234");
    EXPECT_EQ(room_->code, u"1234");
    EXPECT_EQ(errorOf([&] { return object_.get(u"Code"); }), 438);
    EXPECT_EQ(errorOf([&] { return object_.call(u"Code"); }), 438);
}

TEST_F(LocalObjectTest, IsAdvisedOfTheEventsItHas)
{
    int heard = 0;
    auto connection = object_.advise(test::roomEvents, [&](TextView, std::span<Variant>) { ++heard; });
    room_->changes.raise(u"Booked");
    connection.disconnect();
    room_->changes.raise(u"Booked");
    EXPECT_EQ(heard, 1);
}

TEST_F(LocalObjectTest, WithoutASourceIsNotAdvised)
{
    const auto failure = failureOf([&] { static_cast<void>(room_->advise(test::otherEvents, {})); });
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->number(), 459);
    EXPECT_EQ(failure->source(), u"Room");
    EXPECT_EQ(failure->member(), u"OtherEvents");
    EXPECT_FALSE(room_->changes.hasHandlers());
}

TEST_F(LocalObjectTest, MissesAnArgumentThatWasNotGiven)
{
    const auto line = std::source_location::current().line() + 1;
    const auto failure = failureOf([&] { object_.call(u"Book"); });
    expectFailure(failure, 450, line, __FILE__, u"Book");
    EXPECT_EQ(failure->description(), u"Wrong number of arguments or invalid property assignment");
}

TEST_F(LocalObjectTest, MissesAnArgumentThatWasLeftOut)
{
    EXPECT_EQ(errorOf([&] { return object_.call(u"Book", Missing{}); }), 450);
    EXPECT_EQ(object_.call(u"Book", 1, Missing{}).integer32(), 1);
    EXPECT_EQ(object_.call(u"Book", Missing{}, 2).integer32(), 2);
}

TEST_F(LocalObjectTest, MissesTheValueOfAPut)
{
    EXPECT_EQ(errorOf([&] { object_.put(u"Name"); }), 450);
}

TEST_F(LocalObjectTest, TakesArgumentsInTheOrderOfTheCall)
{
    object_.call(u"Book", 1, u"two", Missing{}, 4.0);
    EXPECT_TRUE(room_->booked == (std::vector<Variant>{1, u"two", Missing{}, 4.0}));
}

TEST_F(LocalObjectTest, SeesTheValueBehindAReference)
{
    Variant first{u"a"};
    Variant second{Reference{&first}};
    EXPECT_EQ(object_.call(u"Book", Reference{&second}).text(), u"a");
}

TEST_F(LocalObjectTest, AssignsAnArgumentByReference)
{
    Variant seats{12};
    object_.call(u"Reserve", Reference{&seats});
    EXPECT_EQ(seats.integer32(), 11);
}

TEST_F(LocalObjectTest, LeavesAnArgumentByValueAlone)
{
    std::vector<Variant> arguments{12};
    room_->invoke(u"Reserve", Invocation::Call, arguments);
    EXPECT_EQ(arguments[0].integer32(), 12);
}

TEST(LocalArguments, TellWhichWereGiven)
{
    Variant missing{Missing{}};
    std::vector<Variant> values{1, Missing{}, Reference{&missing}, Variant{}, Null{}};
    const Arguments arguments{values};
    EXPECT_EQ(arguments.count(), 5U);
    EXPECT_TRUE(arguments.has(0));
    EXPECT_FALSE(arguments.has(1));
    EXPECT_FALSE(arguments.has(2));
    EXPECT_TRUE(arguments.has(3));
    EXPECT_TRUE(arguments.has(4));
    EXPECT_FALSE(arguments.has(5));
}

TEST(LocalArguments, FailWith450WhereNoneWasGiven)
{
    std::vector<Variant> values{Missing{}};
    const Arguments arguments{values};
    EXPECT_EQ(errorOf([&] { return arguments[0]; }), 450);
    EXPECT_EQ(errorOf([&] { return arguments[1]; }), 450);
    EXPECT_EQ(errorOf([&] { return arguments.value(); }), 450);
    EXPECT_EQ(errorOf([] { return Arguments{{}}.value(); }), 450);
}

TEST(LocalArguments, EndWithTheValueOfAPut)
{
    std::vector<Variant> values{3, u"key", 2.5};
    EXPECT_EQ(Arguments{values}.value().number(), 2.5);
}

TEST(LocalArguments, IgnoreAnAssignmentBeyondTheirEnd)
{
    std::vector<Variant> values{1};
    Arguments{values}.assign(1, 2);
    EXPECT_TRUE(values == (std::vector<Variant>{1}));
}

} // namespace rf::automation
