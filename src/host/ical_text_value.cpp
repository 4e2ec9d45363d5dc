#include "host/ical_text_value.h"

#include "host/ical_surrogates.h"

namespace rf::host::ical {
namespace {

constexpr bool isControl(char16_t unit) { return (unit < u' ' && unit != u'\t') || unit == u'\x7F'; }

/// What a backslash and this letter stand for; empty for a letter that needs none.
TextView meaningOf(char16_t letter)
{
    switch (letter) {
    case u'n':
        return lineBreak;
    case u'N':
        return u"\n";
    case u'\\':
        return u"\\";
    case u';':
        return u";";
    case u',':
        return u",";
    default:
        return {};
    }
}

/// How a line break or a mark that means something in a calendar text is written; empty where the unit is not one.
TextView escaped(char16_t unit, char16_t next)
{
    switch (unit) {
    case u'\r':
        return next == u'\n' ? TextView{u"\\n"} : TextView{};
    case u'\n':
        return u"\\N";
    case u'\\':
        return u"\\\\";
    case u';':
        return u"\\;";
    case u',':
        return u"\\,";
    default:
        return {};
    }
}

} // namespace

Text readTextValue(std::string_view bytes)
{
    const Text text = fromUtf8(bytes);
    Text result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size(); ++position) {
        const bool isEscape = text[position] == u'\\' && position + 1 < text.size();
        const TextView meaning = isEscape ? meaningOf(text[position + 1]) : TextView{};
        if (meaning.empty()) {
            result += text[position];
        } else {
            result += meaning;
            ++position;
        }
    }
    return result;
}

std::vector<Text> readTextList(std::string_view bytes)
{
    std::vector<Text> values;
    std::size_t begin = 0;
    for (std::size_t position = 0; position < bytes.size(); ++position) {
        if (bytes[position] == '\\') {
            ++position;
        } else if (bytes[position] == ',') {
            values.push_back(readTextValue(bytes.substr(begin, position - begin)));
            begin = position + 1;
        }
    }
    values.push_back(readTextValue(bytes.substr(begin)));
    return values;
}

WrittenText writeTextValue(TextView text)
{
    Text result;
    result.reserve(text.size());
    WrittenText written;
    for (std::size_t position = 0; position < text.size(); ++position) {
        const char16_t unit = text[position];
        const char16_t next = position + 1 < text.size() ? text[position + 1] : u'\0';
        if (const TextView escape = escaped(unit, next); !escape.empty()) {
            result += escape;
            position += unit == u'\r' ? 1 : 0;
        } else if (isHighHalf(unit) && isLowHalf(next)) {
            result += text.substr(position, 2);
            ++position;
        } else if (isHighHalf(unit) || isLowHalf(unit) || isControl(unit)) {
            result += replacementCharacter;
            written.isWhole = false;
        } else {
            result += unit;
        }
    }
    written.bytes = toUtf8(result);
    return written;
}

} // namespace rf::host::ical
