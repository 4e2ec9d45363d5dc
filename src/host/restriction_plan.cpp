#include "host/restriction_plan.h"

#include "host/restriction_walk.h"
#include "host/restriction_windows.h"

#include <algorithm>
#include <iterator>

namespace rf::host {
namespace {

struct Equalities {
    const Comparison* subject = nullptr;
    const Comparison* property = nullptr;
};

/// The equalities of which an index exists, among all that must hold.
Equalities equalitiesOf(const Condition& condition)
{
    Equalities found;
    const auto onComparison = [&](const Comparison& comparison, ComparisonOperator comparator) {
        const auto* text = std::get_if<Text>(&comparison.operand);
        if (text == nullptr || comparator != ComparisonOperator::Equal) {
            return;
        }
        if (comparison.field.isUserProperty() && !text->empty()) {
            found.property = &comparison;
        } else if (!comparison.field.isUserProperty() && comparison.field.name() == u"Subject") {
            found.subject = &comparison;
        }
    };
    walkConjuncts({&condition, false}, onComparison, [](SignedCondition) {});
    return found;
}

/// The last minute belongs to the window up to its last second, since an item may start in it.
TimeWindow windowOf(const MinuteSpan& span)
{
    return {Date::fromSeconds(span.from * 60), Date::fromSeconds(span.to * 60 + 59)};
}

bool isBounded(const TimeWindows& windows)
{
    return windows.empty() || (windows.front().from != firstDate && windows.back().to != lastDate());
}

} // namespace

Date lastDate()
{
    return Date::fromFields({.year = 9999, .month = 12, .day = 31, .hour = 23, .minute = 59, .second = 59});
}

std::optional<TimeWindows> planWindows(const Restriction& restriction)
{
    const std::vector<MinuteSpan> spans = spansOf(restriction.condition());
    if (spans.size() == 1 && spans.front() == allMinutes()) {
        return std::nullopt;
    }
    TimeWindows windows;
    std::transform(spans.begin(), spans.end(), std::back_inserter(windows), windowOf);
    return windows;
}

// The text of a property links few items, mostly two; a subject may be that of very many.
std::optional<Plan> plan(const Restriction& restriction)
{
    const auto [subject, property] = equalitiesOf(restriction.condition());
    if (property) {
        return PropertyEquality{Text{property->field.name()}, std::get<Text>(property->operand)};
    }
    auto windows = planWindows(restriction);
    if (subject && !(windows && isBounded(*windows))) {
        return SubjectEquality{std::get<Text>(subject->operand)};
    }
    return windows ? std::optional<Plan>{*std::move(windows)} : std::nullopt;
}

} // namespace rf::host
