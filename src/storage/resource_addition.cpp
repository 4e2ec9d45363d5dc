#include "storage/resource_addition.h"

#include "app/session.h"
#include "diagnostics/pending_error.h"
#include "diagnostics/product.h"
#include "storage/long_property.h"
#include "storage/settings.h"

namespace rf {

namespace {

constexpr TextView calendarsKey = u"Folders";
constexpr TextView redirectPage = u"RFRedirect.htm";
constexpr std::array<TextView, 2> startPages{u"Roomfold.htm", u"RoomfoldNoMSCal.htm"};

void tellFailure(Session& session, const Text& what, const Text& error)
{
    session.services.toolkit.showMessage(
        what + Text{lineBreak} + session.language.phrases().LNGCHECKPERM + Text{lineBreak} + error,
        {ui::Buttons::Ok, ui::Icon::Critical}, productCaption);
}

void addFolder(const outlook::Folder& root, const Text& name)
{
    const auto folder = root.folders().add(name, outlook::DefaultFolder::Calendar);
    folder.setWebViewUrl(fncRedirectPage(root.webViewUrl()));
    folder.setWebViewOn(true);
}

bool addPublicFolder(Session& session, const Text& name)
{
    PendingError errors;
    errors.attempt([&] { addFolder(session.objRootFolder, name); });
    if (errors.pending())
        tellFailure(session, session.language.phrases().LNGERRFAILEDCREATEFOLDER,
            decimal(errors.number()) + u":" + errors.description());
    return !errors.pending();
}

bool listMailbox(Session& session, const Text& name)
{
    cSettings& settings = *session.objSettings;
    const outlook::Item item = settings.fncGetSettingsItem();
    if (!item)
        return false;
    const Text calendars = fncGetLongProperty(session, item, calendarsKey) + Text{lineBreak} + name;
    subFixLongProperty(session, item, calendars, calendarsKey);
    PendingError errors;
    errors.attempt([&] { item.save(); });
    settings.ClearItem();
    if (errors.pending())
        tellFailure(session, session.language.phrases().LNGFAILEDSAVESETTINGS,
            decimal(errors.number()) + Text{lineBreak} + errors.description());
    return !errors.pending();
}

} // namespace

Text fncRedirectPage(TextView rootAddress)
{
    Text address{rootAddress};
    for (const TextView startPage : startPages)
        address = replaceAll(address, startPage, redirectPage);
    return address;
}

bool subAddResource(Session& session, const Text& name, ResourcePlace place)
{
    if (name.empty() || !session.objSettings)
        return false;
    // As they are now: the dialog may add several, and others may add some at the same time.
    session.objSettings->GetCalendars();
    if (session.objSettings->Calendars.exists(name))
        return false;
    return place == ResourcePlace::PublicFolder ? addPublicFolder(session, name) : listMailbox(session, name);
}

} // namespace rf
