#pragma once

#include "outlook/inspector.h"

namespace rf {

class Session;

/// Finishes the set-up of an appointment window that has just been opened, and answers whether it is finished. A window
/// that shows no booking command bar yet is shown and activated anew, since the host draws a bar that was added to an
/// open window only then; when that fails it is to be tried again. A window with the bar gets the settings' template as
/// the text of its appointment when that is new and empty. No error leaves it.
[[nodiscard]] bool fncFinishWindow(Session& session, const outlook::Inspector& inspector);

} // namespace rf
