#pragma once

namespace rf {

class Session;
struct Services;

/// The whole life of the process: `Main`, then events for as long as a form is loaded.
void runProgram(const Services& services);

/// The entry procedure. Makes sure that one instance runs, attaches to the host, loads the language and starts to
/// watch. It returns when there is nothing to watch, with no form loaded, and also when all is set up, with a form
/// that keeps the process alive; an error in it is reported and ends the program.
void Main(Session& session);

/// Lets the visual styles of the manifest take effect; a failure does not matter.
void subInitCommonControls(Session& session);

} // namespace rf
