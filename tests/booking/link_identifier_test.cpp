#include "booking/link_identifier.h"

#include "booking/booking_fixture.h"
#include "support/session_fixture.h"

namespace rf {
namespace {

class LinkIdentifier : public test::SessionTest { };

TEST_F(LinkIdentifier, IsTheUnpaddedTimeAndTheUser)
{
    Session session{services()};
    session.strUserName = u"Jane Smith";
    EXPECT_EQ(fncNewOCID(session), u"2007-3-5:9.4.17_Jane Smith");
    clock.set(Date::fromFields({2024, 12, 31, 23, 59, 58}));
    EXPECT_EQ(fncNewOCID(session), u"2024-12-31:23.59.58_Jane Smith");
}

TEST_F(LinkIdentifier, AsksTheMailboxForANameThatIsNotKnownYet)
{
    runVisibleHost();
    Session session{services()};
    EXPECT_EQ(fncNewOCID(session), u"2007-3-5:9.4.17_Jane Doe");
}

TEST_F(LinkIdentifier, IsNeverGivenTwice)
{
    Session session{services()};
    session.strUserName = u"Jane Smith";
    clock.set(Date::fromFields({2007, 12, 31, 23, 59, 58}));
    EXPECT_EQ(fncNewOCID(session), u"2007-12-31:23.59.58_Jane Smith");
    EXPECT_EQ(fncNewOCID(session), u"2007-12-31:23.59.59_Jane Smith");
    EXPECT_EQ(fncNewOCID(session), u"2008-1-1:0.0.0_Jane Smith");
    clock.set(Date::fromFields({2008, 1, 1, 0, 0, 9}));
    EXPECT_EQ(fncNewOCID(session), u"2008-1-1:0.0.9_Jane Smith");
}

class LinkIdentifierBesideCopies : public test::BookingTest {
protected:
    void addCopy(host::FolderId where, const Text& ocid)
    {
        const auto copy = newAppointment(u"Copy", test::at(9), 60, where);
        copy.userProperties().add(u"OCID", outlook::UserPropertyType::Text, true).setValue(ocid);
        copy.save();
    }
};

TEST_F(LinkIdentifierBesideCopies, LeavesOutThoseOfAnInstanceBefore)
{
    session->objSettings->PersonalCopy = true;
    clock.set(Date::fromFields({2007, 3, 5, 9, 4, 17}));
    addCopy(own, u"2007-3-5:9.4.17_Jane Doe");
    addCopy(own, u"2007-3-5:9.4.18_Jane Doe");
    addCopy(own, u"2007-3-5:9.4.19_John Doe");
    EXPECT_EQ(fncNewOCID(*session), u"2007-3-5:9.4.19_Jane Doe");
}

/// A clock that goes on by a month, a day, an hour, a minute and a second each time it is read.
class RunningClock final : public Clock {
public:
    [[nodiscard]] Date now() const override
    {
        const int reading = ++readings;
        return Date::fromFields({2000 + reading, reading, reading, reading, reading, reading});
    }
    mutable int readings = 0;
};

TEST_F(LinkIdentifier, TakesEachFieldFromAReadingOfItsOwn)
{
    const RunningClock running;
    Session session{{*regional, running, classes, system, processes, toolkit}};
    session.strUserName = u"Jane Doe";
    EXPECT_EQ(fncNewOCID(session), u"2001-2-3:4.5.6_Jane Doe");
    EXPECT_EQ(running.readings, 6);
}

} // namespace
} // namespace rf
