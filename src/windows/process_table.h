#pragma once

#include "basic/process_table.h"

#include <compare>

namespace rf::native {

/// Which of two processes was started first. Ids decide between those of one instant, so that of two exactly one is
/// the earlier one.
struct ProcessStart {
    /// In units of the system's clock.
    std::uint64_t time = 0;
    std::uint32_t id = 0;

    friend auto operator<=>(ProcessStart, ProcessStart) = default;
};

/// The processes of all users; `previousInstanceRuns` looks at those of this terminal session, which share this
/// user's screen, and only at those that this user may ask when they were started.
class ToolhelpProcessTable final : public ProcessTable {
public:
    void walk(const std::function<bool(const ProcessEntry&)>& visit) const override;
    [[nodiscard]] bool previousInstanceRuns() const override;
    [[nodiscard]] TextView programFile() const override { return u"RFBOOKINGINFO.EXE"; }
    [[nodiscard]] std::uint32_t ownId() const override;
    void terminate(std::uint32_t id) override;
};

} // namespace rf::native
