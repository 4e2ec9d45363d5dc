#include "booking/app_copy.h"

#include "booking/rules_fixture.h"
#include "support/texts.h"

namespace rf {
namespace {

using test::at;
using test::ProgramEnded;

constexpr std::size_t languageColumns = 16;

class AppCopy : public test::RulesTest {
protected:
    /// Starts the program anew with one phrase for everything, the body of a copy included.
    void loadPhrase(TextView phrase)
    {
        Text table;
        for (const PhraseKey& entry : phraseKeys) {
            table += entry.key;
            for (std::size_t column = 0; column < languageColumns; ++column)
                table += u"\t" + Text{phrase};
            table += lineBreak;
        }
        system.languageTable = test::utf16LittleEndian(table);
        attach(session->ouaApp);
    }
    void copyToOwn(const outlook::AppointmentItem& item, TextView ocid = u"2024-2-3:8.0.0_Jane Doe") const
    {
        subFixAppCopy(*session, item, ocid, u"Room 1", folder(own), true);
    }
    void copyToAll(const outlook::AppointmentItem& item, TextView ocid = u"2024-2-3:8.0.0_Jane Doe") const
    {
        subFixAppCopy(*session, item, ocid, u"Room 1", folder(all), false);
    }
    [[nodiscard]] outlook::AppointmentItem board() const
    {
        auto item = newAppointment(u"Board", at(9), 90);
        item.setCategories(u"Alpha");
        item.setBody(u"Confidential");
        item.save();
        return item;
    }
};

TEST_F(AppCopy, OfAPersonLooksAsTheBookingAndTellsWhereItComesFrom)
{
    copyToOwn(board());
    const auto copy = only(own);
    EXPECT_EQ(copy.subject, u"Board");
    EXPECT_EQ(copy.categories, u"Alpha");
    EXPECT_EQ(copy.start, at(9));
    EXPECT_EQ(copy.end, at(10, 30));
    EXPECT_EQ(copy.location, u"Room 1");
    EXPECT_EQ(copy.body, u"This is a copy of a meeting created in the calendar: Room 1");
    EXPECT_EQ(property(copy, u"OCID"), automation::Variant{u"2024-2-3:8.0.0_Jane Doe"});
}

TEST_F(AppCopy, OfTheMasterCalendarBearsTheMarksOfTheProgram)
{
    copyToAll(board());
    const auto copy = only(all);
    EXPECT_EQ(copy.subject, u"FR: Board");
    EXPECT_EQ(copy.categories, u"Roomfold");
    EXPECT_EQ(copy.start, at(9));
    EXPECT_EQ(copy.location, u"Room 1");
    EXPECT_EQ(property(copy, u"OCID"), automation::Variant{u"2024-2-3:8.0.0_Jane Doe"});
}

TEST_F(AppCopy, IsOneHoweverOftenTheBookingIsSaved)
{
    const auto item = board();
    for (int save = 0; save < 3; ++save)
        copyToOwn(item);
    EXPECT_EQ(stored(own).size(), 1U);
}

TEST_F(AppCopy, FollowsTheBookingAndForgetsWhatWasChangedInIt)
{
    const auto item = board();
    copyToOwn(item);
    const auto copy = folder(own).items().item(1).as<outlook::AppointmentItem>();
    copy.setSubject(u"Changed by hand");
    copy.setLocation(u"Elsewhere");
    copy.save();
    item.setStart(at(14));
    item.setDuration(30);
    item.save();
    copyToOwn(item);
    const auto refreshed = only(own);
    EXPECT_EQ(refreshed.subject, u"Board");
    EXPECT_EQ(refreshed.location, u"Room 1");
    EXPECT_EQ(refreshed.start, at(14));
    EXPECT_EQ(refreshed.end, at(14, 30));
}

TEST_F(AppCopy, IsNeverCarriedBack)
{
    const auto item = board();
    copyToOwn(item);
    EXPECT_EQ(only(room).body, u"Confidential");
    EXPECT_EQ(property(only(room), u"OCID"), automation::Variant{});
}

TEST_F(AppCopy, IsSearchableWhereItLies)
{
    copyToOwn(board());
    EXPECT_TRUE(folder(own).items().find(u"[OCID] = '2024-2-3:8.0.0_Jane Doe'"));
    // Nobody searches the resource calendar by it.
    EXPECT_TRUE(store->folders()[1].fields.empty());
}

TEST_F(AppCopy, WithoutALinkIsMadeAnewEachTime)
{
    const auto item = board();
    copyToOwn(item, {});
    copyToOwn(item, {});
    EXPECT_EQ(stored(own).size(), 2U);
}

TEST_F(AppCopy, WithoutALinkLeavesTheAppointmentsOfThePersonAlone)
{
    saved(u"Dentist", at(9), 30, own);
    copyToOwn(board());
    copyToOwn(board(), {});
    const auto items = stored(own);
    ASSERT_EQ(items.size(), 3U);
    EXPECT_EQ(items[0].subject, u"Dentist");
    EXPECT_EQ(items[0].location, u"");
}

TEST_F(AppCopy, IsOneForAPersonWithAnApostropheInTheName)
{
    const auto item = board();
    copyToOwn(item, u"2024-2-3:8.0.0_Jane O'Neil");
    copyToOwn(item, u"2024-2-3:8.0.0_Jane O'Neil");
    EXPECT_EQ(property(only(own), u"OCID"), automation::Variant{u"2024-2-3:8.0.0_Jane O'Neil"});
}

TEST_F(AppCopy, IsNotMadeOfACalendarIntoItself)
{
    const auto item = board();
    subFixAppCopy(*session, item, u"link", u"Room 1", folder(room), false);
    EXPECT_EQ(stored(room).size(), 1U);
}

TEST_F(AppCopy, IsNotMadeWithoutATarget)
{
    subFixAppCopy(*session, board(), u"link", u"Room 1", outlook::Folder{}, true);
    EXPECT_TRUE(stored(own).empty());
    EXPECT_EQ(session->trace.fncLastAction(),
        u"Checking if there already is an appointment in the personal calendar which is a copy of this one!");
}

TEST_F(AppCopy, AnnouncesItsSteps)
{
    copyToOwn(board());
    EXPECT_EQ(session->trace.fncLastAction(), u"Setting copy properties");
}

TEST_F(AppCopy, TellsEveryPlaceOfThePhraseWhereItComesFrom)
{
    loadPhrase(u"XXX, xxx and XXX");
    copyToOwn(board());
    EXPECT_EQ(only(own).body, u"Room 1, xxx and Room 1");
}

TEST_F(AppCopy, HasThePhraseItselfWhereThatNamesNoCalendar)
{
    loadPhrase(u"A copy.");
    copyToOwn(board());
    EXPECT_EQ(only(own).body, u"A copy.");
}

TEST_F(AppCopy, IsMadeInBothCalendarsWhenTheSettingsSaySo)
{
    settings().PersonalCopy = true;
    copyToMaster(all);
    BookingItem booking{board()};
    CopyCalendars{*session}.copyBooking(booking, u"link", u"Room 1");
    EXPECT_EQ(only(own).subject, u"Board");
    EXPECT_EQ(only(all).subject, u"FR: Board");
    EXPECT_EQ(only(all).categories, u"Roomfold");
}

TEST_F(AppCopy, IsMadeInOneCalendarWhenTheSettingsSaySo)
{
    BookingItem booking{board()};
    CopyCalendars{*session}.copyBooking(booking, u"link", u"Room 1");
    EXPECT_TRUE(stored(own).empty());
    settings().PersonalCopy = true;
    CopyCalendars{*session}.copyBooking(booking, u"link", u"Room 1");
    EXPECT_EQ(stored(own).size(), 1U);
    EXPECT_TRUE(stored(all).empty());
}

TEST_F(AppCopy, IsNotMadeInAMasterCalendarThatIsTheBookingsOwn)
{
    copyToMaster(room);
    BookingItem booking{board()};
    CopyCalendars{*session}.copyBooking(booking, u"link", u"Room 1");
    EXPECT_EQ(stored(room).size(), 1U);
}

TEST_F(AppCopy, IsNotMadeInAMasterCalendarThatIsGone)
{
    copyToMaster(static_cast<host::FolderId>(4711));
    BookingItem booking{board()};
    EXPECT_NO_THROW(CopyCalendars{*session}.copyBooking(booking, u"link", u"Room 1"));
}

TEST_F(AppCopy, ThatFailsIsReportedUnderItsLabelAndStaysUnsaved)
{
    const auto fault = std::make_shared<test::Fault>();
    const outlook::Folder target{test::FaultyDispatch::wrap(folder(own).object(), fault)};
    const auto item = board();
    subFixAppCopy(*session, item, u"link", u"Room 1", target, true);
    const int last = fault->uses;
    EXPECT_EQ(stored(own).size(), 1U);
    fault->uses = 0;
    fault->failingUse = last - 8;
    EXPECT_THROW(subFixAppCopy(*session, item, u"another", u"Room 1", target, true), ProgramEnded);
    EXPECT_EQ(stored(own).size(), 1U);
    ASSERT_EQ(toolkit.messages.size(), 1U);
}

} // namespace
} // namespace rf
