#pragma once

#include "outlook/inspector.h"

namespace rf {

class Session;

/// The booking command bar of a window; empty when it has none. Fails as the host does.
[[nodiscard]] outlook::CommandBar findToolbar(const outlook::Inspector& inspector);

/// The booking command bar of a window, visible and at its top; made when the window has none, and then it goes with
/// the window. A failure is reported and ends the program.
[[nodiscard]] outlook::CommandBar fncGetToolbar(Session& session, const outlook::Inspector& inspector);

} // namespace rf
