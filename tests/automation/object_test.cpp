#include "automation/object.h"

#include "automation/failure_of.h"
#include "automation/room.h"
#include "outlook/recording_dispatch.h"
#include "support/program_ended.h"

#include <gtest/gtest.h>

#include <functional>

namespace rf::automation {

namespace {

using test::expectFailure;
using test::failureOf;
using test::RecordingDispatch;
using test::Room;

/// A transport's proxy of an object that lives elsewhere: two of them may stand for the same one.
class Handle final : public Dispatch {
public:
    explicit Handle(const int& distantObject)
        : distantObject_(distantObject)
    {
    }

    Variant invoke(TextView, Invocation, std::span<Variant>) override { return {}; }
    [[nodiscard]] Connection advise(const EventInterface&, EventHandler) override { return {}; }
    [[nodiscard]] const void* identity() const override { return &distantObject_; }

private:
    const int& distantObject_;
};

/// An object in whose `advise` other events come in, as they do while a transport waits for an answer.
class Distracted final : public Dispatch {
public:
    std::function<void()> whileAdvised;

    Variant invoke(TextView, Invocation, std::span<Variant>) override { return {}; }
    [[nodiscard]] Connection advise(const EventInterface&, EventHandler) override
    {
        whileAdvised();
        return {};
    }
};

} // namespace

class AutomationObject : public testing::Test {
protected:
    std::shared_ptr<RecordingDispatch> recorder_ = std::make_shared<RecordingDispatch>();
    Object recorded_{recorder_};
    std::shared_ptr<Room> room_ = std::make_shared<Room>();
    Object object_{room_};
};

TEST_F(AutomationObject, StandsForNothingUntilItIsGivenOne)
{
    EXPECT_FALSE(Object{});
    EXPECT_FALSE(Object{nullptr});
    EXPECT_TRUE(object_);
    EXPECT_EQ(object_.dispatch(), room_);
}

TEST_F(AutomationObject, IsAValueLikeAnyOther)
{
    const Variant value = object_;
    EXPECT_EQ(value.dispatch(), room_);
    EXPECT_TRUE(Object{value.dispatch()} == object_);
    EXPECT_TRUE(Variant{Object{}}.isObject());
}

TEST_F(AutomationObject, SaysHowItIsUsed)
{
    recorder_->answer = 7;
    EXPECT_EQ(recorded_.get(u"Count").integer32(), 7);
    EXPECT_EQ(recorded_.call(u"Item", 2, u"name").integer32(), 7);
    recorded_.put(u"Name", u"Room 2");
    ASSERT_EQ(recorder_->uses.size(), 3U);
    EXPECT_EQ(recorder_->uses[0].member, u"Count");
    EXPECT_EQ(recorder_->uses[0].kind, Invocation::Get);
    EXPECT_TRUE(recorder_->uses[0].arguments.empty());
    EXPECT_EQ(recorder_->uses[1].kind, Invocation::Call);
    EXPECT_TRUE(recorder_->uses[1].arguments == (std::vector<Variant>{2, u"name"}));
    EXPECT_EQ(recorder_->uses[2].kind, Invocation::Put);
    EXPECT_TRUE(recorder_->uses[2].arguments == (std::vector<Variant>{u"Room 2"}));
}

TEST_F(AutomationObject, PutsTheValueBehindTheOtherArguments)
{
    recorded_.put(u"Item", 3, u"key", 2.5);
    ASSERT_EQ(recorder_->uses.size(), 1U);
    EXPECT_TRUE(recorder_->uses[0].arguments == (std::vector<Variant>{3, u"key", 2.5}));
}

TEST_F(AutomationObject, PassesAnArgumentByReference)
{
    Variant seats{12};
    EXPECT_TRUE(object_.call(u"Reserve", Reference{&seats}).boolean());
    EXPECT_EQ(seats.integer32(), 11);
}

TEST_F(AutomationObject, OfNothingIsError91)
{
    const Object nothing;
    const auto line = std::source_location::current().line();
    expectFailure(failureOf([&] { nothing.get(u"Name"); }), 91, line + 1, __FILE__, u"Name");
    expectFailure(failureOf([&] { nothing.call(u"Book", 1); }), 91, line + 2, __FILE__, u"Book");
    expectFailure(failureOf([&] { nothing.put(u"Name", u"a"); }), 91, line + 3, __FILE__, u"Name");
}

TEST_F(AutomationObject, OfNothingRaisesNoEvents)
{
    const auto line = std::source_location::current().line() + 1;
    const auto failure = failureOf([] { static_cast<void>(Object{}.advise(test::roomEvents, {})); });
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->number(), 91);
    EXPECT_EQ(failure->where().line(), line);
}

TEST_F(AutomationObject, WithoutTheMemberIsError438AtTheCallersLine)
{
    const auto line = std::source_location::current().line() + 1;
    const auto failure = failureOf([&] { object_.get(u"Windows"); });
    expectFailure(failure, 438, line, __FILE__, u"Windows");
    EXPECT_EQ(failure->source(), u"Room");
    EXPECT_EQ(failure->description(), u"Object doesn't support this property or method");
}

TEST_F(AutomationObject, WhoseMemberFailsFailsAtTheCallersLine)
{
    room_->whileVisited = [] { throw RuntimeError{error_number::typeMismatch}; };
    const auto line = std::source_location::current().line() + 1;
    const auto failure = failureOf([&] { object_.call(u"Visit"); });
    expectFailure(failure, 13, line, __FILE__, u"Visit");
    EXPECT_EQ(failure->description(), u"Type mismatch");
}

TEST_F(AutomationObject, KeepsWhatAnErrorTellsOfItsOrigin)
{
    room_->whileVisited = [] { throw Error{-2147467259, {u"The disk is full.", u"Store", u"Save"}}; };
    const auto line = std::source_location::current().line() + 1;
    const auto failure = failureOf([&] { object_.call(u"Visit"); });
    expectFailure(failure, -2147467259, line, __FILE__, u"Save");
    EXPECT_EQ(failure->source(), u"Store");
    EXPECT_EQ(failure->description(), u"The disk is full.");
}

TEST_F(AutomationObject, NamesThePlaceThatIsHandedOn)
{
    const auto place = Where::current();
    const auto failure = failureOf([&] { object_.get({u"Windows", place}); });
    expectFailure(failure, 438, place.line(), __FILE__, u"Windows");
}

TEST_F(AutomationObject, LetsPassWhatIsNoRuntimeError)
{
    room_->whileVisited = [] { throw test::ProgramEnded{}; };
    EXPECT_THROW(object_.call(u"Visit"), test::ProgramEnded);
}

TEST_F(AutomationObject, StaysAliveWhenItIsDroppedDuringItsOwnCall)
{
    const std::weak_ptr<Room> watched = room_;
    bool aliveWithoutItsOwner = false;
    room_->whileVisited = [&, this] {
        object_ = {};
        aliveWithoutItsOwner = !watched.expired();
    };
    room_.reset();
    EXPECT_EQ(object_.call(u"Visit").text(), u"Room 1");
    EXPECT_TRUE(aliveWithoutItsOwner);
    EXPECT_TRUE(watched.expired());
}

TEST_F(AutomationObject, StaysAliveWhenItIsDroppedWhileItIsAdvised)
{
    auto distracted = std::make_shared<Distracted>();
    const std::weak_ptr<Distracted> watched = distracted;
    bool aliveWithoutItsOwner = false;
    Object object{distracted};
    distracted->whileAdvised = [&] {
        object = {};
        aliveWithoutItsOwner = !watched.expired();
    };
    distracted.reset();
    EXPECT_FALSE(object.advise(test::roomEvents, {}));
    EXPECT_TRUE(aliveWithoutItsOwner);
    EXPECT_TRUE(watched.expired());
}

TEST_F(AutomationObject, RaisesItsEventsToWhomItIsAdvised)
{
    Text heard;
    const auto connection
        = object_.advise(test::roomEvents, [&](TextView event, std::span<Variant>) { heard += event; });
    room_->changes.raise(u"Booked");
    EXPECT_TRUE(connection);
    EXPECT_EQ(heard, u"Booked");
}

TEST_F(AutomationObject, WithoutTheSetOfEventsIsError459AtTheCallersLine)
{
    const auto line = std::source_location::current().line() + 1;
    const auto failure = failureOf([&] { static_cast<void>(object_.advise(test::otherEvents, {})); });
    expectFailure(failure, 459, line, __FILE__, u"OtherEvents");
    EXPECT_EQ(failure->source(), u"Room");
}

TEST_F(AutomationObject, EqualsEveryHandleToTheSameObject)
{
    EXPECT_TRUE(object_ == Object{room_});
    EXPECT_FALSE(object_ == recorded_);
    EXPECT_FALSE(object_ == Object{});
    EXPECT_FALSE(Object{} == object_);
    EXPECT_TRUE(Object{} == Object{});
}

TEST_F(AutomationObject, EqualsAnotherProxyOfTheSameObject)
{
    const int first = 0;
    const int second = 0;
    const Object proxy{std::make_shared<Handle>(first)};
    EXPECT_TRUE(proxy == Object{std::make_shared<Handle>(first)});
    EXPECT_FALSE(proxy == Object{std::make_shared<Handle>(second)});
    EXPECT_TRUE(Variant{proxy} == Variant{Object{std::make_shared<Handle>(first)}});
    EXPECT_FALSE(Variant{proxy} == Variant{Object{std::make_shared<Handle>(second)}});
}

} // namespace rf::automation
