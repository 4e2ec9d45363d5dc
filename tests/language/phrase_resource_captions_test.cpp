#include "support/phrase_resource.h"

#include <algorithm>
#include <map>

namespace rf {
namespace {

class PhraseCaptions : public test::PhraseResourceTest {
protected:
    /// Expects no phrase of these keys to be longer than `units`, the English one of `fixedInEnglish` excepted.
    template <class Keys>
    void expectNoneLongerThan(std::size_t units, const Keys& keys, TextView fixedInEnglish = {})
    {
        for (const test::TablePhrase& phrase : phrases()) {
            const bool fixed = phrase.language == LanguageColumn::English && phrase.key == fixedInEnglish;
            if (std::ranges::find(keys, TextView{phrase.key}) != keys.end() && !fixed) {
                EXPECT_LE(phrase.text.size(), units) << phrase;
            }
        }
    }
};

/// On a button; some are also the title of the dialog behind it.
constexpr auto buttonCaptions = std::to_array<TextView>({
    u"LNGADD",
    u"LNGADDCALENDAR",
    u"LNGADDITEM",
    u"LNGADDNEW",
    u"LNGADDSHORTCUT",
    u"LNGADVANCED",
    u"LNGARCHIVE",
    u"LNGARCHIVEANDDELETE",
    u"LNGBOOK",
    u"LNGBOOKINGINFO",
    u"LNGCANCEL",
    u"LNGCHOOSE",
    u"LNGCHOOSECOLOR",
    u"LNGCHOOSECONNECTION",
    u"LNGCOPYTOOTHER",
    u"LNGCREATESHORTCUT",
    u"LNGEDIT",
    u"LNGENDAPP",
    u"LNGIMPORTHTML",
    u"LNGINSTALL",
    u"LNGINSTALLNOW",
    u"LNGLOADEXAMPLEDATA",
    u"LNGMAKEBOOKING",
    u"LNGMAKEMEETING",
    u"LNGMANAGE",
    u"LNGNEW",
    u"LNGNEXT",
    u"LNGOK",
    u"LNGOPENBOOKING",
    u"LNGPICKFOLDER",
    u"LNGPREVIOUS",
    u"LNGPRINT",
    u"LNGPRINTOVERVIEW",
    u"LNGREFRESH",
    u"LNGREMOVE",
    u"LNGREMOVEITEM",
    u"LNGRETRY",
    u"LNGSAVE",
    u"LNGSAVECALENDAREINFO",
    u"LNGSAVECHANGES",
    u"LNGSAVERESOURCEINFO",
    u"LNGSAVESUPPLYLIST",
    u"LNGSEARCH",
    u"LNGSETTINGS",
    u"LNGSHOW",
    u"LNGSHOWALL",
    u"LNGTEST",
    u"LNGUNINSTALL",
});

/// Labels, columns, headings, titles, options, check boxes, links, list entries and units.
constexpr auto labels = std::to_array<TextView>({
    u"LNGADMINMANUAL",
    u"LNGALL",
    u"LNGALWAYSSEARCH",
    u"LNGAPPID",
    u"LNGAPPOINTMENTS",
    u"LNGBODY",
    u"LNGBOOKEDBY",
    u"LNGBUSY",
    u"LNGCALENDAR",
    u"LNGCALENDARS",
    u"LNGCAPTION",
    u"LNGCHOOSEITEMS",
    u"LNGCHOOSEWHERETOCREATE",
    u"LNGCOLOR",
    u"LNGCOSTCENTER",
    u"LNGCOSTOFITEMSORDERED",
    u"LNGCREATEDAT",
    u"LNGCREATENEWACCESSDATABASE",
    u"LNGCREATESQLDATABASE",
    u"LNGDATABASE",
    u"LNGDATE",
    u"LNGDAY",
    u"LNGDEFAUALTVALUE",
    u"LNGDESCRIPTION",
    u"LNGDIRECTMAILBOX",
    u"LNGDURATION",
    u"LNGEMAILTOSUPPLYPERSON",
    u"LNGENDTIME",
    u"LNGENTERDATABASE",
    u"LNGFREETEXT",
    u"LNGFROM",
    u"LNGHDCLIENTTOOLS",
    u"LNGHOURLYRATE",
    u"LNGHOURS",
    u"LNGINFOCALENDAR",
    u"LNGINFORESOURCE",
    u"LNGINPUTNAME",
    u"LNGINTEGRATEDSECURITY",
    u"LNGITEM",
    u"LNGKCFORMAT",
    u"LNGKCWITHORDER",
    u"LNGLIST",
    u"LNGMINUTES",
    u"LNGMONTH",
    u"LNGMULTIPLE",
    u"LNGNAME",
    u"LNGNEWAPPTEMPLATE",
    u"LNGNOITEMS",
    u"LNGNUMBER",
    u"LNGONLYSHOWFREE",
    u"LNGORDER",
    u"LNGORDERCOMMENT",
    u"LNGORDERFROM",
    u"LNGORDERITEM",
    u"LNGORDEROFSUPPLIES",
    u"LNGORDERS",
    u"LNGORGANIZER",
    u"LNGOUTOFOFFICE",
    u"LNGOVERVIEW",
    u"LNGPASSWORD",
    u"LNGPERSONALCOPY",
    u"LNGPLACESETTINGS",
    u"LNGPREVENTRECURRING",
    u"LNGPROJ",
    u"LNGPROJECT",
    u"LNGPROJECTS",
    u"LNGPUBLICFOLDER",
    u"LNGQUARTER",
    u"LNGRATE",
    u"LNGREMOVEOLDMEETINGS",
    u"LNGREQUIREPROJ",
    u"LNGRESULT",
    u"LNGSEATS",
    u"LNGSELECTDATABASECONNECTION",
    u"LNGSELECTEXISTINGSQLDB",
    u"LNGSELECTION",
    u"LNGSELECTLANGUAGE",
    u"LNGSENDMEEMAIL",
    u"LNGSERVER",
    u"LNGSTARTTIME",
    u"LNGSTOPDOUBLES",
    u"LNGSUBJECT",
    u"LNGSUPPLY",
    u"LNGSUPPLYID",
    u"LNGSUPPLYLIST",
    u"LNGTENTATIVE",
    u"LNGTIME",
    u"LNGTOTALCOST",
    u"LNGUSERMANUAL",
    u"LNGUSERNAME",
    u"LNGWEEK",
    u"LNGWEEKDAY",
    u"LNGWORKWEEK",
    u"LNGWYSIWYG",
    u"LNGYEAR",
    u"LNGYEARDEF",
});

/// Messages, questions, error reports, tooltips and bodies of text, which get the room that they take.
constexpr auto runningTexts = std::to_array<TextView>({
    u"LNGADDNEWCALENDARSQ",
    u"LNGALLVALUESNOTFILLEDOUT",
    u"LNGARCHIVINGCOMPLETED",
    u"LNGBOLD",
    u"LNGCHECKPERM",
    u"LNGCHOOSEFOLDER",
    u"LNGCONNECTIONFAILED",
    u"LNGCONNECTIONSUCCEEDED",
    u"LNGCOPIEDAPPOINTMENT",
    u"LNGCOPY",
    u"LNGCUT",
    u"LNGDOUBLEBOOKING",
    u"LNGERRCONNECTIONFAILED",
    u"LNGERRFAILEDCREATEFOLDER",
    u"LNGERRFOLDERNOTFOUND",
    u"LNGERRINAPP",
    u"LNGERRLINE",
    u"LNGERROREXECUTE",
    u"LNGERRREMOVEFOLDER",
    u"LNGERRSENDREPORT",
    u"LNGERRSYSTEMERROR",
    u"LNGERRTHISERROR",
    u"LNGFAILEDCREATEAPPOINTMENT",
    u"LNGFAILEDSAVEINFO",
    u"LNGFAILEDSAVESETTINGS",
    u"LNGFAILEDTODELETEAPP",
    u"LNGHYPERLINK",
    u"LNGINSERTIMAGE",
    u"LNGINSTALLCOMPLETE",
    u"LNGINSTALLPROBLEMS",
    u"LNGINVALIDOUTLOOKFOLDER",
    u"LNGITALIC",
    u"LNGJUSTIFYCENTER",
    u"LNGJUSTIFYLEFT",
    u"LNGJUSTIFYRIGHT",
    u"LNGNOCALENDARS",
    u"LNGNORESOURCESFOUND",
    u"LNGNOTHINGSEL",
    u"LNGNOTPUBLICFOLDEROWNER",
    u"LNGO2KNEEDED",
    u"LNGO2KRUNNING",
    u"LNGORGANIZERTT",
    u"LNGPASTE",
    u"LNGREALLYREMOVE",
    u"LNGRECURRINGPREVENTMESSAGE",
    u"LNGREDO",
    u"LNGRESTARTOUTLOOK",
    u"LNGSETTINGSTT",
    u"LNGSUBROUTINE",
    u"LNGSUCCESS",
    u"LNGSUCCESSADDFOLDER",
    u"LNGSUCCESSREMOVEFOLDER",
    u"LNGSUCCESSSAVEINFO",
    u"LNGUNABLEOPENMAILBOX",
    u"LNGUNDERLINE",
    u"LNGUNDO",
    u"LNGUNINSTALLDESC2",
    u"LNGUNINSTALLFAILURE",
    u"LNGUNINSTALLSUCCESS",
    u"LNGWRONGFOLDERTYPE",
});

TEST_F(PhraseCaptions, HaveOneUseForEveryKey)
{
    std::map<TextView, int> uses;
    for (const PhraseKey& entry : phraseKeys)
        uses[entry.key] = 0;
    const auto count = [&](const auto& keys) {
        for (const TextView key : keys)
            ++uses[key];
    };
    count(buttonCaptions);
    count(labels);
    count(runningTexts);
    EXPECT_EQ(uses.size(), phraseKeys.size());
    for (const auto& [key, number] : uses)
        EXPECT_EQ(number, 1) << toUtf8(key);
}

TEST_F(PhraseCaptions, OfAButtonHaveAtMostTwentyFourCharacters) { expectNoneLongerThan(24, buttonCaptions); }

// The English caption of the personal copy is fixed, and the settings page gives it the whole line.
TEST_F(PhraseCaptions, OfALabelHaveAtMostFortyCharacters) { expectNoneLongerThan(40, labels, u"LNGPERSONALCOPY"); }

} // namespace
} // namespace rf
