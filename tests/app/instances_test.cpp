#include "app/instances.h"
#include "support/session_fixture.h"

namespace rf {
namespace {

class Instances : public test::SessionTest {
protected:
    Session session{services()};
};

TEST_F(Instances, HaveArgumentsWhenTheTrimmedCommandLineHoldsABlank)
{
    for (const auto& [arguments, expected] : std::initializer_list<std::pair<TextView, bool>>{{u"", false},
             {u"   ", false}, {u"1", false}, {u" 1 ", false}, {u"1 page.html", true}, {u"1\tpage", false}}) {
        system.arguments = arguments;
        EXPECT_EQ(fncHasArguments(session), expected) << toUtf8(arguments);
    }
}

TEST_F(Instances, AreFoundByTheUpperCasedNameOfTheExecutable)
{
    processes.running = {{4, u"explorer.exe"}, {9, u"rfbookinginfo.EXE"}, {12, u"RFBookingInfo.exe"}};
    EXPECT_EQ(GetRFProcess(session), 9U);
}

TEST_F(Instances, AreFoundByTheNameUpToItsFirstNul)
{
    processes.running = {{9, Text{u"RFBookingInfo.exe\0rest", 22}}};
    EXPECT_EQ(GetRFProcess(session), 9U);
}

TEST_F(Instances, AreNotFoundByAnotherName)
{
    processes.running = {{9, u"RFBookingInfo.exe.bak"}, {10, u"xRFBookingInfo.exe"}};
    EXPECT_EQ(GetRFProcess(session), 0U);
}

TEST_F(Instances, AreSoughtWithEventsHandledBehindEachEntry)
{
    processes.running = {{1, u"a"}, {2, u"b"}, {3, u"RFBookingInfo.exe"}, {4, u"c"}};
    static_cast<void>(GetRFProcess(session));
    EXPECT_EQ(toolkit.yields, 3);
}

TEST_F(Instances, AreKilledOneAtATime)
{
    processes.running = {{3, u"RFBookingInfo.exe"}, {5, u"RFBookingInfo.exe"}};
    KillRFProcess(session);
    EXPECT_EQ(processes.terminated, (std::vector<std::uint32_t>{3}));
    EXPECT_EQ(toolkit.yields, 2);
}

TEST_F(Instances, AreNotKilledWhereThereIsNone)
{
    KillRFProcess(session);
    EXPECT_TRUE(processes.terminated.empty());
    EXPECT_EQ(toolkit.yields, 1);
}

} // namespace
} // namespace rf
