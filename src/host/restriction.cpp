#include "host/restriction.h"

#include "host/restriction_parser.h"

#include <algorithm>
#include <compare>

namespace rf::host {
namespace {

bool holds(ComparisonOperator comparator, std::partial_ordering order)
{
    switch (comparator) {
    case ComparisonOperator::Equal:
        return std::is_eq(order);
    case ComparisonOperator::NotEqual:
        return std::is_neq(order);
    case ComparisonOperator::Less:
        return std::is_lt(order);
    case ComparisonOperator::LessOrEqual:
        return std::is_lteq(order);
    case ComparisonOperator::Greater:
        return std::is_gt(order);
    case ComparisonOperator::GreaterOrEqual:
        return std::is_gteq(order);
    }
    return false;
}

bool textHolds(TextView value, ComparisonOperator comparator, TextView operand)
{
    if (comparator == ComparisonOperator::Equal || comparator == ComparisonOperator::NotEqual) {
        const bool equal = value.size() == operand.size() && equalIgnoringCase(value, operand);
        return equal == (comparator == ComparisonOperator::Equal);
    }
    return holds(comparator, compareIgnoringCase(value, operand) <=> 0);
}

bool matches(const Comparison& comparison, const ItemRecord& item)
{
    const FieldValue value = comparison.field.read(item);
    const ComparisonOperator comparator = comparison.comparator;
    switch (comparison.field.kind()) {
    case FieldKind::Text:
        return textHolds(std::get<TextView>(value), comparator, std::get<Text>(comparison.operand));
    case FieldKind::Number:
        return holds(comparator, std::get<double>(value) <=> std::get<double>(comparison.operand));
    case FieldKind::Date:
        return holds(comparator, Minute{minuteOf(std::get<Date>(value))} <=> std::get<Minute>(comparison.operand));
    case FieldKind::YesNo:
        return holds(comparator,
            static_cast<int>(std::get<bool>(value)) <=> static_cast<int>(std::get<bool>(comparison.operand)));
    }
    return false;
}

bool matches(const Condition& condition, const ItemRecord& item)
{
    if (const auto* comparison = std::get_if<Comparison>(&condition.form)) {
        return matches(*comparison, item);
    }
    const auto& [kind, parts] = std::get<Junction>(condition.form);
    const auto partMatches = [&](const Condition& part) { return matches(part, item); };
    switch (kind) {
    case Junction::Kind::All:
        return std::all_of(parts.begin(), parts.end(), partMatches);
    case Junction::Kind::Any:
        return std::any_of(parts.begin(), parts.end(), partMatches);
    case Junction::Kind::Not:
        return std::none_of(parts.begin(), parts.end(), partMatches);
    }
    return false;
}

} // namespace

Restriction Restriction::parse(TextView text, std::span<const FieldDefinition> folderFields, const Regional& regional)
{
    return Restriction{parseCondition(text, folderFields, regional)};
}

bool Restriction::matches(const ItemRecord& item) const { return host::matches(condition_, item); }

} // namespace rf::host
