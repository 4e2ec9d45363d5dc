#include "host/ical_content_line.h"

#include "host/ical_surrogates.h"

#include <algorithm>

namespace rf::host::ical {
namespace {

/// The first unit that is half of a pair without the other half; the length of the text when there is none.
std::size_t firstLoneHalf(TextView text, std::size_t from = 0)
{
    for (std::size_t position = from; position < text.size(); ++position) {
        if (isHighHalf(text[position]) && position + 1 < text.size() && isLowHalf(text[position + 1])) {
            ++position;
        } else if (isHighHalf(text[position]) || isLowHalf(text[position])) {
            return position;
        }
    }
    return text.size();
}

char upperAscii(char letter) { return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter; }

std::string upperAscii(std::string_view text)
{
    std::string result{text};
    std::transform(result.begin(), result.end(), result.begin(), [](char letter) { return upperAscii(letter); });
    return result;
}

/// The end of what comes before one of the marks, which count for nothing between quotation marks.
std::size_t findUnquoted(std::string_view text, std::string_view marks)
{
    bool isQuoted = false;
    for (std::size_t position = 0; position < text.size(); ++position) {
        if (text[position] == '"') {
            isQuoted = !isQuoted;
        } else if (!isQuoted && marks.find(text[position]) != std::string_view::npos) {
            return position;
        }
    }
    return std::string_view::npos;
}

std::string unquoted(std::string_view value)
{
    std::string result{value};
    std::erase(result, '"');
    return result;
}

bool isName(std::string_view name)
{
    return !name.empty() && std::all_of(name.begin(), name.end(), [](char letter) {
        const char capital = upperAscii(letter);
        return (capital >= 'A' && capital <= 'Z') || (letter >= '0' && letter <= '9') || letter == '-' || letter == '_';
    });
}

} // namespace

std::size_t LogicalLine::lineOf(std::size_t byte) const
{
    const auto behind = std::upper_bound(continuations.begin(), continuations.end(), byte);
    return line + static_cast<std::size_t>(behind - continuations.begin());
}

LogicalLines::LogicalLines(std::string_view bytes)
    : rest_(bytes)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (rest_.starts_with(byteOrderMark)) {
        rest_.remove_prefix(byteOrderMark.size());
    }
}

std::string_view LogicalLines::takeLine()
{
    const std::size_t end = rest_.find('\n');
    std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    ++lineNumber_;
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

void LogicalLines::append(LogicalLine& line, std::string_view bytes)
{
    const std::size_t kept = std::min(bytes.size(), longestLine - line.bytes.size());
    line.bytes += bytes.substr(0, kept);
    line.isTooLong = line.isTooLong || kept < bytes.size();
}

bool LogicalLines::next(LogicalLine& line)
{
    const auto continues = [this] { return rest_.starts_with(' ') || rest_.starts_with('\t'); };
    line.bytes.clear();
    line.continuations.clear();
    line.isTooLong = false;
    while (!rest_.empty() && line.bytes.empty()) {
        append(line, takeLine());
        line.line = lineNumber_;
        while (continues()) {
            // A line that is cut off already needs no more places to be told by.
            if (!line.isTooLong) {
                line.continuations.push_back(line.bytes.size());
            }
            append(line, takeLine().substr(1));
        }
    }
    return !line.bytes.empty();
}

std::optional<std::size_t> firstBadByte(std::string_view bytes)
{
    if (std::all_of(bytes.begin(), bytes.end(), [](char byte) { return (byte & 0x80) == 0; })) {
        return std::nullopt;
    }
    const Text text = fromUtf8(bytes);
    const std::string back = toUtf8(text);
    const auto differing = std::mismatch(bytes.begin(), bytes.end(), back.begin(), back.end()).first;
    const std::size_t half = toUtf8(TextView{text}.substr(0, firstLoneHalf(text))).size();
    const std::size_t bad = std::min(static_cast<std::size_t>(differing - bytes.begin()), half);
    return bad < bytes.size() ? std::optional{bad} : std::nullopt;
}

std::string repaired(std::string_view bytes)
{
    Text text = fromUtf8(bytes);
    for (std::size_t half = firstLoneHalf(text); half < text.size(); half = firstLoneHalf(text, half)) {
        text[half] = replacementCharacter;
    }
    return toUtf8(text);
}

std::string_view ContentLine::parameter(std::string_view wanted) const
{
    for (const Parameter& found : parameters) {
        if (found.name == wanted) {
            return found.value;
        }
    }
    return {};
}

std::optional<ContentLine> readContentLine(std::string_view bytes)
{
    std::size_t end = findUnquoted(bytes, ";:");
    if (end == std::string_view::npos || !isName(bytes.substr(0, end))) {
        return std::nullopt;
    }
    ContentLine line{.name = upperAscii(bytes.substr(0, end)), .parameters = {}, .value = {}};
    while (bytes[end] == ';') {
        bytes.remove_prefix(end + 1);
        end = findUnquoted(bytes, ";:");
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        const std::string_view parameter = bytes.substr(0, end);
        const std::size_t sign = parameter.find('=');
        if (sign == std::string_view::npos) {
            return std::nullopt;
        }
        line.parameters.push_back(
            {.name = upperAscii(parameter.substr(0, sign)), .value = unquoted(parameter.substr(sign + 1))});
    }
    line.value = bytes.substr(end + 1);
    return line;
}

bool sameName(std::string_view left, std::string_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
        [](char one, char other) { return upperAscii(one) == upperAscii(other); });
}

} // namespace rf::host::ical
