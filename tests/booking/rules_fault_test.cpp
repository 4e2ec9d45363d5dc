#include "booking/app_copy.h"

#include "booking/rules_fixture.h"
#include "host/inspectors.h"

#include <set>

namespace rf {
namespace {

using test::at;
using test::Fault;
using test::FaultyDispatch;
using test::ProgramEnded;

/// Every call that a handler makes fails once, each in a round of its own that begins anew.
class RulesUnderFaults : public test::RulesTest {
protected:
    /// Puts the fault between the program and the host.
    template <class Face>
    [[nodiscard]] Face faulty(const Face& face) const
    {
        return Face{FaultyDispatch::wrap(face.object(), fault)};
    }

    /// Runs a step with the host's faults, on the item and on all else that the program reaches. What the program
    /// reports ends it, and the person starts it again.
    template <class Step>
    void run(Step&& step)
    {
        const auto application = session->ouaApp;
        session->ouaApp = faulty(application);
        const auto nameSpace = session->ounNameSpace;
        session->ounNameSpace = faulty(nameSpace);
        toolkit.messages.clear();
        reported = false;
        try {
            step();
        } catch (const ProgramEnded&) {
            reported = true;
        }
        EXPECT_EQ(toolkit.messages.size(), reported ? 1U : 0U);
        if (reported) {
            attach(application);
        } else {
            session->ouaApp = application;
            session->ounNameSpace = nameSpace;
        }
        copyBoth();
    }

    /// `round(use)` for every use that a handler makes.
    template <class Round>
    void everyUse(Round&& round)
    {
        *fault = {};
        begin();
        copyBoth();
        round(0);
        const int uses = fault->uses;
        ASSERT_GT(uses, 0);
        for (int use = 1; use <= uses; ++use) {
            SCOPED_TRACE("the use " + std::to_string(use) + " of " + std::to_string(uses));
            begin();
            copyBoth();
            *fault = {.uses = 0, .failingUse = use, .instead = interruption, .member = {}};
            round(use);
        }
    }

    void copyBoth() const
    {
        settings().PersonalCopy = true;
        copyToMaster(all);
    }
    [[nodiscard]] std::size_t windowCount() const { return host->model().inspectors().count(); }
    [[nodiscard]] outlook::AppointmentItem itemOf(const Text& subject) const
    {
        return folder(room).items().item(subject).as<outlook::AppointmentItem>();
    }

    std::shared_ptr<Fault> fault = std::make_shared<Fault>();
    std::function<void()> interruption;
    bool reported = false;
};

// Between the deletion of the item that came and the properties of its replacement the booking is in nobody's hands:
// the deletion comes first so that of several programs one acts, and a replacement without the properties is given up.
// Whatever fails before leaves the item, and whatever fails behind leaves the booking stored or in a window.
TEST_F(RulesUnderFaults, LoseADroppedItemOnlyBetweenItsDeletionAndThePropertiesOfItsReplacement)
{
    std::vector<Text> lostAt;
    everyUse([&](int) {
        const auto item = saved(u"Dropped", at(9), 60);
        cAppItems& watcher = watch();
        run([&] { watcher.ouisItems_ItemAdd(faulty(item)); });
        const auto bookings = stored(room).size();
        EXPECT_LE(bookings + windowCount(), 1U);
        EXPECT_LE(stored(own).size(), 1U);
        EXPECT_LE(stored(all).size(), 1U);
        if (bookings + windowCount() == 0)
            lostAt.push_back(fault->member);
    });
    EXPECT_EQ(lostAt,
        (std::vector<Text>{
            u"Items", u"Add", u"UserProperties", u"Add", u"Add", u"Add", u"Add", u"Add", u"Add", u"Add"}));
}

TEST_F(RulesUnderFaults, MakeOneBookingOfADroppedItemWhenTheEventComesAgain)
{
    everyUse([&](int) {
        const auto item = saved(u"Dropped", at(9), 60);
        cAppItems& watcher = watch();
        run([&] { watcher.ouisItems_ItemAdd(faulty(item)); });
        if (stored(room).empty())
            return;
        watch().ouisItems_ItemAdd(folder(room).items().item(1));
        const auto booking = only(room);
        EXPECT_EQ(booking.start, at(9));
        EXPECT_EQ(booking.end, at(10));
        EXPECT_LE(stored(own).size(), 1U);
        EXPECT_LE(stored(all).size(), 1U);
    });
}

// A refused item is shown to the person; a host that cannot show it leaves nothing to go on with.
TEST_F(RulesUnderFaults, LoseARefusedDroppedItemOnlyBehindItsDeletion)
{
    std::set<Text> lostAt;
    everyUse([&](int) {
        settings().NoRecurring = settings().NoDoubles = true;
        booked(u"First", at(9), 60);
        const auto item = saved(u"Dropped", at(9), 60);
        cAppItems& watcher = watch();
        run([&] { watcher.ouisItems_ItemAdd(faulty(item)); });
        ASSERT_LE(stored(room).size() + windowCount(), 2U);
        if (stored(room).size() + windowCount() == 1)
            lostAt.insert(fault->member);
    });
    EXPECT_EQ(lostAt, (std::set<Text>{u"Items", u"Add", u"UserProperties", u"Display"}));
}

TEST_F(RulesUnderFaults, KeepAMovedBookingAndItsTime)
{
    everyUse([&](int) {
        auto item = booked(u"Board", at(9), 60);
        item.setStart(at(14));
        item.save();
        cAppItems& watcher = watch();
        run([&] { watcher.ouisItems_ItemChange(faulty(item)); });
        EXPECT_EQ(only(room).start, at(14));
        EXPECT_EQ(only(room).end, at(15));
        // The next event finds no trace of the fault.
        watch().ouisItems_ItemChange(itemOf(u"Board"));
        EXPECT_EQ(property(only(room), u"OriginalStartDate"), automation::Variant{at(14)});
        EXPECT_EQ(only(own).start, at(14));
        EXPECT_EQ(only(all).start, at(14));
    });
}

// Where the search for a copy fails it counts as not found: a calendar that never had a copy fails to be searched too,
// and the two cannot be told apart. The copy is doubled then, the booking never.
TEST_F(RulesUnderFaults, DoubleACopyOnlyWhereTheSearchForItFails)
{
    everyUse([&](int) {
        auto item = booked(u"Board", at(9), 60);
        watch().ouisItems_ItemChange(item);
        const int usesBefore = fault->uses;
        item.setStart(at(14));
        item.save();
        cAppItems& watcher = watch();
        run([&] { watcher.ouisItems_ItemChange(faulty(item)); });
        EXPECT_EQ(usesBefore, 0);
        EXPECT_EQ(stored(room).size(), 1U);
        const std::size_t copies = stored(own).size() + stored(all).size();
        EXPECT_EQ(copies, fault->member == u"Find" && !reported ? copies : 2U) << toUtf8(fault->member);
        EXPECT_LE(copies, 3U);
    });
}

TEST_F(RulesUnderFaults, NeverLoseABookingWhoseMoveIsRefused)
{
    everyUse([&](int) {
        settings().ProjectMandatory = true;
        auto item = booked(u"Board", at(9), 60);
        item.setStart(at(14));
        item.setDuration(30);
        item.save();
        cAppItems& watcher = watch();
        run([&] { watcher.ouisItems_ItemChange(faulty(item)); });
        settings().ProjectMandatory = true;
        EXPECT_EQ(stored(room).size(), 1U);
        watch().ouisItems_ItemChange(itemOf(u"Board"));
        EXPECT_EQ(only(room).start, at(9));
        EXPECT_EQ(only(room).end, at(10));
    });
}

TEST_F(RulesUnderFaults, LeaveAFailedCopyUnsavedAndMakeItOnceTheNextTime)
{
    everyUse([&](int use) {
        const auto item = booked(u"Board", at(9), 60);
        const auto target = folder(own);
        run([&] { subFixAppCopy(*session, faulty(item), u"link", u"Room 1", faulty(target), true); });
        // A search that fails is none to report.
        EXPECT_TRUE(reported || use == 0 || fault->member == u"Find") << toUtf8(fault->member);
        EXPECT_EQ(stored(room).size(), 1U);
        EXPECT_EQ(stored(own).size(), reported ? 0U : 1U);
        subFixAppCopy(*session, item, u"link", u"Room 1", folder(own), true);
        EXPECT_EQ(only(own).subject, u"Board");
    });
}

/// Every rule and both copies. More calls than these would ask for something twice.
class CallsOfTheRules : public RulesUnderFaults {
protected:
    CallsOfTheRules()
    {
        copyBoth();
        settings().NoDoubles = settings().NoRecurring = settings().ProjectMandatory = true;
        settings().Projects.FromString(u"Alpha;255\r\n");
    }
};

TEST_F(CallsOfTheRules, OfAnAddedItemAreNoMoreThanItNeeds)
{
    const auto item = newAppointment(u"Dropped", at(9), 60);
    item.setCategories(u"Alpha");
    item.save();
    cAppItems& watcher = watch();
    run([&] { watcher.ouisItems_ItemAdd(faulty(item)); });
    EXPECT_EQ(stored(all).size(), 1U);
    // One of them asks whether the link identifier is free.
    EXPECT_EQ(fault->uses, 71);
}

TEST_F(CallsOfTheRules, OfAnItemThatDidNotMoveAreNoMoreThanItNeeds)
{
    const auto item = booked(u"Board", at(9), 60);
    item.setCategories(u"Alpha");
    item.save();
    cAppItems& watcher = watch();
    watcher.ouisItems_ItemChange(item);
    EXPECT_EQ(stored(all).size(), 1U);
    run([&] { watcher.ouisItems_ItemChange(faulty(item)); });
    EXPECT_EQ(fault->uses, 45);
}

/// The same calls, each with the item deleted by somebody else just before it.
class RulesUnderDeletion : public RulesUnderFaults {
protected:
    /// The copies of the person's own calendar, in place of a booking.
    void deletesCopiesAtUse()
    {
        interruption = [this] {
            for (const auto& copy : stored(own))
                store->remove(copy.id);
        };
    }
    void deletesAtUse(const Text& subject)
    {
        interruption = [this, subject] {
            for (const auto& item : stored(room))
                if (item.subject == subject && property(item, u"SafeOrganizer").isEmpty() == isForeign)
                    store->remove(item.id);
        };
    }

    bool isForeign = false;
};

TEST_F(RulesUnderDeletion, MakeOneBookingOfADroppedItemOrNone)
{
    isForeign = true;
    deletesAtUse(u"Dropped");
    everyUse([&](int) {
        const auto item = saved(u"Dropped", at(9), 60);
        cAppItems& watcher = watch();
        run([&] { watcher.ouisItems_ItemAdd(faulty(item)); });
        EXPECT_FALSE(reported);
        EXPECT_LE(stored(room).size(), 1U);
        EXPECT_EQ(windowCount(), 0U);
        EXPECT_EQ(stored(own).size(), stored(room).size());
        for (const auto& booking : stored(room))
            EXPECT_FALSE(property(booking, u"SafeOrganizer").isEmpty());
    });
}

TEST_F(RulesUnderDeletion, BringNoDeletedBookingBack)
{
    deletesAtUse(u"Board");
    everyUse([&](int use) {
        auto item = booked(u"Board", at(9), 60);
        item.setStart(at(14));
        item.save();
        cAppItems& watcher = watch();
        run([&] { watcher.ouisItems_ItemChange(faulty(item)); });
        EXPECT_FALSE(reported);
        EXPECT_EQ(stored(room).size(), use == 0 ? 1U : 0U);
    });
}

TEST_F(RulesUnderDeletion, MakeACopyThatIsThrownAwayMeanwhileOnceTheNextTime)
{
    deletesCopiesAtUse();
    everyUse([&](int) {
        const auto item = booked(u"Board", at(9), 60);
        subFixAppCopy(*session, item, u"link", u"Room 1", folder(own), true);
        run([&] { subFixAppCopy(*session, faulty(item), u"link", u"Room 1", faulty(folder(own)), true); });
        // What cannot be saved any more is reported; what was thrown away before it was found is made anew.
        EXPECT_EQ(stored(own).size(), reported ? 0U : 1U);
        EXPECT_EQ(stored(room).size(), 1U);
        subFixAppCopy(*session, item, u"link", u"Room 1", folder(own), true);
        EXPECT_EQ(only(own).subject, u"Board");
    });
}

} // namespace
} // namespace rf
