#pragma once

#include "basic/text.h"

#include <string>

namespace rf::test {

/// UTF-16LE with byte-order mark, as the phrase table is stored.
inline std::string utf16LittleEndian(TextView text, bool byteOrderMark = true)
{
    std::string bytes = byteOrderMark ? "\xFF\xFE" : "";
    for (const char16_t unit : text) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

} // namespace rf::test
