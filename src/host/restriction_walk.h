#pragma once

#include "host/restriction_condition.h"

#include <type_traits>

namespace rf::host {

/// A condition, or its opposite.
struct SignedCondition {
    const Condition* condition = nullptr;
    bool negated = false;
};

/// The comparison that holds where the other does not.
[[nodiscard]] constexpr ComparisonOperator opposite(ComparisonOperator comparator)
{
    switch (comparator) {
    case ComparisonOperator::Equal:
        return ComparisonOperator::NotEqual;
    case ComparisonOperator::NotEqual:
        return ComparisonOperator::Equal;
    case ComparisonOperator::Less:
        return ComparisonOperator::GreaterOrEqual;
    case ComparisonOperator::LessOrEqual:
        return ComparisonOperator::Greater;
    case ComparisonOperator::Greater:
        return ComparisonOperator::LessOrEqual;
    default:
        return ComparisonOperator::Less;
    }
}

/// Visits what must hold all together for the condition to hold: `onComparison(comparison, comparator)` for single
/// comparisons, with the operator that remains under the negations around it, and `onAlternatives(condition)` for a
/// disjunction, whose parts keep the sign that they are visited with.
template <class OnComparison, class OnAlternatives>
void walkConjuncts(SignedCondition sought, const OnComparison& onComparison, const OnAlternatives& onAlternatives)
{
    if (const auto* comparison = std::get_if<Comparison>(&sought.condition->form)) {
        onComparison(*comparison, sought.negated ? opposite(comparison->comparator) : comparison->comparator);
        return;
    }
    const auto& [kind, parts] = std::get<Junction>(sought.condition->form);
    // Not all of them: one must fail. Not any of them: all must fail.
    const Junction::Kind alternatives = sought.negated ? Junction::Kind::All : Junction::Kind::Any;
    if (kind == alternatives) {
        onAlternatives(sought);
        return;
    }
    const bool negated = sought.negated != (kind == Junction::Kind::Not);
    for (const Condition& part : parts) {
        walkConjuncts({&part, negated}, onComparison, onAlternatives);
    }
}

} // namespace rf::host
