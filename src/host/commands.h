#pragma once

#include "basic/clock.h"
#include "basic/regional.h"
#include "host/store.h"

#include <functional>
#include <iosfwd>
#include <span>
#include <string>

namespace rf::host {

/// What the commands of rfhost work with.
struct CommandContext {
    Store& store;
    const Regional& regional;
    const Clock& clock;
    std::ostream& out;
    std::ostream& problems;
    /// Whether progress may be shown on `problems`, which is then a terminal.
    bool showProgress = false;
};

/// Each command answers with the exit status: 0 done, 1 failed or done in part, 2 wrongly called. `arguments` are those
/// behind the command's name. What fails in the store leaves it as a `StoreError`.
using Command = int (*)(const CommandContext& context, std::span<const std::string> arguments);

/// Makes an installation: public folders, the root folder with its home page, mailboxes. Run twice it changes nothing.
int initCommand(const CommandContext& context, std::span<const std::string> arguments);
/// Reads calendar files into a calendar, or into one calendar for each location. A file is taken whole or not at all;
/// what it holds that cannot be read is named with its line.
int importCommand(const CommandContext& context, std::span<const std::string> arguments);
/// Writes a calendar as a calendar file.
int exportCommand(const CommandContext& context, std::span<const std::string> arguments);
/// Lists the folders, or the items of one.
int listCommand(const CommandContext& context, std::span<const std::string> arguments);
/// Shows an item with all its properties.
int showCommand(const CommandContext& context, std::span<const std::string> arguments);

/// The folder at a path, whose names are separated by "/" or "\"; an error that names the path when there is none.
[[nodiscard]] FolderRecord requireFolder(const Store& store, const std::string& path);

} // namespace rf::host
