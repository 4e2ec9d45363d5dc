#pragma once

#include "basic/text.h"

#include <optional>
#include <vector>

namespace rf {

class Session;

/// The names in the selection file, which the calendar product writes into the temporary folder: the calendars that it
/// shows now. Nothing when there is no such file; none when it cannot be read now. No error leaves it.
[[nodiscard]] std::optional<std::vector<Text>> fncReadSelection(Session& session);

/// The names in the text of a selection file: one a line, lines separated by CR LF, empty ones passed over.
[[nodiscard]] std::vector<Text> fncSelectedNames(TextView text);

/// Watches each selected calendar that is managed and not watched yet. It is looked for in the root folder, else as the
/// calendar of the mailbox of that name; one that cannot be had now is looked for again the next time. What is no
/// longer selected stays watched. No error leaves it.
void subWatchSelected(Session& session, const std::vector<Text>& names);

} // namespace rf
