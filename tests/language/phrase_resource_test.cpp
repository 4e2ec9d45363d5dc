#include "support/phrase_resource.h"

#include <map>

namespace rf {
namespace {

class PhraseResource : public test::PhraseResourceTest { };

TEST_F(PhraseResource, BeginsWithTheByteOrderMark)
{
    EXPECT_EQ(test::builtInLanguageTable().substr(0, 2), "\xFF\xFE");
    EXPECT_EQ(test::builtInLanguageTable().size() % 2, 0U);
}

TEST_F(PhraseResource, EndsEveryLineWithCarriageReturnAndLineFeed)
{
    EXPECT_TRUE(text.ends_with(lineBreak));
    EXPECT_TRUE(remainder.empty());
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] == u'\n') {
            ASSERT_EQ(text[i - 1], u'\r');
        }
}

TEST_F(PhraseResource, HoldsEveryKeyOnceInTheOrderOfTheTable)
{
    ASSERT_EQ(lines.size(), phraseKeys.size());
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(lines[i][0], phraseKeys[i].key);
}

TEST_F(PhraseResource, HasSeventeenCellsInEveryLine)
{
    for (const auto& cells : lines)
        EXPECT_EQ(cells.size(), test::phraseCells) << toUtf8(cells[0]);
}

TEST_F(PhraseResource, HoldsTheFixedEnglishTextsWordForWord)
{
    const std::map<Text, Text> fixed{
        {u"LNGADD", u"Add"},
        {u"LNGADDNEWCALENDARSQ", u"Would you like to add a new calendar now?"},
        {u"LNGALLVALUESNOTFILLEDOUT", u"All mandatory values are not filled out!"},
        {u"LNGBOOKEDBY", u"Booked by"},
        {u"LNGBOOKINGINFO", u"Booking info"},
        {u"LNGCANCEL", u"Cancel"},
        {u"LNGCHECKPERM", u"Check that you have the appropriate permissions!"},
        {u"LNGCHOOSEFOLDER", u"Choose folder …"},
        {u"LNGCOPIEDAPPOINTMENT", u"This is a copy of a meeting created in the calendar: XXX"},
        {u"LNGCOSTCENTER", u"Cost Center"},
        {u"LNGCOSTOFITEMSORDERED", u"Cost of items ordered"},
        {u"LNGCREATEDAT", u"Created"},
        {u"LNGDOUBLEBOOKING", u"No double-bookings are allowed in this calendar. Please select another time!"},
        {u"LNGERRFAILEDCREATEFOLDER", u"Failed to create a new folder in that location!"},
        {u"LNGERRINAPP", u"There has been an error in this application."},
        {u"LNGERRLINE", u"Error on line"},
        {u"LNGERRSENDREPORT", u"Would you like to send an e-mail with an error report?"},
        {u"LNGERRSYSTEMERROR", u"The system error message was:"},
        {u"LNGERRTHISERROR", u"This error has occured:"},
        {u"LNGFAILEDSAVEINFO", u"Failed to save the folder description"},
        {u"LNGFAILEDSAVESETTINGS", u"Failed to save settings"},
        {u"LNGINVALIDOUTLOOKFOLDER", u"This is not a Roomfold for Outlook folder! Select a valid installation."},
        {u"LNGITEM", u"Item"},
        {u"LNGNOCALENDARS", u"No calendars found!"},
        {u"LNGNOITEMS", u"# of items"},
        {u"LNGO2KNEEDED", u"You need Outlook 2000 or later to run this application."},
        {u"LNGO2KRUNNING", u"If you don't have MS Outlook 2000/2002/2003 running, please start it now!"},
        {u"LNGOK", u"OK"},
        {u"LNGORDERCOMMENT", u"Comment to order"},
        {u"LNGPERSONALCOPY", u"Create copy of new appointments in personal calendar"},
        {u"LNGPLACESETTINGS", u"Place settings"},
        {u"LNGPROJECTS", u"Projects"},
        {u"LNGRATE", u"Rate"},
        {u"LNGRECURRINGPREVENTMESSAGE", u"Recurring appointments are not allowed in this calendar."},
        {u"LNGREQUIREPROJ", u"Project mandatory"},
        {u"LNGSUBROUTINE", u"Sub routine"},
        {u"LNGSUPPLY", u"Supply"},
        {u"LNGUNABLEOPENMAILBOX", u"Unable to open mailbox"},
    };
    std::size_t found = 0;
    for (const test::TablePhrase& phrase : phrases(LanguageColumn::English))
        if (const auto entry = fixed.find(phrase.key); entry != fixed.end()) {
            ++found;
            EXPECT_EQ(phrase.text, entry->second) << phrase;
        }
    EXPECT_EQ(found, fixed.size());
}

} // namespace
} // namespace rf
