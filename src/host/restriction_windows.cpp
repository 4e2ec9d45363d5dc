#include "host/restriction_windows.h"

#include "host/restriction_plan.h"
#include "host/restriction_walk.h"

#include <algorithm>
#include <numeric>

namespace rf::host {
namespace {

using Spans = std::vector<MinuteSpan>;

/// What a conjunction says of the start and the end of an item.
struct Bounds {
    MinuteSpan start = allMinutes();
    MinuteSpan end = allMinutes();
};

void narrow(MinuteSpan& span, ComparisonOperator comparator, std::int64_t minute)
{
    switch (comparator) {
    case ComparisonOperator::Equal:
        span = {std::max(span.from, minute), std::min(span.to, minute)};
        break;
    case ComparisonOperator::NotEqual:
        break;
    case ComparisonOperator::Less:
        span.to = std::min(span.to, minute - 1);
        break;
    case ComparisonOperator::LessOrEqual:
        span.to = std::min(span.to, minute);
        break;
    case ComparisonOperator::Greater:
        span.from = std::max(span.from, minute + 1);
        break;
    case ComparisonOperator::GreaterOrEqual:
        span.from = std::max(span.from, minute);
        break;
    }
}

void narrow(Bounds& bounds, const Comparison& comparison, ComparisonOperator comparator)
{
    const auto* minute = std::get_if<Minute>(&comparison.operand);
    if (minute == nullptr || comparison.field.isUserProperty()) {
        return;
    }
    if (comparison.field.name() == u"Start") {
        narrow(bounds.start, comparator, minute->count);
    } else if (comparison.field.name() == u"End") {
        narrow(bounds.end, comparator, minute->count);
    }
}

/// An item starts no later than it ends, so it starts by the latest end and ends by the earliest start. The span from
/// its earliest end to its latest start meets it then: the item reaches the one and has begun by the other. Where the
/// earliest end is the later of the two, the item covers all that lies between, and one minute of it will do.
Spans spansWithin(const Bounds& bounds)
{
    const MinuteSpan start{bounds.start.from, std::min(bounds.start.to, bounds.end.to)};
    const MinuteSpan end{std::max(bounds.end.from, bounds.start.from), bounds.end.to};
    if (start.from > start.to || end.from > end.to) {
        return {};
    }
    return {{end.from, std::max(start.to, end.from)}};
}

/// Overlapping and adjoining ones made one.
Spans merged(Spans spans)
{
    std::sort(spans.begin(), spans.end(),
        [](const MinuteSpan& left, const MinuteSpan& right) { return left.from < right.from; });
    Spans result;
    for (const MinuteSpan& span : spans) {
        if (!result.empty() && span.from <= result.back().to + 1) {
            result.back().to = std::max(result.back().to, span.to);
        } else {
            result.push_back(span);
        }
    }
    return result;
}

std::int64_t lengthOf(const Spans& spans)
{
    return std::accumulate(spans.begin(), spans.end(), std::int64_t{0},
        [](std::int64_t sum, const MinuteSpan& span) { return sum + span.to - span.from + 1; });
}

Spans spansOf(SignedCondition sought, Bounds bounds);

Spans spansOfAlternatives(SignedCondition sought, const Bounds& bounds)
{
    Spans spans;
    for (const Condition& part : std::get<Junction>(sought.condition->form).parts) {
        const Spans more = spansOf({&part, sought.negated}, bounds);
        spans.insert(spans.end(), more.begin(), more.end());
    }
    return merged(std::move(spans));
}

/// Of several conditions that must all hold each has spans that will do. They must not be cut with each other: a long
/// item can meet the spans of both and no minute that they share. So the shortest of them are taken.
Spans spansOf(SignedCondition sought, Bounds bounds)
{
    std::vector<SignedCondition> alternatives;
    walkConjuncts(
        sought,
        [&](const Comparison& comparison, ComparisonOperator comparator) { narrow(bounds, comparison, comparator); },
        [&](SignedCondition disjunction) { alternatives.push_back(disjunction); });
    Spans shortest = spansWithin(bounds);
    for (const SignedCondition& disjunction : alternatives) {
        Spans spans = spansOfAlternatives(disjunction, bounds);
        if (lengthOf(spans) < lengthOf(shortest)) {
            shortest = std::move(spans);
        }
    }
    return shortest;
}

} // namespace

MinuteSpan allMinutes()
{
    static const MinuteSpan all{minuteOf(firstDate), minuteOf(lastDate())};
    return all;
}

std::vector<MinuteSpan> spansOf(const Condition& condition) { return spansOf({&condition, false}, {}); }

} // namespace rf::host
