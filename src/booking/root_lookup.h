#pragma once

#include "outlook/folder.h"

namespace rf {

class Session;

/// Sees to it that the host is attached and visible, and keeps the installation's root folder in the session. A host
/// without an explorer window ends the program: it runs only beside a visible host. No error leaves it.
void subGetRoot(Session& session);

/// The root folder of the installation: the folder that the active explorer shows, when its home page is the start page
/// of the calendar product; else the one that the user picks, who is asked until it has that page. A user who declines
/// ends the program. No error leaves it: a folder that the host cannot show counts as one without a home page.
[[nodiscard]] outlook::Folder fncGetRoot(Session& session);

/// The orderly stop for want of a root folder.
[[noreturn]] void subQuit(Session& session);

} // namespace rf
