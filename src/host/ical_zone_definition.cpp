#include "host/ical_zone_definition.h"

#include "host/ical_rule_starts.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

namespace rf::host::ical {
namespace {

/// From a moment of UTC on the clocks are so far ahead of it.
struct Transition {
    Seconds utc;
    Seconds offset;
};

class DefinedZone final : public Zone {
public:
    DefinedZone(Seconds offsetBefore, std::vector<Transition> transitions)
        : offsetBefore_(offsetBefore)
        , transitions_(std::move(transitions))
    {
    }

    [[nodiscard]] Seconds offsetAt(Seconds utc) const override
    {
        const auto behind = std::upper_bound(transitions_.begin(), transitions_.end(), utc,
            [](Seconds moment, const Transition& transition) { return moment < transition.utc; });
        return behind == transitions_.begin() ? offsetBefore_ : (behind - 1)->offset;
    }

private:
    Seconds offsetBefore_;
    /// In order.
    std::vector<Transition> transitions_;
};

/// "+0100", "-033000".
std::optional<Seconds> readOffset(std::string_view text)
{
    if ((text.size() != 5 && text.size() != 7) || (text[0] != '+' && text[0] != '-')) {
        return std::nullopt;
    }
    Seconds offset = 0;
    for (std::size_t position = 1; position < text.size(); position += 2) {
        const char tens = text[position];
        const char ones = text[position + 1];
        if (tens < '0' || tens > '5' || ones < '0' || ones > '9') {
            return std::nullopt;
        }
        offset = offset * 60 + Seconds{tens - '0'} * 10 + (ones - '0');
    }
    offset *= text.size() == 5 ? 60 : 1;
    if (offset >= secondsPerDay) {
        return std::nullopt;
    }
    return text[0] == '-' ? -offset : offset;
}

/// The local times at which one of the zone's observances sets in.
std::vector<Seconds> onsets(const Component& observance, Seconds first, Seconds offsetFrom)
{
    // Beyond that nobody knows what the clocks will do.
    static const Seconds last = dayNumber(2200, 1, 1) * secondsPerDay;
    constexpr std::size_t most = 2000;
    std::vector<Seconds> times{first};
    for (const Property& property : observance.properties) {
        if (property.content.name == "RDATE" && times.size() < most) {
            const std::optional<WrittenTime> time = readTime(property.content.value);
            times.push_back(time ? time->time : first);
        } else if (property.content.name == "RRULE") {
            std::variant<Rule, RuleFault> read = readRule(fromUtf8(property.content.value));
            Rule* const rule = std::get_if<Rule>(&read);
            if (rule != nullptr && rule->frequency >= Frequency::Daily) {
                rule->until = rule->untilIsUtc && rule->until ? *rule->until + offsetFrom : rule->until;
                const std::vector<Seconds> starts = startsBetween(*rule, first, first, last, most);
                times.insert(times.end(), starts.begin(), starts.end());
            }
            break;
        }
    }
    return times;
}

} // namespace

std::unique_ptr<Zone> definedZone(const Component& definition)
{
    std::vector<Transition> transitions;
    std::optional<std::pair<Seconds, Seconds>> earliest;
    for (const Component& observance : definition.children) {
        const std::optional<WrittenTime> first = readTime(observance.value("DTSTART"));
        const std::optional<Seconds> from = readOffset(observance.value("TZOFFSETFROM"));
        const std::optional<Seconds> to = readOffset(observance.value("TZOFFSETTO"));
        if (!first || !from || !to) {
            continue;
        }
        for (const Seconds onset : onsets(observance, first->time, *from)) {
            transitions.push_back({.utc = onset - *from, .offset = *to});
        }
        const std::pair begin{first->time - *from, *from};
        earliest = std::min(earliest.value_or(begin), begin);
    }
    if (!earliest) {
        return nullptr;
    }
    std::stable_sort(transitions.begin(), transitions.end(),
        [](const Transition& left, const Transition& right) { return left.utc < right.utc; });
    return std::make_unique<DefinedZone>(earliest->second, std::move(transitions));
}

} // namespace rf::host::ical
