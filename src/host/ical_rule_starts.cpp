#include "host/ical_rule_starts.h"

#include "host/ical_rule_walk.h"

#include <algorithm>

namespace rf::host::ical {
namespace {

/// The days of all the years there are, or a month by the second.
constexpr std::int64_t stepsOfWindow = 4'000'000;
/// A text may bring many rules whose end is to be found, and the end need not be exact.
constexpr std::int64_t stepsToEnd = 50'000;

/// Enough to count the days of yearly occurrences, up to what a call may take.
std::int64_t stepsToCount(std::int64_t count)
{
    constexpr std::int64_t perOccurrence = 400;
    constexpr std::int64_t most = 500'000;
    return std::min(stepsToEnd + count * perOccurrence, most);
}

/// Walks a counted rule from its first start up to `to`. False when its end was not found, though it may be there.
template <class Sink>
bool walkCounted(const Rule& rule, Seconds first, Seconds to, std::size_t most, const Sink& sink)
{
    const auto limit = static_cast<std::int64_t>(most);
    const std::int64_t count = std::min(rule.count.value_or(limit), limit);
    std::int64_t left = count - 1;
    return left == 0 || RuleWalk{rule, first, stepsToCount(count)}.walk(first + 1, to, [&](Seconds start) {
        sink(start);
        return --left > 0;
    });
}

/// The last start of a rule that ends on a date: looks back from there, further and further.
Seconds lastBefore(const Rule& rule, Seconds first, Seconds until)
{
    RuleWalk walk{rule, first, stepsToEnd};
    Seconds to = until;
    for (Seconds span = secondsPerDay; to > first; span *= 2) {
        const Seconds from = std::max(first + 1, to - span);
        std::optional<Seconds> last;
        const bool isComplete = walk.walk(from, to, [&last](Seconds start) {
            last = start;
            return true;
        });
        if (!isComplete) {
            return until;
        }
        if (last) {
            return *last;
        }
        to = from - 1;
    }
    return first;
}

} // namespace

std::vector<Seconds> startsBetween(const Rule& rule, Seconds first, Seconds from, Seconds to, std::size_t most)
{
    std::vector<Seconds> starts;
    if (to < first || most == 0) {
        return starts;
    }
    if (from <= first) {
        starts.push_back(first);
    }
    if (rule.count) {
        walkCounted(rule, first, to, most, [&](Seconds start) {
            if (start >= from && starts.size() < most) {
                starts.push_back(start);
            }
        });
        return starts;
    }
    if (starts.size() < most) {
        RuleWalk{rule, first, stepsOfWindow}.walk(std::max(from, first + 1), to, [&](Seconds start) {
            starts.push_back(start);
            return starts.size() < most;
        });
    }
    return starts;
}

std::optional<Seconds> lastStart(const Rule& rule, Seconds first, std::size_t most)
{
    if (rule.count) {
        Seconds last = first;
        const bool isComplete = walkCounted(rule, first, lastSecond(), most, [&last](Seconds start) { last = start; });
        return isComplete ? last : rule.until.value_or(lastSecond());
    }
    if (!rule.until) {
        return std::nullopt;
    }
    return *rule.until <= first ? first : lastBefore(rule, first, *rule.until);
}

} // namespace rf::host::ical
