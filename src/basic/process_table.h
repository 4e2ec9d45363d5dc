#pragma once

#include "basic/text.h"

#include <cstdint>
#include <functional>

namespace rf {

struct ProcessEntry {
    std::uint32_t id = 0;
    /// The name of the executable file without its folder, as the system spells it.
    Text executable;
};

/// The processes of this machine. Nothing here throws.
class ProcessTable {
public:
    virtual ~ProcessTable() = default;

    /// Visits the processes of a snapshot in its order until `visit` answers true. Windows lists every process,
    /// the own one included; Linux leaves out the own one and those of other users, which this user may not end.
    virtual void walk(const std::function<bool(const ProcessEntry&)>& visit) const = 0;
    /// Whether this user runs another process of this program that was started before this one; on Linux also one that
    /// came later, when it was started to replace others and this one was not.
    [[nodiscard]] virtual bool previousInstanceRuns() const = 0;
    /// The file name, upper-cased, under which `walk` shows this program.
    [[nodiscard]] virtual TextView programFile() const = 0;
    /// The id of this process.
    [[nodiscard]] virtual std::uint32_t ownId() const = 0;
    /// Ends a process at once, with exit status 0 where the system lets it be chosen.
    virtual void terminate(std::uint32_t id) = 0;
};

} // namespace rf
