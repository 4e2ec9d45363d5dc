#pragma once

#include "storage/settings_fixture.h"
#include "storage/settings_keys.h"

#include <algorithm>

namespace rf::test {

/// How the program and the settings post get on with each other, over any way between program and host.
class SettingsPost : public InstallationTest, public ::testing::WithParamInterface<TransportKind> {
protected:
    SettingsPost()
        : InstallationTest(GetParam().make())
    {
        addCalendar(u"Room 1");
    }

    /// The settings as another start of the program loads them.
    cSettings& loadedAnew()
    {
        session.objSettings = std::make_unique<cSettings>(session);
        settings().GetSettings(true);
        return settings();
    }
};

TEST_P(SettingsPost, IsMadeInAFreshRootFolderWithItsInitialValues)
{
    settings().GetSettings(true);
    ASSERT_EQ(posts(u"Settings").size(), 1U);
    EXPECT_EQ(settingsPost().messageClass, u"IPM.Post");
    for (const TextView name :
        {u"blnViewDay", u"blnViewDayII", u"blnViewList", u"blnViewMonth", u"blnViewOrders", u"blnViewWeek",
            u"blnViewWorkWeek", u"blnViewWorkWeekII", u"blnNoDoubles", u"blnManage", u"blnOverView", u"blnShortCut"})
        EXPECT_EQ(stored(name), automation::Variant{true}) << toUtf8(name);
    for (const TextView name : {u"blnAlwaysSearch", u"blnKCWithOrder", u"blnProjectMandatory", u"blnNoRecurring"})
        EXPECT_EQ(stored(name), automation::Variant{false}) << toUtf8(name);
    EXPECT_EQ(stored(u"blnViewWorkWeekIII"), std::nullopt);
    EXPECT_EQ(stored(u"strKCFormat"), automation::Variant{u"False"});
    EXPECT_EQ(settings().KCFormat, u"1");
    EXPECT_TRUE(settings().NoDoubles);
    EXPECT_TRUE(settings().ShowOverview);
    EXPECT_TRUE(settings().ShowShortCut);
    EXPECT_FALSE(settings().ViewWorkWeekIII);
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_P(SettingsPost, IsFoundAgainAndNotMadeTwice)
{
    settings().GetSettings(true);
    loadedAnew();
    loadedAnew().SaveSettings();
    EXPECT_EQ(posts(u"Settings").size(), 1U);
}

TEST_P(SettingsPost, IsLeftAsItIsByLoading)
{
    givePost({text(u"strDefaultPlaceSetting", u"U")});
    const auto before = store->lastChange();
    settings().GetSettings(true);
    EXPECT_EQ(settingsPost().userProperties.size(), 1U);
    EXPECT_EQ(posts(u"Room 1").size(), 1U) << "the description of the calendar is made";
    EXPECT_EQ(store->lastChange(), before + 1);
}

TEST_P(SettingsPost, WithoutAnyPropertyLoadsTheDefaults)
{
    givePost({});
    settings().GetSettings(true);
    EXPECT_TRUE(settings().ShowOverview);
    EXPECT_TRUE(settings().ShowManage) << "blnManage counts as true";
    EXPECT_TRUE(settings().ShowShortCut);
    EXPECT_FALSE(settings().NoDoubles) << "blnNoDoubles counts as false";
    EXPECT_FALSE(settings().ViewDay);
    EXPECT_FALSE(settings().PersonalCopy);
    EXPECT_EQ(settings().KCFormat, u"1");
    EXPECT_EQ(settings().ProjectCaption, u"Projects");
    EXPECT_EQ(settings().CurrentSelectedLanguage, 0);
    EXPECT_EQ(settings().Supply.count(), 0);
    EXPECT_EQ(settings().NewItemTemplate, u"");
    EXPECT_EQ(settings().objOUMasterFolder.EntryID, u"");
}

TEST_P(SettingsPost, WithoutBlnManageLoadsTrueAndWithoutBlnNoDoublesFalse)
{
    givePost({truth(u"blnOverview", false), truth(u"blnNoRecurring", true), truth(u"blnShortCut", false)});
    settings().GetSettings(true);
    EXPECT_TRUE(settings().ShowManage);
    EXPECT_FALSE(settings().NoDoubles);
    EXPECT_FALSE(settings().ShowOverview);
    EXPECT_FALSE(settings().ShowShortCut);
    EXPECT_TRUE(settings().NoRecurring);
    settings().SaveSettings();
    EXPECT_EQ(stored(u"blnManage"), automation::Variant{true});
    EXPECT_EQ(stored(u"blnNoDoubles"), automation::Variant{false});
}

TEST_P(SettingsPost, GivesBackEveryTruthAndEveryText)
{
    settings().GetSettings(true);
    const auto forEach = [&](auto&& truthField, auto&& textField) {
        for (const SettingKey& key : settingKeys) {
            if (const auto* place = std::get_if<bool cSettings::*>(&key.place))
                truthField(settings().*(*place), key.name);
            else if (const auto* member = std::get_if<Text cSettings::*>(&key.place))
                textField(settings().*(*member), key.name);
            else if (const auto* part = std::get_if<Text cOutlookFolder::*>(&key.place))
                textField(settings().objOUMasterFolder.*(*part), key.name);
        }
    };
    for (const bool value : {true, false, true}) {
        const Text ending = value ? u" one" : u" two";
        forEach([&](bool& field, TextView) { field = value; },
            [&](Text& field, TextView name) { field = Text{name} + ending; });
        settings().SaveSettings();
        loadedAnew();
        forEach([&](const bool& field, TextView name) { EXPECT_EQ(field, value) << toUtf8(name); },
            [&](const Text& field, TextView name) { EXPECT_EQ(field, Text{name} + ending) << toUtf8(name); });
    }
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_P(SettingsPost, GivesBackItsLists)
{
    settings().GetSettings(true);
    settings().subFillSupply(u"Coffee\t2.5\r\nTea\t1.25\r\n");
    settings().Projects.FromString(u"Sales;255\r\nMarketing;33023");
    settings().PlaceSettings.FromString(u"U\r\nTheatre");
    settings().KCFormat = u"0";
    settings().CurrentSelectedLanguage = 7;
    settings().SaveSettings();
    const auto& loaded = loadedAnew();
    EXPECT_EQ(loaded.fncBuildSupplyList(), u"Coffee\t2.5\r\nTea\t1.25\r\n");
    EXPECT_EQ(loaded.Projects.ToString(), u"Sales;255\r\nMarketing;33023\r\n");
    EXPECT_EQ(loaded.PlaceSettings.ToString(), u"U\r\nTheatre");
    EXPECT_EQ(loaded.KCFormat, u"0");
    EXPECT_EQ(loaded.CurrentSelectedLanguage, 7);
    EXPECT_EQ(stored(u"CurrentLanguage"), automation::Variant{u"7"});
}

TEST_P(SettingsPost, GivesBackAListLongerThanOneProperty)
{
    settings().GetSettings(true);
    Text list;
    for (int number = 0; list.size() <= 2500; ++number)
        list += u"Item " + decimal(number) + u"\t1.5\r\n";
    settings().subFillSupply(list);
    settings().NewItemTemplate = Text(1000, u'x');
    settings().SaveSettings();
    EXPECT_EQ(stored(u"strSupply0")->text().size(), 1000U);
    EXPECT_EQ(stored(u"strSupply2")->text(), list.substr(2000));
    EXPECT_EQ(loadedAnew().fncBuildSupplyList(), list);
    EXPECT_EQ(settings().NewItemTemplate, Text(1000, u'x'));

    settings().Supply.dictionary().removeAll();
    settings().subFillSupply(u"Coffee\t1\r\n");
    settings().SaveSettings();
    EXPECT_EQ(loadedAnew().fncBuildSupplyList(), u"Coffee\t1\r\n") << "the pieces of the longer list do not count";
}

TEST_P(SettingsPost, IsReadAnewByEachLoad)
{
    settings().GetSettings(true);
    settings().subFillSupply(u"Coffee\t1\r\nTea\t1\r\n");
    settings().SaveSettings();
    cSettings other{session};
    other.GetSettings(false);
    other.Supply.dictionary().removeAll();
    other.subFillSupply(u"Coffee\t2\r\n");
    other.NoRecurring = true;
    other.SaveSettings();
    settings().GetSettings(true);
    EXPECT_EQ(settings().fncBuildSupplyList(), u"Coffee\t2\r\n") << "what has left the list leaves the memory";
    EXPECT_TRUE(settings().NoRecurring);
}

TEST_P(SettingsPost, KeepsOnePropertyForTwoSpellings)
{
    settings().GetSettings(true);
    settings().ShowOverview = false;
    settings().ShowShortCut = false;
    settings().SaveSettings();
    const auto post = settingsPost();
    const auto count = [&](TextView name) {
        return std::ranges::count_if(
            post.userProperties, [&](const auto& property) { return equalIgnoringCase(property.name, name); });
    };
    EXPECT_EQ(count(u"blnOverview"), 1);
    EXPECT_EQ(count(u"blnShortcut"), 1);
    EXPECT_FALSE(loadedAnew().ShowOverview);
    EXPECT_FALSE(settings().ShowShortCut);
}

TEST_P(SettingsPost, KeepsTheCalendarsThatOthersHaveListed)
{
    givePost({text(u"Folders0", u"\r\nRita Roe"), number(u"FoldersCount", 0), text(u"Unknown", u"kept")});
    settings().GetSettings(true);
    settings().SaveSettings();
    EXPECT_EQ(stored(u"Folders0"), automation::Variant{u"\r\nRita Roe"});
    EXPECT_EQ(stored(u"Unknown"), automation::Variant{u"kept"});
}

TEST_P(SettingsPost, TakesAFormatThatIsNoNumberForTheFirst)
{
    for (const TextView format : {u"XXX-XXX", u"", u"False"}) {
        settings().GetSettings(true);
        settings().KCFormat = format;
        settings().SaveSettings();
        EXPECT_EQ(loadedAnew().KCFormat, u"1") << toUtf8(format);
    }
}

TEST_P(SettingsPost, LeavesTheLanguageAloneThatIsNone)
{
    for (const TextView language : {u"", u"German", u"40000"}) {
        settings().GetSettings(true);
        const auto item = settings().fncGetSettingsItem();
        item.userProperties().add(u"CurrentLanguage", outlook::UserPropertyType::Text, false).setValue(language);
        item.save();
        loadedAnew();
        EXPECT_EQ(settings().CurrentSelectedLanguage, 0) << toUtf8(language);
        settings().CurrentSelectedLanguage = 9;
        settings().GetSettings(true);
        EXPECT_EQ(settings().CurrentSelectedLanguage, 9) << toUtf8(language);
    }
}

TEST_P(SettingsPost, ShowsThePhraseForAnEmptyCaption)
{
    givePost({text(u"strProjectsCaption", u"")});
    settings().GetSettings(true);
    EXPECT_EQ(settings().ProjectCaption, u"Projects");
}

TEST_P(SettingsPost, LoadsPropertiesOfAnotherTypeThanExpected)
{
    givePost({text(u"blnManage", u"perhaps"), text(u"blnNoDoubles", u"True"), number(u"blnNoRecurring", -1),
        number(u"strKCFormat", 0), text(u"strSupplyCount", u"many"), text(u"strSupply0", u"Coffee\t2\r\n"),
        truth(u"strDefaultPlaceSetting", true), {u"strProjectsCaption", 5, Date{39000.0}}, number(u"strMasterName", 12),
        text(u"strProjectsCount", u"-3"), truth(u"strPlaceSettings0", false)});
    settings().GetSettings(true);
    EXPECT_FALSE(settings().ShowManage);
    EXPECT_TRUE(settings().NoDoubles);
    EXPECT_TRUE(settings().NoRecurring);
    EXPECT_EQ(settings().KCFormat, u"0");
    EXPECT_EQ(settings().fncBuildSupplyList(), u"Coffee\t2\r\n");
    EXPECT_EQ(settings().DefaultPlaceSetting, u"True");
    EXPECT_EQ(settings().ProjectCaption, u"10/10/2006");
    EXPECT_EQ(settings().objOUMasterFolder.Name, u"12");
    EXPECT_EQ(settings().Projects.ToString(), u"");
    EXPECT_EQ(settings().PlaceSettings.ToString(), u"False");
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_P(SettingsPost, FindsTheMasterFolderAgain)
{
    settings().GetSettings(true);
    const auto room = session.objRootFolder.folders().item(u"Room 1");
    auto& master = settings().objOUMasterFolder;
    master.Name = room.name();
    master.EntryID = room.entryId();
    master.StoreID = room.storeId();
    settings().SaveSettings();
    EXPECT_EQ(loadedAnew().objOUMasterFolder.GetFolder().name(), u"Room 1");
}

} // namespace rf::test
