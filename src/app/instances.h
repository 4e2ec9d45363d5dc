#pragma once

#include <cstdint>

namespace rf {

class Session;

/// The process id of the first process in the snapshot that runs this program's executable; 0 when there is none.
/// Waiting events are handled between the entries.
[[nodiscard]] std::uint32_t GetRFProcess(Session& session);

/// Ends the running instance, so that this one takes its place.
void KillRFProcess(Session& session);

/// Whether the command line has something for this instance to do, which is a reason to replace a running one: a
/// number, a blank and a page.
[[nodiscard]] bool fncHasArguments(const Session& session);

} // namespace rf
