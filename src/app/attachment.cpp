#include "app/attachment.h"

#include "app/session.h"
#include "app/shutdown.h"
#include "basic/conversion.h"
#include "diagnostics/pending_error.h"
#include "diagnostics/product.h"
#include "outlook/explorer.h"

#include <algorithm>

namespace rf {

namespace {

constexpr std::int16_t oldestVersion = 9;

outlook::Application attachOrCreate(automation::ClassRegistry& classes, PendingError& errors)
{
    automation::Object found = errors.attempt([&] { return classes.running(outlook::applicationClass); });
    const auto createUnlessFound = [&](TextView className) {
        if (!found)
            found = errors.attempt([&] { return classes.create(className); });
    };
    createUnlessFound(outlook::applicationClassId);
    std::ranges::for_each(outlook::applicationClassVersions, createUnlessFound);
    createUnlessFound(outlook::applicationClass);
    return outlook::Application{found};
}

void refuse(Session& session, const Text& reason)
{
    session.services.toolkit.showMessage(session.phrasesAtAnyTime().LNGO2KNEEDED + Text{lineBreak} + reason,
        {ui::Buttons::Ok, ui::Icon::Critical}, productCaption);
    subEndProgram(session);
}

void attach(Session& session, PendingError& errors)
{
    session.ouaApp = attachOrCreate(session.services.classes, errors);
    if (!session.ouaApp) {
        session.services.toolkit.showMessage(u"Please start Outlook manually before you execute this application!",
            {ui::Buttons::Ok, ui::Icon::None}, programTitle);
        subEndProgram(session);
    }
    const std::int16_t version = fncOutlookVersion(session);
    if (version < oldestVersion)
        refuse(session, decimal(version));
    session.ounNameSpace = errors.attempt([&] { return session.ouaApp.getNamespace(); });
}

void showExplorer(const Session& session, outlook::DefaultFolder folderIndex, PendingError& errors)
{
    if (errors.attempt([&] { return session.ouaApp.activeExplorer(); }))
        return;
    if (errors.attempt([&] { return session.ouaApp.explorers().count(); }) == 0)
        errors.attempt([&] {
            session.ouaApp.explorers().add(
                session.ounNameSpace.getDefaultFolder(folderIndex), outlook::FolderDisplayMode::Normal);
        });
    errors.attempt([&] { session.ouaApp.explorers().item(1).activate(); });
}

} // namespace

void fncStartOutlook(Session& session, outlook::DefaultFolder folderIndex)
{
    session.trace.subTrace(u"Attempting to start MS Outlook 2000 or later");
    PendingError errors;
    if (!session.ouaApp)
        attach(session, errors);
    showExplorer(session, folderIndex, errors);
}

std::int16_t fncOutlookVersion(Session& session)
{
    if (session.intOutlookVersion == 0) {
        PendingError errors;
        if (!session.ouaApp)
            fncStartOutlook(session, outlook::DefaultFolder::Inbox);
        errors.attempt([&] {
            Text version = session.ouaApp.version();
            session.intOutlookVersion = fncMajorVersion(session.services.regional, version);
        });
    }
    return session.intOutlookVersion;
}

std::int16_t fncMajorVersion(const Regional& regional, Text& version)
{
    version = version.substr(0, version.find(u'.'));
    return toInteger(regional, version);
}

} // namespace rf
