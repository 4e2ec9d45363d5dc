#include "booking/root_lookup.h"

#include "app/attachment.h"
#include "app/session.h"
#include "app/shutdown.h"
#include "diagnostics/pending_error.h"
#include "diagnostics/product.h"
#include "outlook/explorer.h"
#include "storage/folder_picker.h"

namespace rf {

namespace {

constexpr TextView startPage = u"ROOMFOLD.HTM";
constexpr TextView questionTitle = u"Roomfold for Outlook 5.0";

/// Upper-cased; empty when the host does not tell it.
Text homePage(const outlook::Folder& folder, PendingError& errors)
{
    return upper(errors.attempt([&] { return folder.webViewUrl(); }));
}

/// The home page of a folder that may be anything: installations have a root that holds posts.
Text homePageOfPicked(const outlook::Folder& folder, PendingError& errors)
{
    const bool holdsPosts
        = folder && errors.attempt([&] { return folder.defaultItemType(); }) == outlook::ItemType::Post;
    return holdsPosts ? homePage(folder, errors) : Text{};
}

bool isRoot(TextView address) { return address.ends_with(startPage); }

outlook::Folder pickRoot(Session& session, PendingError& errors)
{
    const Phrases& phrases = session.language.phrases();
    ui::Toolkit& toolkit = session.services.toolkit;
    while (true) {
        const auto answer
            = toolkit.showMessage(phrases.LNGCHOOSEFOLDER, {ui::Buttons::OkCancel, ui::Icon::Question}, questionTitle);
        if (answer != ui::Answer::Ok)
            subEndProgram(session);
        auto folder = fncPickFolder(session, nullptr);
        if (isRoot(homePageOfPicked(folder, errors)))
            return folder;
        toolkit.showMessage(phrases.LNGINVALIDOUTLOOKFOLDER, {ui::Buttons::Ok, ui::Icon::None}, programTitle);
    }
}

} // namespace

void subGetRoot(Session& session)
{
    PendingError errors;
    if (!session.ouaApp)
        fncStartOutlook(session, outlook::DefaultFolder::Inbox);
    if (errors.attempt([&] { return session.ouaApp.explorers().count(); }) == 0)
        subEndProgram(session);
    session.objRootFolder = fncGetRoot(session);
    if (!session.objRootFolder)
        subQuit(session);
}

outlook::Folder fncGetRoot(Session& session)
{
    PendingError errors;
    const auto shown = errors.attempt([&] { return session.ouaApp.activeExplorer().currentFolder(); });
    const Text address = homePage(shown, errors);
    if (session.language.phrases().LNGCHOOSEFOLDER.empty())
        session.language.LoadLanguages(session.language.fncGetlocalLanguage());
    return isRoot(address) ? shown : pickRoot(session, errors);
}

void subQuit(Session& session)
{
    subCleanUp(session);
    subEndProgram(session);
}

} // namespace rf
