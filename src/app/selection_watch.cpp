#include "app/selection_watch.h"

#include "app/session.h"
#include "booking/app_items.h"
#include "diagnostics/pending_error.h"
#include "storage/settings.h"

#include <algorithm>

namespace rf {

namespace {

constexpr TextView selectionFile = u"RFSel.txt";

/// Read whole, since the calendar product may replace it at any time. An empty file has nothing to read.
Text contentOf(const outlook::FileSystemObject& files, TextView path)
{
    PendingError errors;
    const auto stream = errors.attempt([&] { return files.openTextFile(path, outlook::OpenMode::Read); });
    Text content = errors.attempt([&] { return stream.readAll(); });
    errors.attempt([&] { stream.close(); });
    return content;
}

bool isManaged(const Session& session, TextView name)
{
    PendingError errors;
    return session.objSettings && errors.attempt([&] { return session.objSettings->Calendars.exists(name); });
}

/// In any case of the letters, as the calendars are managed: a second watcher would undo what the first one does.
bool isWatched(const Session& session, TextView name)
{
    return std::ranges::any_of(
        session.colAppItems, [&](const auto& entry) { return equalIgnoringCase(entry.second->FolderName(), name); });
}

outlook::Folder calendarInRoot(const Session& session, TextView name)
{
    const auto folders = session.objRootFolder.folders();
    return folders.count() >= 1 ? folders.item(name) : outlook::Folder{};
}

outlook::Folder calendarOfMailbox(const Session& session, TextView name)
{
    const auto space = session.ouaApp.getNamespace();
    return space.getSharedDefaultFolder(space.createRecipient(name), outlook::DefaultFolder::Calendar);
}

void watch(Session& session, const Text& name)
{
    PendingError errors;
    auto folder = errors.attempt([&] { return calendarInRoot(session, name); });
    if (!folder)
        folder = errors.attempt([&] { return calendarOfMailbox(session, name); });
    errors.attempt([&] {
        if (const auto items = folder ? folder.items() : outlook::Items{}) {
            const auto watcher = std::make_shared<cAppItems>(session);
            // First the name: the items may be heard of at once.
            watcher->setFolderName(name);
            watcher->setOuisItems(items, folder);
            session.colAppItems.emplace(name, watcher);
        }
    });
}

} // namespace

std::vector<Text> fncSelectedNames(TextView text)
{
    std::vector<Text> names = split(text, lineBreak);
    std::erase_if(names, [](const Text& name) { return name.empty(); });
    return names;
}

std::optional<std::vector<Text>> fncReadSelection(Session& session)
{
    PendingError errors;
    // An object of its own: the shared one ends the program where it cannot be made, and nothing here is worth that.
    const outlook::FileSystemObject files{
        errors.attempt([&] { return session.services.classes.create(outlook::fileSystemClass); })};
    const Text path = errors.attempt([&] {
        return files.buildPath(files.getSpecialFolder(outlook::SpecialFolder::Temporary).path(), selectionFile);
    });
    if (!errors.attempt([&] { return files.fileExists(path); }))
        return std::nullopt;
    return fncSelectedNames(contentOf(files, path));
}

void subWatchSelected(Session& session, const std::vector<Text>& names)
{
    for (const Text& name : names)
        if (isManaged(session, name) && !isWatched(session, name))
            watch(session, name);
}

} // namespace rf
