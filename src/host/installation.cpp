#include "host/installation.h"

#include "outlook/constants.h"

#include <algorithm>

namespace rf::host {

namespace {

constexpr auto mails = static_cast<std::int32_t>(outlook::ItemType::Mail);
constexpr auto appointments = static_cast<std::int32_t>(outlook::ItemType::Appointment);
constexpr auto posts = static_cast<std::int32_t>(outlook::ItemType::Post);
constexpr TextView separator = u"\\";

std::optional<FolderRecord> child(const std::vector<FolderRecord>& folders, FolderId parent, TextView name)
{
    const auto found = std::ranges::find_if(folders,
        [&](const FolderRecord& folder) { return folder.parent == parent && equalIgnoringCase(folder.name, name); });
    return found == folders.end() ? std::nullopt : std::optional{*found};
}

FolderId ensure(Store& store, const FolderRecord& wanted)
{
    if (const auto found = child(store.folders(), wanted.parent, wanted.name))
        return found->id;
    return store.addFolder(wanted);
}

FolderRecord folder(FolderId parent, TextView name, std::int32_t itemType, FolderRole role = FolderRole::None)
{
    FolderRecord record;
    record.parent = parent;
    record.name = name;
    record.defaultItemType = itemType;
    record.role = role;
    return record;
}

} // namespace

FolderId ensureMailbox(Store& store, TextView person)
{
    const Text name = u"Mailbox - " + Text{person};
    const FolderId root = ensure(store, folder(FolderId::None, name, mails, FolderRole::MailboxRoot));
    ensure(store, folder(root, u"Inbox", mails, FolderRole::Inbox));
    ensure(store, folder(root, u"Calendar", appointments, FolderRole::Calendar));
    ensure(store, folder(root, u"Drafts", mails, FolderRole::Drafts));
    return root;
}

FolderId ensurePublicFolders(Store& store)
{
    const FolderId root = ensure(store, folder(FolderId::None, u"Public Folders", posts, FolderRole::PublicRoot));
    return ensure(store, folder(root, u"All Public Folders", posts));
}

FolderId ensureRoomfoldRoot(Store& store, TextView name, TextView homePage)
{
    FolderRecord root = folder(ensurePublicFolders(store), name, posts);
    root.webViewUrl = homePage;
    root.webViewOn = true;
    return ensure(store, root);
}

FolderId ensureCalendar(Store& store, FolderId root, TextView name)
{
    return ensure(store, folder(root, name, appointments));
}

std::optional<FolderRecord> folderAt(const Store& store, TextView path)
{
    const auto folders = store.folders();
    std::optional<FolderRecord> found;
    for (const Text& name : split(path, separator)) {
        if (name.empty() && !found)
            continue;
        found = child(folders, found ? found->id : FolderId::None, name);
        if (!found)
            return std::nullopt;
    }
    return found;
}

Text pathOf(const Store& store, FolderId folder)
{
    const auto folders = store.folders();
    Text path;
    for (auto id = folder; id != FolderId::None;) {
        const auto found = std::ranges::find(folders, id, &FolderRecord::id);
        if (found == folders.end())
            return {};
        path.insert(0, Text{separator} + found->name);
        id = found->parent;
    }
    return path.empty() ? path : Text{separator} + path;
}

} // namespace rf::host
