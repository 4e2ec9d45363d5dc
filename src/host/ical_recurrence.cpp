#include "host/ical_rule_starts.h"
#include "host/ical_zone.h"
#include "host/recurrence.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace rf::host {
namespace {

using namespace ical;

/// A series on the clocks of its own zone. Between them and the installation's it goes by UTC.
class Series {
public:
    Series(const ItemRecord& item, ZoneTable& zones)
        : zones_(zones)
        , zone_(item.allDay ? nullptr : zones.named(item.timeZone))
        , first_(toZone(item.start.seconds()))
        , length_(std::max(toZone(item.end.seconds()) - first_, Seconds{0}))
    {
        std::variant<Rule, RuleFault> rule = readRule(item.recurrence->rule);
        if (Rule* const readable = std::get_if<Rule>(&rule)) {
            rule_ = std::move(*readable);
            if (rule_->untilIsUtc && rule_->until) {
                rule_->until = zone_ != nullptr ? zone_->toWall(*rule_->until) : zones.utcToLocal(*rule_->until);
            }
        }
    }

    /// The starts whose occurrences may lie in an interval of local time, on the clocks of the zone.
    [[nodiscard]] std::vector<Seconds> starts(Seconds from, Seconds to) const
    {
        // Two clocks of one world are never further apart.
        constexpr Seconds margin = 2 * secondsPerDay;
        if (!rule_) {
            return {first_};
        }
        return startsBetween(
            *rule_, first_, clamped(from - length_ - margin), clamped(to + margin), RecurrenceEngine::mostOccurrences);
    }

    /// Nothing for a series without end.
    [[nodiscard]] std::optional<Seconds> last() const
    {
        return rule_ ? lastStart(*rule_, first_, RecurrenceEngine::mostOccurrences) : first_;
    }

    [[nodiscard]] Seconds toZone(Seconds local) const
    {
        return zone_ == nullptr ? local : zone_->toWall(zones_.localToUtc(local));
    }

    /// The occurrence that begins at a time on the clocks of the zone. A change of the clocks can turn a short one
    /// around, which then has no length.
    [[nodiscard]] Occurrence at(Seconds start) const
    {
        const Seconds begin = toLocal(start);
        const Date original = Date::fromSeconds(begin);
        return {.original = original,
            .start = original,
            .end = Date::fromSeconds(std::max(begin, toLocal(start + length_))),
            .change = std::nullopt};
    }

private:
    [[nodiscard]] Seconds toLocal(Seconds wall) const
    {
        return clamped(zone_ == nullptr ? wall : zones_.utcToLocal(zone_->toUtc(wall)));
    }

    const ZoneTable& zones_;
    const Zone* zone_;
    Seconds first_;
    Seconds length_;
    std::optional<Rule> rule_;
};

/// The changes of a series by the start that the series gives them.
class Changes {
public:
    explicit Changes(const RecurrenceRecord& recurrence)
    {
        for (std::size_t index = 0; index < recurrence.changes.size(); ++index) {
            byOriginal_.emplace_back(recurrence.changes[index].original.seconds(), index);
        }
        std::sort(byOriginal_.begin(), byOriginal_.end());
    }

    [[nodiscard]] bool has(Seconds original) const
    {
        const auto found
            = std::lower_bound(byOriginal_.begin(), byOriginal_.end(), std::pair{original, std::size_t{0}});
        return found != byOriginal_.end() && found->first == original;
    }

private:
    std::vector<std::pair<Seconds, std::size_t>> byOriginal_;
};

bool overlaps(const Occurrence& occurrence, Seconds from, Seconds to)
{
    return occurrence.start.seconds() <= to && occurrence.end.seconds() >= from;
}

Occurrence changed(const OccurrenceChange& change, std::size_t index)
{
    return {.original = change.original, .start = change.start, .end = change.end, .change = index};
}

/// In order of their start, each original start once: a further start may be one of the rule's as well.
void tidy(std::vector<Occurrence>& occurrences)
{
    const auto key = [](const Occurrence& occurrence) {
        return std::pair{occurrence.start.seconds(), occurrence.original.seconds()};
    };
    std::sort(occurrences.begin(), occurrences.end(),
        [&key](const Occurrence& left, const Occurrence& right) { return key(left) < key(right); });
    const auto same = [&key](const Occurrence& left, const Occurrence& right) { return key(left) == key(right); };
    occurrences.erase(std::unique(occurrences.begin(), occurrences.end(), same), occurrences.end());
}

class IcalRecurrenceEngine final : public RecurrenceEngine {
public:
    [[nodiscard]] std::vector<Occurrence> expand(const ItemRecord& item, Date from, Date to) const override
    {
        const Seconds begin = from.seconds();
        const Seconds end = to.seconds();
        std::vector<Occurrence> occurrences;
        if (!item.recurrence) {
            occurrences.push_back({.original = item.start, .start = item.start, .end = item.end, .change = {}});
            std::erase_if(occurrences, [=](const Occurrence& only) { return !overlaps(only, begin, end); });
            return occurrences;
        }
        const Series series{item, zones_};
        const Changes changes{*item.recurrence};
        const auto add = [&](Seconds start) {
            const Occurrence occurrence = series.at(start);
            if (overlaps(occurrence, begin, end) && !changes.has(occurrence.original.seconds())) {
                occurrences.push_back(occurrence);
            }
        };
        std::ranges::for_each(series.starts(begin, end), add);
        for (const Date addition : item.recurrence->additions) {
            add(series.toZone(addition.seconds()));
        }
        addChanged(*item.recurrence, begin, end, occurrences);
        tidy(occurrences);
        occurrences.resize(std::min(occurrences.size(), mostOccurrences));
        return occurrences;
    }

    [[nodiscard]] std::optional<Occurrence> occurrence(const ItemRecord& item, Date original) const override
    {
        const Seconds wanted = original.seconds();
        if (item.recurrence) {
            const std::vector<OccurrenceChange>& changes = item.recurrence->changes;
            for (std::size_t index = 0; index < changes.size(); ++index) {
                if (changes[index].original.seconds() == wanted) {
                    return changes[index].deleted ? std::nullopt : std::optional{changed(changes[index], index)};
                }
            }
        }
        for (const Occurrence& found : expand(item, original, original)) {
            if (found.original.seconds() == wanted) {
                return found;
            }
        }
        return std::nullopt;
    }

    [[nodiscard]] std::optional<Date> lastEnd(const ItemRecord& item) const override
    {
        if (!item.recurrence) {
            return item.end;
        }
        const Series series{item, zones_};
        const std::optional<Seconds> last = series.last();
        if (!last) {
            return std::nullopt;
        }
        Seconds end = series.at(*last).end.seconds();
        for (const Date addition : item.recurrence->additions) {
            end = std::max(end, series.at(series.toZone(addition.seconds())).end.seconds());
        }
        for (const OccurrenceChange& change : item.recurrence->changes) {
            end = change.deleted ? end : std::max(end, change.end.seconds());
        }
        return Date::fromSeconds(end);
    }

private:
    /// A changed occurrence stands where it was moved to, however far that is from where the series has it.
    static void addChanged(
        const RecurrenceRecord& recurrence, Seconds begin, Seconds end, std::vector<Occurrence>& occurrences)
    {
        for (std::size_t index = 0; index < recurrence.changes.size(); ++index) {
            const Occurrence occurrence = changed(recurrence.changes[index], index);
            if (!recurrence.changes[index].deleted && overlaps(occurrence, begin, end)) {
                occurrences.push_back(occurrence);
            }
        }
    }

    mutable ZoneTable zones_;
};

} // namespace

std::unique_ptr<RecurrenceEngine> makeRecurrenceEngine() { return std::make_unique<IcalRecurrenceEngine>(); }

} // namespace rf::host
