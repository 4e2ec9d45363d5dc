#pragma once

#include "outlook/item.h"

#include <iomanip>
#include <sstream>

namespace rf::test {

/// A text in one line of ASCII: whatever is none stands as \uXXXX, one for each unit.
inline std::string escaped(TextView text)
{
    constexpr TextView digits = u"0123456789ABCDEF";
    std::string line;
    for (const char16_t unit : text) {
        if (unit >= u' ' && unit <= u'~' && unit != u'\\') {
            line += static_cast<char>(unit);
            continue;
        }
        line += "\\u";
        for (int shift = 12; shift >= 0; shift -= 4)
            line += static_cast<char>(digits[unit >> shift & 0xF]);
    }
    return line;
}

/// The properties of an item in the order in which they were made, a line for each: name, type and value.
inline std::string storedProperties(const outlook::Item& item)
{
    std::ostringstream lines;
    const auto properties = item.userProperties();
    for (std::int32_t position = 1; position <= properties.count(); ++position) {
        const auto property = properties.item(position);
        const auto value = property.value();
        lines << toUtf8(property.name()) << " " << outlook::code(property.type()) << " ";
        if (const auto* text = value.getIf<Text>())
            lines << '"' << escaped(*text) << '"';
        else
            lines << std::setprecision(17) << value.number();
        lines << "\n";
    }
    return lines.str();
}

} // namespace rf::test
