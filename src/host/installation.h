#pragma once

#include "host/store.h"

namespace rf::host {

/// The message stores that an installation begins with. Each function finds what is there already and adds what is
/// missing, so that running it twice changes nothing.

/// The mailbox of a person, with its inbox, calendar and drafts. Answers its root.
FolderId ensureMailbox(Store& store, TextView person);

/// The public store with the folder that all public folders lie in. Answers that folder.
FolderId ensurePublicFolders(Store& store);

/// The root folder of the calendar product among the public folders, with the home page that programs know it by.
FolderId ensureRoomfoldRoot(Store& store, TextView name, TextView homePage);

/// A resource calendar in the root folder.
FolderId ensureCalendar(Store& store, FolderId root, TextView name);

/// The folder at a path of the form \\store\folder\subfolder; nothing when there is none.
[[nodiscard]] std::optional<FolderRecord> folderAt(const Store& store, TextView path);
/// The path of a folder in that form; empty when it is gone.
[[nodiscard]] Text pathOf(const Store& store, FolderId folder);

} // namespace rf::host
