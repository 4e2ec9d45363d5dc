#pragma once

#include "basic/process_table.h"

namespace rf::native {

/// The processes of this user, read from /proc. The own process is not among them.
class LinuxProcessTable final : public ProcessTable {
public:
    void walk(const std::function<bool(const ProcessEntry&)>& visit) const override;
    [[nodiscard]] bool previousInstanceRuns() const override;
    [[nodiscard]] TextView programFile() const override { return u"RFBOOKINGINFO"; }
    [[nodiscard]] std::uint32_t ownId() const override;
    void terminate(std::uint32_t id) override;
};

} // namespace rf::native
