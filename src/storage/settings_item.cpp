#include "app/session.h"
#include "app/shutdown.h"
#include "basic/conversion.h"
#include "diagnostics/product.h"
#include "storage/outlook_value.h"
#include "storage/settings_keys.h"

#include <algorithm>

namespace rf {

namespace {

using outlook::UserPropertyType;

constexpr TextView settingsSubject = u"Settings";

struct TypedProperty {
    TextView name;
    UserPropertyType type;
};

/// Old programs read these without making them; some stand for the pieces of long texts, some are read by nobody here.
constexpr TypedProperty typedProperties[] = {
    {u"strSupply0", UserPropertyType::Text},
    {u"strSupplyCount", UserPropertyType::Number},
    {u"strProjects0", UserPropertyType::Text},
    {u"strProjectsCount", UserPropertyType::Number},
    {u"blnProjectMandatory", UserPropertyType::YesNo},
    {u"blnManage", UserPropertyType::YesNo},
    {u"blnOverView", UserPropertyType::YesNo},
    {u"blnShortCut", UserPropertyType::YesNo},
    {u"blnNoRecurring", UserPropertyType::YesNo},
    {u"blnAlwaysSearch", UserPropertyType::YesNo},
    {u"blnKCWithOrder", UserPropertyType::YesNo},
    {u"Folders", UserPropertyType::Text},
    {u"strKCFormat", UserPropertyType::Text},
    {u"strPlaceSettings", UserPropertyType::Text},
    {u"strDefaultPlaceSetting", UserPropertyType::Text},
    {u"blnNoDoubles", UserPropertyType::YesNo},
};

struct InitialTruth {
    TextView name;
    bool value;
};

/// The third work-week view is left out: it begins as missing, which reads as false.
constexpr InitialTruth initialTruths[] = {
    {u"blnViewDay", true},
    {u"blnViewDayII", true},
    {u"blnViewList", true},
    {u"blnViewMonth", true},
    {u"blnViewOrders", true},
    {u"blnViewWeek", true},
    {u"blnViewWorkWeek", true},
    {u"blnViewWorkWeekII", true},
    {u"blnNoDoubles", true},
    {u"blnManage", true},
    {u"blnOverView", true},
    {u"blnShortCut", true},
    {u"blnAlwaysSearch", false},
    {u"blnKCWithOrder", false},
};

/// Whether a property that is missing counts as true.
bool countsAsTrue(TextView name)
{
    return std::ranges::any_of(settingKeys, [&](const SettingKey& key) {
        const auto* truth = std::get_if<bool>(&key.missing);
        return truth != nullptr && *truth && equalIgnoringCase(key.name, name);
    });
}

void ensure(const outlook::UserProperties& properties, const TypedProperty& property)
{
    // A new property is false until it is given a value, and would hide that it was missing.
    const bool becomesTrue = countsAsTrue(property.name) && !properties.find(property.name);
    const auto ensured = properties.add(property.name, property.type);
    if (becomesTrue)
        ensured.setValue(true);
}

} // namespace

void cSettings::subFixSettingsProps(const outlook::Item& item)
{
    PendingError errors;
    const auto properties = errors.attempt([&] { return item.userProperties(); });
    for (const TypedProperty& property : typedProperties)
        errors.attempt([&] { ensure(properties, property); });
}

outlook::PostItem cSettings::newSettingsItem(const outlook::Items& items, PendingError& errors) const
{
    auto item = errors.attempt([&] { return items.add(outlook::message_class::post).as<outlook::PostItem>(); });
    // Going on without an item would only put an error that tells nothing in the place of the first.
    if (!item)
        return {};
    subFixSettingsProps(item);
    for (const InitialTruth& truth : initialTruths)
        subSetOutlookValue(session_, item, truth.name, truth.value, ValueKind::Boolean, false);
    // A text that is no number, and reads as the format "1": programs in the field write the same.
    subSetOutlookValue(session_, item, u"strKCFormat", toText(false), ValueKind::String, false);
    errors.attempt([&] { item.setSubject(settingsSubject); });
    // Without its subject nobody would find it again.
    if (!errors.pending())
        errors.attempt([&] { item.save(); });
    return item;
}

outlook::PostItem cSettings::fncGetSettingsItem()
{
    PendingError errors;
    const auto items = errors.attempt([&] { return session_.objRootFolder.items(); });
    settingsItem_ = {};
    if (errors.attempt([&] { return items.count(); }) >= 1)
        settingsItem_ = errors.attempt([&] { return items.item(settingsSubject).as<outlook::PostItem>(); });
    if (errors.pending() || !settingsItem_) {
        errors.clear();
        settingsItem_ = newSettingsItem(items, errors);
    } else {
        subFixSettingsProps(settingsItem_);
    }
    if (errors.pending()) {
        showSaveFailure(errors);
        subEndProgram(session_);
    }
    return settingsItem_;
}

void cSettings::showSaveFailure(const PendingError& errors) const
{
    const Phrases& phrases = session_.language.phrases();
    const Text newLine{lineBreak};
    session_.services.toolkit.showMessage(phrases.LNGFAILEDSAVESETTINGS + newLine + phrases.LNGCHECKPERM + newLine
            + decimal(errors.number()) + u" " + errors.description(),
        {ui::Buttons::Ok, ui::Icon::Critical}, productCaption);
}

} // namespace rf
