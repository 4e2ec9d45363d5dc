#include "recording_dispatch.h"

#include "outlook/application.h"
#include "outlook/appointment_item.h"

#include <gtest/gtest.h>

namespace rf::outlook {

using test::RecordingDispatch;
using test::someObject;

TEST(Proxy, StandsForNothingUntilItIsGivenAnObject)
{
    EXPECT_FALSE(Folder{});
    EXPECT_TRUE(Folder{automation::Object{std::make_shared<RecordingDispatch>()}});
}

TEST(Proxy, ComparesByTheObjectBehindIt)
{
    const auto dispatch = std::make_shared<RecordingDispatch>();
    const Item item{automation::Object{dispatch}};
    EXPECT_TRUE(item == item.as<AppointmentItem>());
    EXPECT_FALSE(item == Item{});
    EXPECT_FALSE(item == Item{automation::Object{std::make_shared<RecordingDispatch>()}});
    EXPECT_TRUE(Folder{} == Items{});
}

TEST(Proxy, IsEmptyWhenAMemberAnswersWithNothing)
{
    const auto dispatch = std::make_shared<RecordingDispatch>();
    EXPECT_FALSE(Application{automation::Object{dispatch}}.activeExplorer());
    EXPECT_FALSE(UserProperties{automation::Object{dispatch}}.find(u"OCID"));
}

TEST(Proxy, FailsWithTheCallersLineWhenItStandsForNothing)
{
    const auto line = __LINE__ + 2;
    try {
        static_cast<void>(Folder{}.name());
        FAIL() << "nothing has a name";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.number(), error_number::objectNotSet);
        EXPECT_EQ(error.where().line(), static_cast<unsigned>(line));
        EXPECT_EQ(error.member(), u"Name");
    }
}

TEST(Proxy, FailsWithTheCallersLineWhenTheObjectFails)
{
    const auto dispatch = std::make_shared<RecordingDispatch>();
    dispatch->failure = -2147221233;
    const Folders folders{automation::Object{dispatch}};
    const auto line = __LINE__ + 2;
    try {
        static_cast<void>(folders.item(u"Room 1"));
        FAIL() << "the failure is lost";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.number(), -2147221233);
        EXPECT_EQ(error.where().line(), static_cast<unsigned>(line));
        EXPECT_STREQ(error.where().file_name(), __FILE__);
        EXPECT_EQ(error.source(), u"Recorder");
    }
}

TEST(Proxy, FailsWithTheCallersLineWhenTheAnswerHasAnotherKind)
{
    const auto dispatch = std::make_shared<RecordingDispatch>();
    dispatch->answer = someObject();
    const Folders folders{automation::Object{dispatch}};
    const auto line = __LINE__ + 2;
    try {
        static_cast<void>(folders.count());
        FAIL() << "an object is no count";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), error_number::typeMismatch);
        EXPECT_EQ(error.where().line(), static_cast<unsigned>(line));
    }
}

TEST(Proxy, TakesTheLineThatAHelperHandsOn)
{
    const auto place = Where::current();
    try {
        static_cast<void>(Folder{}.items(place));
        FAIL() << "nothing has items";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.where().line(), place.line());
    }
}

} // namespace rf::outlook
