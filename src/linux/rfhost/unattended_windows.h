#pragma once

#include "host/host_windows.h"

#include <iosfwd>

namespace rf::native {

/// The host's windows where there is no screen. An alert goes to a stream together with the answer that it gets: the
/// one that declines, or the one that agrees for who has decided so beforehand. No folder is chosen.
class UnattendedWindows final : public host::HostWindows {
public:
    UnattendedWindows(std::ostream& out, bool acceptAlerts)
        : out_(out)
        , acceptAlerts_(acceptAlerts)
    {
    }

    std::int32_t alert(const Text& title, const Text& message, std::int32_t buttons, std::int32_t icon) override;
    std::optional<host::FolderId> pickFolder(const std::vector<host::FolderRecord>&) override { return std::nullopt; }

private:
    std::ostream& out_;
    bool acceptAlerts_;
};

} // namespace rf::native
