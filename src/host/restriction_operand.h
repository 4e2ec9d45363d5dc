#pragma once

#include "basic/regional.h"
#include "host/restriction_condition.h"
#include "host/restriction_lexer.h"

namespace rf::host {

/// The value that a token stands for beside a field of that kind; refused when it is none.
[[nodiscard]] Operand readOperand(FieldKind kind, const RestrictionToken& token, const Regional& regional);

} // namespace rf::host
