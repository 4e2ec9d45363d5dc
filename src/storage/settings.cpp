#include "storage/settings.h"

#include "app/session.h"
#include "app/shutdown.h"
#include "basic/conversion.h"
#include "storage/long_property.h"
#include "storage/outlook_value.h"
#include "storage/settings_keys.h"

namespace rf {

namespace {

using automation::Variant;

template <class... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

Variant missingValue(const SettingKey& key, const Phrases& phrases)
{
    if (const auto* phrase = std::get_if<Text Phrases::*>(&key.missing))
        return phrases.*(*phrase);
    return key.kind == SettingKind::Truth ? Variant{std::get<bool>(key.missing)} : Variant{Text{}};
}

Variant read(Session& session, const outlook::Item& item, const SettingKey& key)
{
    const auto missing = missingValue(key, session.language.phrases());
    switch (key.kind) {
    case SettingKind::LongText:
        return fncGetLongProperty(session, item, key.name);
    case SettingKind::Truth:
        return fncGetOutlookValue(session, item, key.name, ValueKind::Boolean, missing);
    case SettingKind::ShortText:
        break;
    }
    return fncGetOutlookValue(session, item, key.name, ValueKind::String, missing);
}

} // namespace

cSettings::cSettings(Session& session)
    : Supply(session.scripting.fncCreateDic())
    , Projects(session)
    , PlaceSettings(session)
    , objOUMasterFolder(session)
    , Calendars(session.scripting.fncCreateDic())
    , session_(session)
    , intCurrentLanguage_(session.intDefaultLanguage)
{
}

void cSettings::takeProjects(const Text& text)
{
    Projects = cProjects{session_};
    Projects.FromString(text);
}

void cSettings::takeKCFormat(const Text& text)
{
    KCFormat = isNumeric(session_.services.regional, text) ? text : Text{u"1"};
}

void cSettings::takeCurrentLanguage(const Text& text)
{
    CurrentSelectedLanguage = toInteger(session_.services.regional, text);
}

void cSettings::load(const outlook::Item& item, const SettingKey& key)
{
    if (std::holds_alternative<std::monostate>(key.place))
        return;
    const Variant value = read(session_, item, key);
    std::visit(Overloaded{[](std::monostate) {}, [&](bool cSettings::*truth) { this->*truth = value.boolean(); },
                   [&](Text cSettings::*text) { this->*text = value.text(); },
                   [&](Text cOutlookFolder::*text) { objOUMasterFolder.*text = value.text(); },
                   [&](const SettingConversion& conversion) { conversion.load(*this, value.text()); }},
        key.place);
}

void cSettings::GetSettings(bool blnPromptForNewCalendar)
{
    PendingError errors;
    const outlook::Item item = fncGetSettingsItem();
    if (!item)
        subEndProgram(session_);
    isBeingRead_ = true;
    for (const SettingKey& key : settingKeys)
        errors.attempt([&] { load(item, key); });
    isBeingRead_ = false;
    GetCalendars();
    if (blnPromptForNewCalendar)
        promptForCalendars();
    ClearItem();
}

void cSettings::save(const outlook::Item& item, const SettingKey& key, TextView name) const
{
    const auto write = [&](const Text& text) {
        if (key.kind == SettingKind::LongText)
            subFixLongProperty(session_, item, text, name);
        else
            subSetOutlookValue(session_, item, name, text, ValueKind::String, false);
    };
    std::visit(Overloaded{[](std::monostate) {},
                   [&](bool cSettings::*truth) {
                       subSetOutlookValue(session_, item, name, this->*truth, ValueKind::Boolean, false);
                   },
                   [&](Text cSettings::*text) { write(this->*text); },
                   [&](Text cOutlookFolder::*text) { write(objOUMasterFolder.*text); },
                   [&](const SettingConversion& conversion) { write(conversion.save(*this)); }},
        key.place);
}

void cSettings::SaveSettings()
{
    const outlook::Item item = fncGetSettingsItem();
    if (!item)
        return;
    for (const SettingTurn& turn : settingsAsWritten)
        save(item, *turn.key, turn.name);
    PendingError errors;
    errors.attempt([&] { item.save(); });
    if (errors.pending())
        showSaveFailure(errors);
    ClearItem();
}

} // namespace rf
