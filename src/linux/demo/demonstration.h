#pragma once

#include <filesystem>
#include <iosfwd>
#include <vector>

namespace rf {
class Session;
}

namespace rf::demo {

class HostClient;

struct DemoOptions {
    std::vector<std::filesystem::path> calendars;
    /// Where the pictures go.
    std::filesystem::path pictures;
    /// Whether a booking is moved about after the delivery.
    bool withFollowUp = true;
    /// Whether messages of the host go to a screen, where a person answers them.
    bool hasScreen = false;
};

/// Delivers the calendars beside the host, tells what the program made of them, and whether that was all as it should
/// be. The session has the host and the phrases. A `DemoError` or a `std::runtime_error` when it cannot go on.
[[nodiscard]] bool demonstrate(Session& session, const HostClient& host, const DemoOptions& options, std::ostream& out);

} // namespace rf::demo
