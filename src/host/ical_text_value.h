#pragma once

#include "basic/text.h"

#include <string>
#include <string_view>
#include <vector>

namespace rf::host::ical {

/// A text as it stands behind a property. A line break of CR LF is "\n" there and one of LF alone "\N", so that both
/// come back as they were.
[[nodiscard]] Text readTextValue(std::string_view bytes);
/// The values of a list, each a text.
[[nodiscard]] std::vector<Text> readTextList(std::string_view bytes);

struct WrittenText {
    std::string bytes;
    /// Something in the text has no place in a calendar text, half of a surrogate pair or a control character; U+FFFD
    /// stands for it.
    bool isWhole = true;
};

[[nodiscard]] WrittenText writeTextValue(TextView text);

} // namespace rf::host::ical
