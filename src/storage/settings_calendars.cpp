#include "app/session.h"
#include "app/shutdown.h"
#include "diagnostics/product.h"
#include "storage/frm_add_resource.h"
#include "storage/home_page.h"
#include "storage/long_property.h"
#include "storage/settings.h"

#include <algorithm>

namespace rf {

namespace {

constexpr TextView settingsSubject = u"Settings";
constexpr TextView calendarsKey = u"Folders";

/// The names in a list of calendars. The list may begin with a line end, since names are added behind one.
std::vector<Text> namesIn(TextView list)
{
    std::vector<Text> names = split(list, lineBreak);
    std::erase_if(names, [](const Text& name) { return name.empty(); });
    return names;
}

} // namespace

void cSettings::addCalendar(const Text& name, bool mailbox)
{
    if (Calendars.exists(name))
        return;
    const auto description = std::make_shared<cResourceDescription>(session_);
    description->blnMailbox = mailbox;
    description->setResourceName(name);
    Calendars.add(name, description);
}

void cSettings::addPublicCalendars()
{
    const auto folders = session_.objRootFolder.folders();
    const std::int32_t count = folders.count();
    for (std::int32_t position = 1; position <= count; ++position) {
        const auto folder = folders.item(position);
        if (folder.defaultItemType() == outlook::ItemType::Appointment)
            addCalendar(folder.name(), false);
    }
}

Text cSettings::addDescribedCalendars()
{
    const auto items = session_.objRootFolder.items();
    const std::int32_t count = items.count();
    // All subjects first: a description that is read deletes its duplicates, and the items behind them move up.
    std::vector<Text> subjects;
    for (std::int32_t position = 1; position <= count; ++position) {
        subjects.push_back(items.item(position).subject());
        session_.trace.subTrace(u"Iterating through the items in '" + subjects.back() + u"'");
    }
    Text list;
    for (const Text& subject : subjects) {
        if (subject == settingsSubject)
            continue;
        addCalendar(subject, true);
        session_.trace.subTrace(u"Reading folders from object : " + list);
        list += subject + Text{lineBreak};
    }
    return list;
}

void cSettings::GetCalendars()
{
    session_.reporter.handled(u"cSettings.GetCalendars", [&] {
        Calendars.dictionary().removeAll();
        addPublicCalendars();
        const bool held = static_cast<bool>(settingsItem_);
        std::vector<Text> listed
            = namesIn(fncGetLongProperty(session_, held ? settingsItem_ : fncGetSettingsItem(), calendarsKey));
        if (!held)
            ClearItem();
        if (listed.empty() && Calendars.count() == 0)
            listed = namesIn(addDescribedCalendars());
        for (const Text& name : listed)
            addCalendar(name, true);
    });
}

void cSettings::promptForCalendars()
{
    const Phrases& phrases = session_.language.phrases();
    while (Calendars.count() == 0) {
        const auto answer = session_.services.toolkit.showMessage(
            phrases.LNGNOCALENDARS + Text{lineBreak} + phrases.LNGADDNEWCALENDARSQ,
            {ui::Buttons::YesNo, ui::Icon::None}, productCaption);
        if (answer != ui::Answer::Yes)
            subEndProgram(session_);
        subShowAddResource(session_);
        // The dialog has changed the list through an item of its own.
        ClearItem();
        GetCalendars();
        subRefreshRFHomepage(session_);
    }
}

} // namespace rf
