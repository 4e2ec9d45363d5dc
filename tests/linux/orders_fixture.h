#pragma once

#include "linux/spreadsheet_content.h"
#include "orders/list_handler.h"
#include "outlook/spreadsheet.h"
#include "support/session_fixture.h"

#include <algorithm>

namespace rf::test {

/// The class name of a generation's spreadsheets.
inline Text spreadsheetClass(native::spreadsheet::Generation generation)
{
    return generation == native::spreadsheet::Generation::Oldest ? u"OWC.Spreadsheet" : u"OWC10.Spreadsheet";
}

/// Gives the forms of a toolkit without a screen the spreadsheets of this platform.
inline void offerSpreadsheets(RecordingToolkit& toolkit, std::vector<std::unique_ptr<native::ControlContent>>& contents,
    RegionalSettings settings = englishSettings(),
    native::spreadsheet::Generation generation = native::spreadsheet::Generation::Later)
{
    toolkit.components[spreadsheetClass(generation)] = [&contents, settings, generation] {
        contents.push_back(native::makeSpreadsheetContent(std::make_shared<PatternRegional>(settings), generation));
        return contents.back()->object();
    };
}

/// Names of supplies as people give them, and worse.
inline std::vector<Text> oddNames()
{
    return {u"Coffee", u"Tea and biscuits", u" Tea with  blanks ", u"\u2003Wide\u00A0and\u200Bnone\u2003",
        u"\"Quoted\" 'water'", u"<b>Cake</b> & more", u"\u05E7\u05E4\u05D4 \u05E9\u05D7\u05D5\u05E8",
        u"\u0645\u0627\u0621", Text(200, u'W'), u"007", u"1,5", u"=1+1", u"2024-02-03", u"TRUE", u"\U0001F370",
        u"Caf\u00E9", u"-5"};
}

/// So many names, odd ones first, all different.
inline std::vector<Text> supplyNames(std::size_t count)
{
    auto names = oddNames();
    names.resize(std::min(names.size(), count));
    while (names.size() < count)
        names.push_back(u"Supply " + decimal(static_cast<long long>(names.size())));
    return names;
}

} // namespace rf::test
