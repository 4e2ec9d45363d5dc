#pragma once

#include "language/phrases.h"
#include "storage/settings.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <variant>

namespace rf {

/// How a value lies on the settings item.
enum class SettingKind { LongText, Truth, ShortText };

/// A value that is kept in memory as something else than its text.
struct SettingConversion {
    void (*load)(cSettings& settings, const Text& text);
    Text (*save)(const cSettings& settings);
};

/// Where the loaded value goes; nowhere for the one that `GetCalendars` reads.
using SettingPlace
    = std::variant<std::monostate, bool cSettings::*, Text cSettings::*, Text cOutlookFolder::*, SettingConversion>;

/// What a missing property counts as.
using SettingDefault = std::variant<bool, Text Phrases::*>;

/// One time that a key is written: its turn among all of them, from 1 up, and the spelling.
struct SettingWriting {
    int turn = 0;
    TextView name;
};

struct SettingKey {
    TextView name;
    SettingKind kind;
    SettingPlace place;
    SettingDefault missing;
    /// A key that is not written has none.
    std::array<SettingWriting, 2> writings;
};

namespace setting_conversion {
inline constexpr SettingConversion supply{[](cSettings& settings, const Text& text) {
                                              settings.Supply.dictionary().removeAll();
                                              settings.subFillSupply(text);
                                          },
    [](const cSettings& settings) { return settings.fncBuildSupplyList(); }};
inline constexpr SettingConversion projects{[](cSettings& settings, const Text& text) { settings.takeProjects(text); },
    [](const cSettings& settings) { return settings.Projects.ToString(); }};
inline constexpr SettingConversion placeSettings{
    [](cSettings& settings, const Text& text) { settings.PlaceSettings.FromString(text); },
    [](const cSettings& settings) { return settings.PlaceSettings.ToString(); }};
inline constexpr SettingConversion costCenterFormat{
    [](cSettings& settings, const Text& text) { settings.takeKCFormat(text); },
    [](const cSettings& settings) { return settings.KCFormat; }};
inline constexpr SettingConversion language{
    [](cSettings& settings, const Text& text) { settings.takeCurrentLanguage(text); },
    [](const cSettings& settings) { return decimal(settings.CurrentSelectedLanguage); }};
} // namespace setting_conversion

/// Every key of the settings item, in the order in which they are read. Installations in the field share one item, so
/// neither names nor kinds nor turns change.
inline constexpr SettingKey settingKeys[] = {
    {u"strSupply", SettingKind::LongText, setting_conversion::supply, false, {{{1, u"strSupply"}}}},
    {u"strProjects", SettingKind::LongText, setting_conversion::projects, false, {{{2, u"strProjects"}}}},
    {u"strPlaceSettings", SettingKind::LongText, setting_conversion::placeSettings, false,
        {{{3, u"strPlaceSettings"}}}},
    {u"strNewItemTemplate", SettingKind::LongText, &cSettings::NewItemTemplate, false, {{{4, u"strNewItemTemplate"}}}},
    // Written in both spellings, as everything that writes the item does; the host takes them for one property.
    {u"blnOverview", SettingKind::Truth, &cSettings::ShowOverview, true, {{{5, u"blnOverview"}, {9, u"blnOverView"}}}},
    {u"blnProjectMandatory", SettingKind::Truth, &cSettings::ProjectMandatory, false, {{{6, u"blnProjectMandatory"}}}},
    {u"blnNoDoubles", SettingKind::Truth, &cSettings::NoDoubles, false, {{{7, u"blnNoDoubles"}}}},
    {u"blnNoRecurring", SettingKind::Truth, &cSettings::NoRecurring, false, {{{24, u"blnNoRecurring"}}}},
    {u"blnKCWithOrder", SettingKind::Truth, &cSettings::KCWithOrder, false, {{{12, u"blnKCWithOrder"}}}},
    {u"strDefaultPlaceSetting", SettingKind::ShortText, &cSettings::DefaultPlaceSetting, false,
        {{{13, u"strDefaultPlaceSetting"}}}},
    {u"strKCFormat", SettingKind::ShortText, setting_conversion::costCenterFormat, false, {{{14, u"strKCFormat"}}}},
    {u"blnViewDay", SettingKind::Truth, &cSettings::ViewDay, false, {{{15, u"blnViewDay"}}}},
    {u"blnViewDayII", SettingKind::Truth, &cSettings::ViewDayII, false, {{{16, u"blnViewDayII"}}}},
    {u"blnViewList", SettingKind::Truth, &cSettings::ViewList, false, {{{17, u"blnViewList"}}}},
    {u"blnViewMonth", SettingKind::Truth, &cSettings::ViewMonth, false, {{{18, u"blnViewMonth"}}}},
    {u"blnViewOrders", SettingKind::Truth, &cSettings::ViewOrders, false, {{{19, u"blnViewOrders"}}}},
    {u"blnViewWeek", SettingKind::Truth, &cSettings::ViewWeek, false, {{{20, u"blnViewWeek"}}}},
    {u"blnViewWorkWeek", SettingKind::Truth, &cSettings::ViewWorkWeek, false, {{{21, u"blnViewWorkWeek"}}}},
    {u"blnViewWorkWeekII", SettingKind::Truth, &cSettings::ViewWorkWeekII, false, {{{22, u"blnViewWorkWeekII"}}}},
    {u"blnViewWorkWeekIII", SettingKind::Truth, &cSettings::ViewWorkWeekIII, false, {{{23, u"blnViewWorkWeekIII"}}}},
    {u"blnAlwaysSearch", SettingKind::Truth, &cSettings::AlwaysSearch, false, {{{11, u"blnAlwaysSearch"}}}},
    {u"blnManage", SettingKind::Truth, &cSettings::ShowManage, true, {{{8, u"blnManage"}}}},
    // Written in another spelling than it is read in, for the same reason.
    {u"blnShortcut", SettingKind::Truth, &cSettings::ShowShortCut, true, {{{10, u"blnShortCut"}}}},
    {u"strProjectsCaption", SettingKind::ShortText, &cSettings::ProjectCaption, &Phrases::LNGPROJECTS,
        {{{25, u"strProjectsCaption"}}}},
    {u"blnPersonalCopy", SettingKind::Truth, &cSettings::PersonalCopy, false, {{{26, u"blnPersonalCopy"}}}},
    {u"blnMasterCopy", SettingKind::Truth, &cSettings::MasterCopy, false, {{{27, u"blnMasterCopy"}}}},
    {u"CurrentLanguage", SettingKind::ShortText, setting_conversion::language, false, {{{32, u"CurrentLanguage"}}}},
    {u"strMasterEntryID", SettingKind::ShortText, &cOutlookFolder::EntryID, false, {{{29, u"strMasterEntryID"}}}},
    {u"strMasterStoreID", SettingKind::ShortText, &cOutlookFolder::StoreID, false, {{{30, u"strMasterStoreID"}}}},
    {u"strMasterPath", SettingKind::ShortText, &cOutlookFolder::Path, false, {{{28, u"strMasterPath"}}}},
    {u"strMasterName", SettingKind::ShortText, &cOutlookFolder::Name, false, {{{31, u"strMasterName"}}}},
    {u"Folders", SettingKind::LongText, std::monostate{}, false, {}},
};

/// One write of a key, as they follow each other.
struct SettingTurn {
    const SettingKey* key = nullptr;
    TextView name;
};

consteval std::size_t countSettingTurns()
{
    std::size_t count = 0;
    for (const SettingKey& key : settingKeys)
        for (const SettingWriting& writing : key.writings)
            count += writing.turn > 0 ? 1 : 0;
    return count;
}

/// The writes in their order. A turn that is taken twice, or beyond the last, does not compile.
consteval auto settingTurns()
{
    std::array<SettingTurn, countSettingTurns()> turns{};
    for (const SettingKey& key : settingKeys) {
        for (const SettingWriting& writing : key.writings) {
            if (writing.turn == 0)
                continue;
            SettingTurn& turn = turns.at(static_cast<std::size_t>(writing.turn) - 1);
            if (turn.key != nullptr)
                throw "two keys have one turn";
            turn = {&key, writing.name};
        }
    }
    return turns;
}

inline constexpr auto settingsAsWritten = settingTurns();

} // namespace rf
