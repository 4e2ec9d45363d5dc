#pragma once

#include "host/fields.h"

#include <cstdint>
#include <variant>
#include <vector>

namespace rf::host {

enum class ComparisonOperator { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual };

/// A date of a restriction as the minute that it lies in.
struct Minute {
    std::int64_t count = 0;

    friend constexpr auto operator<=>(Minute, Minute) = default;
};

/// The value that a field is compared with, of the field's kind; the alternatives stand in the order of `FieldKind`.
using Operand = std::variant<Text, double, Minute, bool>;

struct Comparison {
    Field field;
    ComparisonOperator comparator;
    Operand operand;
};

struct Condition;

/// Conditions that must all hold, of which one must hold, or a single one that must not.
struct Junction {
    enum class Kind { All, Any, Not };

    Kind kind = Kind::All;
    std::vector<Condition> parts;
};

/// A restriction as a tree, no deeper than `RestrictionLimits` lets it be: it may be walked recursively.
struct Condition {
    std::variant<Comparison, Junction> form;
};

} // namespace rf::host
