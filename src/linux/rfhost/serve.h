#pragma once

#include "host/commands.h"

#include <filesystem>

namespace rf::native {

struct ServeOptions {
    /// Whose mailbox is the default one.
    Text user;
    /// The folder that the first window shows; the root folder of the calendar product when it is empty.
    std::string folder;
    /// The program that the home page starts; empty for none.
    std::filesystem::path program;
    /// Whether alerts are answered with the button that agrees and no person is asked anything, screen or not.
    bool acceptAlerts = false;
    /// Whether there are windows. They need a QApplication.
    bool windows = false;
};

/// Whether a host has windows: where there is a screen, or where they are asked for though nobody sees them.
[[nodiscard]] bool wantsWindows(bool asked);

/// Serves the object model on the session bus until it is told to end by a signal or a program. The exit status.
int serve(const host::CommandContext& context, const ServeOptions& options);

} // namespace rf::native
