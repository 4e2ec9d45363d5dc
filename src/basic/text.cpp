#include "basic/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace rf {
namespace {

// A plain search for the first unit is several times as fast as u16string_view::find, which has no fast path.
std::size_t findExactly(TextView text, TextView what, std::size_t from)
{
    const char16_t* const end = text.data() + text.size();
    const char16_t* place = text.data() + from;
    while ((place = std::find(place, end, what.front())) != end) {
        const auto position = static_cast<std::size_t>(place - text.data());
        if (text.compare(position, what.size(), what) == 0) {
            return position;
        }
        ++place;
    }
    return Text::npos;
}

} // namespace

TextView trim(TextView text)
{
    const std::size_t first = text.find_first_not_of(u' ');
    if (first == Text::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

std::vector<TextView> splitViews(TextView text, TextView delimiter)
{
    if (text.empty()) {
        return {};
    }
    if (delimiter.empty()) {
        return {text};
    }
    std::vector<TextView> pieces;
    std::size_t begin = 0;
    for (std::size_t end = 0; (end = findExactly(text, delimiter, begin)) != Text::npos;) {
        pieces.push_back(text.substr(begin, end - begin));
        begin = end + delimiter.size();
    }
    pieces.push_back(text.substr(begin));
    return pieces;
}

std::vector<Text> split(TextView text, TextView delimiter)
{
    const std::vector<TextView> views = splitViews(text, delimiter);
    return {views.begin(), views.end()};
}

Text join(std::span<const Text> pieces, TextView delimiter)
{
    std::size_t length = pieces.empty() ? 0 : (pieces.size() - 1) * delimiter.size();
    for (const Text& piece : pieces) {
        length += piece.size();
    }
    Text result;
    result.reserve(length);
    for (const Text& piece : pieces) {
        if (&piece != pieces.data()) {
            result += delimiter;
        }
        result += piece;
    }
    return result;
}

Text replaceAll(TextView text, TextView what, TextView with)
{
    if (what.empty()) {
        return Text{text};
    }
    Text result;
    std::size_t begin = 0;
    for (std::size_t end = 0; (end = findExactly(text, what, begin)) != Text::npos;) {
        result += text.substr(begin, end - begin);
        result += with;
        begin = end + what.size();
    }
    result += text.substr(begin);
    return result;
}

Text decimal(long long number)
{
    std::array<char, std::numeric_limits<long long>::digits10 + 2> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    return {digits.data(), written.ptr};
}

} // namespace rf
