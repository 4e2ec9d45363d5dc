#pragma once

#include "outlook/name_space.h"

namespace rf {

class Session;

/// The path of a folder: \\store\folder\subfolder, \\store for the root of a store. It ends at the first folder on the
/// way up that is named like a store. Empty when the way up cannot be followed to a store, since a part of a path would
/// lead elsewhere. No error leaves it.
[[nodiscard]] Text fncGetFolderPath(Session& session, const outlook::Folder& folder, const outlook::NameSpace& mapi);

/// The folder at such a path. A path without a backslash is a person's name and gives the default folder of type 6 of
/// that person's mailbox; a blank path gives none. The host's error leaves it where a name on the way is not there, 9
/// where the path has no store.
[[nodiscard]] outlook::Folder fncGetFolderFromPath(Session& session, TextView path);

} // namespace rf
