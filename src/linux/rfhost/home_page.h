#pragma once

#include "host/application.h"

#include <filesystem>
#include <string>

namespace rf::native {

/// What the home page of the calendar product does when its folder is shown: it lists the calendars that are to be
/// watched in the selection file, and starts the program beside the host.
class HomePage {
public:
    /// `program` is the path of the program to start; empty when none is to be started.
    HomePage(host::Application& host, std::filesystem::path program);

    /// Told of the folder that a window shows now.
    void folderShown(const host::FolderRecord& folder) const;

private:
    void writeSelection(host::FolderId root) const;

    host::Application& host_;
    std::filesystem::path program_;
};

} // namespace rf::native
