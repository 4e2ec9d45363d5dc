#pragma once

#include "basic/text.h"

namespace rf {

class Session;

/// The current user's display name: out of the mailbox's name, else the system's log-on name. Asked for once and kept
/// in the session. No error leaves it; without a host the program ends.
[[nodiscard]] Text fncGetUserName(Session& session);

/// Takes the name out of the mailbox's name: "Mailbox - Jane Doe" gives "Jane Doe", "Doe, Jane" itself, and a name
/// with neither mark, such as "Personal Folders", leaves the session's as it was.
void subGetSafeMailboxName(Session& session);

/// Takes the log-on name out of the environment.
void subGetUserNameFromEnvironment(Session& session);

} // namespace rf
