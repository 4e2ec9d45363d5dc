#pragma once

#include "host/application.h"

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace rf::native {

/// What the home page of the calendar product does: it lists the calendars that are to be watched in the selection
/// file, starts the program beside the host when its folder is shown, adds resources and shows what describes them.
class HomePage {
public:
    struct Calendar {
        host::FolderId id = host::FolderId::None;
        Text name;
        /// Whether it is listed in the selection file.
        bool ticked = true;

        friend bool operator==(const Calendar&, const Calendar&) = default;
    };

    /// `program` is the path of the program to start; empty when none is to be started.
    HomePage(host::Application& host, std::filesystem::path program);

    /// Told of the folder that a window shows now.
    void folderShown(const host::FolderRecord& folder) const;

    /// The calendars of a root folder. All are ticked until a person decides otherwise.
    [[nodiscard]] std::vector<Calendar> calendars(host::FolderId root) const;
    /// Takes a calendar into the selection file or out of it.
    void tick(host::FolderId root, host::FolderId calendar, bool ticked);
    /// Adds a resource with a calendar of its own, and ticks it. Error `badArgument` for a name that it cannot have.
    host::FolderId addResource(host::FolderId root, const Text& name);
    /// Shows the description of a resource in the program's viewer, which takes the place of a program that runs.
    void showDescription(host::FolderId root, const Text& resource) const;
    /// Whether there is a program to show a description with.
    [[nodiscard]] bool hasProgram() const { return !program_.empty(); }

private:
    void start(const std::vector<std::string>& arguments) const;
    void writeSelection(host::FolderId root) const;

    host::Application& host_;
    std::filesystem::path program_;
    std::set<host::FolderId> unticked_;
};

} // namespace rf::native
