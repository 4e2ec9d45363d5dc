#include "basic/case_table.h"
#include "basic/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <numeric>

namespace rf {
namespace {

constexpr std::size_t twoWayRanges = std::size(caseRanges);

constexpr CaseRange reversed(const CaseRange& range)
{
    const auto width = static_cast<char16_t>(range.last - range.first);
    return {range.counterpart, static_cast<char16_t>(range.counterpart + width), range.first, range.step};
}

constexpr bool standsBefore(const CaseRange& left, const CaseRange& right) { return left.first < right.first; }

consteval auto loweringRanges()
{
    std::array<CaseRange, twoWayRanges + std::size(loweredOnly)> ranges{};
    auto end = std::copy(std::begin(caseRanges), std::end(caseRanges), ranges.begin());
    std::copy(std::begin(loweredOnly), std::end(loweredOnly), end);
    std::sort(ranges.begin(), ranges.end(), standsBefore);
    return ranges;
}

consteval auto raisingRanges()
{
    std::array<CaseRange, twoWayRanges + std::size(raisedOnly)> ranges{};
    auto end = std::transform(std::begin(caseRanges), std::end(caseRanges), ranges.begin(), reversed);
    std::copy(std::begin(raisedOnly), std::end(raisedOnly), end);
    std::sort(ranges.begin(), ranges.end(), standsBefore);
    return ranges;
}

constexpr auto lowering = loweringRanges();
constexpr auto raising = raisingRanges();

constexpr bool overlap(const CaseRange& left, const CaseRange& right) { return left.last >= right.first; }

static_assert(std::adjacent_find(lowering.begin(), lowering.end(), overlap) == lowering.end());
static_assert(std::adjacent_find(raising.begin(), raising.end(), overlap) == raising.end());

char16_t mapped(std::span<const CaseRange> ranges, char16_t unit)
{
    const auto endsBefore = [](const CaseRange& range, char16_t sought) { return range.last < sought; };
    const auto range = std::lower_bound(ranges.begin(), ranges.end(), unit, endsBefore);
    if (range == ranges.end() || unit < range->first || (unit - range->first) % range->step != 0) {
        return unit;
    }
    return static_cast<char16_t>(range->counterpart + (unit - range->first));
}

constexpr char16_t firstBeyondAscii = 0x80;
constexpr char16_t caseDistance = u'a' - u'A';

inline char16_t upperUnit(char16_t unit)
{
    if (unit < firstBeyondAscii) {
        return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - caseDistance) : unit;
    }
    return mapped(raising, unit);
}

inline char16_t lowerUnit(char16_t unit)
{
    if (unit < firstBeyondAscii) {
        return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + caseDistance) : unit;
    }
    return mapped(lowering, unit);
}

inline bool sameLetter(char16_t left, char16_t right) { return left == right || upperUnit(left) == upperUnit(right); }

} // namespace

char16_t upper(char16_t unit) { return upperUnit(unit); }

char16_t lower(char16_t unit) { return lowerUnit(unit); }

Text upper(TextView text)
{
    Text result{text};
    std::transform(result.begin(), result.end(), result.begin(), upperUnit);
    return result;
}

Text lower(TextView text)
{
    Text result{text};
    std::transform(result.begin(), result.end(), result.begin(), lowerUnit);
    return result;
}

int compareIgnoringCase(TextView left, TextView right)
{
    const auto [leftEnd, rightEnd] = std::mismatch(left.begin(), left.end(), right.begin(), right.end(), sameLetter);
    if (leftEnd == left.end() || rightEnd == right.end()) {
        return static_cast<int>(leftEnd != left.end()) - static_cast<int>(rightEnd != right.end());
    }
    return upperUnit(*leftEnd) < upperUnit(*rightEnd) ? -1 : 1;
}

bool equalIgnoringCase(TextView left, TextView right)
{
    return left.size() == right.size() && std::equal(left.begin(), left.end(), right.begin(), sameLetter);
}

std::size_t findIgnoringCase(TextView text, TextView what, std::size_t from)
{
    if (from > text.size()) {
        return Text::npos;
    }
    const auto begin = text.begin() + static_cast<std::ptrdiff_t>(from);
    const auto found = std::search(begin, text.end(), what.begin(), what.end(), sameLetter);
    if (found == text.end() && !what.empty()) {
        return Text::npos;
    }
    return static_cast<std::size_t>(found - text.begin());
}

// FNV-1a over the upper-case units: the same case mapping as equality, and one multiplication per unit.
std::size_t HashIgnoringCase::operator()(TextView text) const
{
    constexpr std::uint64_t offset = 0xCBF29CE484222325;
    constexpr std::uint64_t prime = 0x100000001B3;
    const auto mix = [](std::uint64_t hash, char16_t unit) { return (hash ^ upperUnit(unit)) * prime; };
    const std::uint64_t hash = std::accumulate(text.begin(), text.end(), offset, mix);
    return static_cast<std::size_t>(hash ^ (hash >> 32));
}

} // namespace rf
