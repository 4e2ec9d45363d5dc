#pragma once

#include "basic/text.h"

#include <array>

/// Every key of the phrase table, in the order of the table.
#define RF_PHRASE_KEYS(KEY)                                                                                            \
    KEY(LNGADD)                                                                                                        \
    KEY(LNGADDCALENDAR)                                                                                                \
    KEY(LNGADDITEM)                                                                                                    \
    KEY(LNGADDNEW)                                                                                                     \
    KEY(LNGADDNEWCALENDARSQ)                                                                                           \
    KEY(LNGADDSHORTCUT)                                                                                                \
    KEY(LNGADMINMANUAL)                                                                                                \
    KEY(LNGADVANCED)                                                                                                   \
    KEY(LNGALL)                                                                                                        \
    KEY(LNGALLVALUESNOTFILLEDOUT)                                                                                      \
    KEY(LNGALWAYSSEARCH)                                                                                               \
    KEY(LNGAPPID)                                                                                                      \
    KEY(LNGAPPOINTMENTS)                                                                                               \
    KEY(LNGARCHIVE)                                                                                                    \
    KEY(LNGARCHIVEANDDELETE)                                                                                           \
    KEY(LNGARCHIVINGCOMPLETED)                                                                                         \
    KEY(LNGBODY)                                                                                                       \
    KEY(LNGBOLD)                                                                                                       \
    KEY(LNGBOOK)                                                                                                       \
    KEY(LNGBOOKEDBY)                                                                                                   \
    KEY(LNGBOOKINGINFO)                                                                                                \
    KEY(LNGBUSY)                                                                                                       \
    KEY(LNGCALENDAR)                                                                                                   \
    KEY(LNGCALENDARS)                                                                                                  \
    KEY(LNGCANCEL)                                                                                                     \
    KEY(LNGCAPTION)                                                                                                    \
    KEY(LNGCHECKPERM)                                                                                                  \
    KEY(LNGCHOOSE)                                                                                                     \
    KEY(LNGCHOOSECOLOR)                                                                                                \
    KEY(LNGCHOOSECONNECTION)                                                                                           \
    KEY(LNGCHOOSEFOLDER)                                                                                               \
    KEY(LNGCHOOSEITEMS)                                                                                                \
    KEY(LNGCHOOSEWHERETOCREATE)                                                                                        \
    KEY(LNGCOLOR)                                                                                                      \
    KEY(LNGCONNECTIONFAILED)                                                                                           \
    KEY(LNGCONNECTIONSUCCEEDED)                                                                                        \
    KEY(LNGCOPIEDAPPOINTMENT)                                                                                          \
    KEY(LNGCOPY)                                                                                                       \
    KEY(LNGCOPYTOOTHER)                                                                                                \
    KEY(LNGCOSTCENTER)                                                                                                 \
    KEY(LNGCOSTOFITEMSORDERED)                                                                                         \
    KEY(LNGCREATEDAT)                                                                                                  \
    KEY(LNGCREATENEWACCESSDATABASE)                                                                                    \
    KEY(LNGCREATESHORTCUT)                                                                                             \
    KEY(LNGCREATESQLDATABASE)                                                                                          \
    KEY(LNGCUT)                                                                                                        \
    KEY(LNGDATABASE)                                                                                                   \
    KEY(LNGDATE)                                                                                                       \
    KEY(LNGDAY)                                                                                                        \
    KEY(LNGDEFAUALTVALUE)                                                                                              \
    KEY(LNGDESCRIPTION)                                                                                                \
    KEY(LNGDIRECTMAILBOX)                                                                                              \
    KEY(LNGDOUBLEBOOKING)                                                                                              \
    KEY(LNGDURATION)                                                                                                   \
    KEY(LNGEDIT)                                                                                                       \
    KEY(LNGEMAILTOSUPPLYPERSON)                                                                                        \
    KEY(LNGENDAPP)                                                                                                     \
    KEY(LNGENDTIME)                                                                                                    \
    KEY(LNGENTERDATABASE)                                                                                              \
    KEY(LNGERRCONNECTIONFAILED)                                                                                        \
    KEY(LNGERRFAILEDCREATEFOLDER)                                                                                      \
    KEY(LNGERRFOLDERNOTFOUND)                                                                                          \
    KEY(LNGERRINAPP)                                                                                                   \
    KEY(LNGERRLINE)                                                                                                    \
    KEY(LNGERROREXECUTE)                                                                                               \
    KEY(LNGERRREMOVEFOLDER)                                                                                            \
    KEY(LNGERRSENDREPORT)                                                                                              \
    KEY(LNGERRSYSTEMERROR)                                                                                             \
    KEY(LNGERRTHISERROR)                                                                                               \
    KEY(LNGFAILEDCREATEAPPOINTMENT)                                                                                    \
    KEY(LNGFAILEDSAVEINFO)                                                                                             \
    KEY(LNGFAILEDSAVESETTINGS)                                                                                         \
    KEY(LNGFAILEDTODELETEAPP)                                                                                          \
    KEY(LNGFREETEXT)                                                                                                   \
    KEY(LNGFROM)                                                                                                       \
    KEY(LNGHDCLIENTTOOLS)                                                                                              \
    KEY(LNGHOURLYRATE)                                                                                                 \
    KEY(LNGHOURS)                                                                                                      \
    KEY(LNGHYPERLINK)                                                                                                  \
    KEY(LNGIMPORTHTML)                                                                                                 \
    KEY(LNGINFOCALENDAR)                                                                                               \
    KEY(LNGINFORESOURCE)                                                                                               \
    KEY(LNGINPUTNAME)                                                                                                  \
    KEY(LNGINSERTIMAGE)                                                                                                \
    KEY(LNGINSTALL)                                                                                                    \
    KEY(LNGINSTALLCOMPLETE)                                                                                            \
    KEY(LNGINSTALLNOW)                                                                                                 \
    KEY(LNGINSTALLPROBLEMS)                                                                                            \
    KEY(LNGINTEGRATEDSECURITY)                                                                                         \
    KEY(LNGINVALIDOUTLOOKFOLDER)                                                                                       \
    KEY(LNGITALIC)                                                                                                     \
    KEY(LNGITEM)                                                                                                       \
    KEY(LNGJUSTIFYCENTER)                                                                                              \
    KEY(LNGJUSTIFYLEFT)                                                                                                \
    KEY(LNGJUSTIFYRIGHT)                                                                                               \
    KEY(LNGKCFORMAT)                                                                                                   \
    KEY(LNGKCWITHORDER)                                                                                                \
    KEY(LNGLIST)                                                                                                       \
    KEY(LNGLOADEXAMPLEDATA)                                                                                            \
    KEY(LNGMAKEBOOKING)                                                                                                \
    KEY(LNGMAKEMEETING)                                                                                                \
    KEY(LNGMANAGE)                                                                                                     \
    KEY(LNGMINUTES)                                                                                                    \
    KEY(LNGMONTH)                                                                                                      \
    KEY(LNGMULTIPLE)                                                                                                   \
    KEY(LNGNAME)                                                                                                       \
    KEY(LNGNEW)                                                                                                        \
    KEY(LNGNEWAPPTEMPLATE)                                                                                             \
    KEY(LNGNEXT)                                                                                                       \
    KEY(LNGNOCALENDARS)                                                                                                \
    KEY(LNGNOITEMS)                                                                                                    \
    KEY(LNGNORESOURCESFOUND)                                                                                           \
    KEY(LNGNOTHINGSEL)                                                                                                 \
    KEY(LNGNOTPUBLICFOLDEROWNER)                                                                                       \
    KEY(LNGNUMBER)                                                                                                     \
    KEY(LNGO2KNEEDED)                                                                                                  \
    KEY(LNGO2KRUNNING)                                                                                                 \
    KEY(LNGOK)                                                                                                         \
    KEY(LNGONLYSHOWFREE)                                                                                               \
    KEY(LNGOPENBOOKING)                                                                                                \
    KEY(LNGORDER)                                                                                                      \
    KEY(LNGORDERCOMMENT)                                                                                               \
    KEY(LNGORDERFROM)                                                                                                  \
    KEY(LNGORDERITEM)                                                                                                  \
    KEY(LNGORDEROFSUPPLIES)                                                                                            \
    KEY(LNGORDERS)                                                                                                     \
    KEY(LNGORGANIZER)                                                                                                  \
    KEY(LNGORGANIZERTT)                                                                                                \
    KEY(LNGOUTOFOFFICE)                                                                                                \
    KEY(LNGOVERVIEW)                                                                                                   \
    KEY(LNGPASSWORD)                                                                                                   \
    KEY(LNGPASTE)                                                                                                      \
    KEY(LNGPERSONALCOPY)                                                                                               \
    KEY(LNGPICKFOLDER)                                                                                                 \
    KEY(LNGPLACESETTINGS)                                                                                              \
    KEY(LNGPREVENTRECURRING)                                                                                           \
    KEY(LNGPREVIOUS)                                                                                                   \
    KEY(LNGPRINT)                                                                                                      \
    KEY(LNGPRINTOVERVIEW)                                                                                              \
    KEY(LNGPROJ)                                                                                                       \
    KEY(LNGPROJECT)                                                                                                    \
    KEY(LNGPROJECTS)                                                                                                   \
    KEY(LNGPUBLICFOLDER)                                                                                               \
    KEY(LNGQUARTER)                                                                                                    \
    KEY(LNGRATE)                                                                                                       \
    KEY(LNGREALLYREMOVE)                                                                                               \
    KEY(LNGRECURRINGPREVENTMESSAGE)                                                                                    \
    KEY(LNGREDO)                                                                                                       \
    KEY(LNGREFRESH)                                                                                                    \
    KEY(LNGREMOVE)                                                                                                     \
    KEY(LNGREMOVEITEM)                                                                                                 \
    KEY(LNGREMOVEOLDMEETINGS)                                                                                          \
    KEY(LNGREQUIREPROJ)                                                                                                \
    KEY(LNGRESTARTOUTLOOK)                                                                                             \
    KEY(LNGRESULT)                                                                                                     \
    KEY(LNGRETRY)                                                                                                      \
    KEY(LNGSAVE)                                                                                                       \
    KEY(LNGSAVECALENDAREINFO)                                                                                          \
    KEY(LNGSAVECHANGES)                                                                                                \
    KEY(LNGSAVERESOURCEINFO)                                                                                           \
    KEY(LNGSAVESUPPLYLIST)                                                                                             \
    KEY(LNGSEARCH)                                                                                                     \
    KEY(LNGSEATS)                                                                                                      \
    KEY(LNGSELECTDATABASECONNECTION)                                                                                   \
    KEY(LNGSELECTEXISTINGSQLDB)                                                                                        \
    KEY(LNGSELECTION)                                                                                                  \
    KEY(LNGSELECTLANGUAGE)                                                                                             \
    KEY(LNGSENDMEEMAIL)                                                                                                \
    KEY(LNGSERVER)                                                                                                     \
    KEY(LNGSETTINGS)                                                                                                   \
    KEY(LNGSETTINGSTT)                                                                                                 \
    KEY(LNGSHOW)                                                                                                       \
    KEY(LNGSHOWALL)                                                                                                    \
    KEY(LNGSTARTTIME)                                                                                                  \
    KEY(LNGSTOPDOUBLES)                                                                                                \
    KEY(LNGSUBJECT)                                                                                                    \
    KEY(LNGSUBROUTINE)                                                                                                 \
    KEY(LNGSUCCESS)                                                                                                    \
    KEY(LNGSUCCESSADDFOLDER)                                                                                           \
    KEY(LNGSUCCESSREMOVEFOLDER)                                                                                        \
    KEY(LNGSUCCESSSAVEINFO)                                                                                            \
    KEY(LNGSUPPLY)                                                                                                     \
    KEY(LNGSUPPLYID)                                                                                                   \
    KEY(LNGSUPPLYLIST)                                                                                                 \
    KEY(LNGTENTATIVE)                                                                                                  \
    KEY(LNGTEST)                                                                                                       \
    KEY(LNGTIME)                                                                                                       \
    KEY(LNGTOTALCOST)                                                                                                  \
    KEY(LNGUNABLEOPENMAILBOX)                                                                                          \
    KEY(LNGUNDERLINE)                                                                                                  \
    KEY(LNGUNDO)                                                                                                       \
    KEY(LNGUNINSTALL)                                                                                                  \
    KEY(LNGUNINSTALLDESC2)                                                                                             \
    KEY(LNGUNINSTALLFAILURE)                                                                                           \
    KEY(LNGUNINSTALLSUCCESS)                                                                                           \
    KEY(LNGUSERMANUAL)                                                                                                 \
    KEY(LNGUSERNAME)                                                                                                   \
    KEY(LNGWEEK)                                                                                                       \
    KEY(LNGWEEKDAY)                                                                                                    \
    KEY(LNGWORKWEEK)                                                                                                   \
    KEY(LNGWRONGFOLDERTYPE)                                                                                            \
    KEY(LNGWYSIWYG)                                                                                                    \
    KEY(LNGYEAR)                                                                                                       \
    KEY(LNGYEARDEF)

namespace rf {

/// The phrases in the user's language: one text for each key, named after it and empty until the table is loaded.
struct Phrases {
#define RF_PHRASE_VARIABLE(key) Text key;
    RF_PHRASE_KEYS(RF_PHRASE_VARIABLE)
#undef RF_PHRASE_VARIABLE
};

/// A key together with the variable that holds its phrase.
struct PhraseKey {
    TextView key;
    Text Phrases::*variable;
};

inline constexpr std::array phraseKeys
{
#define RF_WIDE(text) u"" text
#define RF_PHRASE_KEY(key) PhraseKey{RF_WIDE(#key), &Phrases::key},
    RF_PHRASE_KEYS(RF_PHRASE_KEY)
#undef RF_PHRASE_KEY
#undef RF_WIDE
};

constexpr std::size_t phraseCount = 204;
static_assert(phraseKeys.size() == phraseCount);

} // namespace rf
