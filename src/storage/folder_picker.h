#pragma once

#include "outlook/folder.h"
#include "ui/form.h"

namespace rf {

class Session;

/// Lets the user pick a folder in the host's own dialog, with the host in front; then the form, when there is one,
/// comes back to the front. Empty when the user cancels or the host fails. No error leaves it; without a host the
/// program ends.
[[nodiscard]] outlook::Folder fncPickFolder(Session& session, ui::Form* formToReactivate);

} // namespace rf
