#pragma once

#include "basic/regional.h"
#include "outlook/constants.h"

#include <cstdint>

namespace rf {

class Session;

/// Sees to it that the session holds the host and its name space, attaching to the running one or starting one, and
/// that the host shows an explorer window; a new one opens on the given default folder. Success is seen in
/// `Session::ouaApp`. A host that cannot be had, or that is older than Outlook 2000, ends the program after a message.
/// No error leaves it.
void fncStartOutlook(Session& session, outlook::DefaultFolder folderIndex);

/// The host's major version, such as 9 or 12, asked for once. 0 when the host does not tell.
[[nodiscard]] std::int16_t fncOutlookVersion(Session& session);

/// The same under the name by which storage asks for it.
[[nodiscard]] inline std::int16_t fncGetOutlookVersion(Session& session) { return fncOutlookVersion(session); }

/// Shortens a version text such as "11.0.8169" to the part before its first point and answers that as a number.
/// Error 13 when it is none.
[[nodiscard]] std::int16_t fncMajorVersion(const Regional& regional, Text& version);

} // namespace rf
