#pragma once

namespace rf {

class Session;

/// The one way out of the program: clean-up, every form unloaded, and the end of the process. Never returns.
[[noreturn]] void subEndProgram(Session& session);

/// Unloads the forms, the timer form and the orders form among them, and releases the process-wide objects. A form
/// that refuses to unload ends the first round of unloading, not the clean-up.
void subCleanUp(Session& session);

/// Unloads every form that is still loaded, from the last to the first, until one refuses; then lets go of the host.
void subUnloadAllForms(Session& session);

} // namespace rf
