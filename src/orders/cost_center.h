#pragma once

#include "basic/regional.h"

#include <optional>

namespace rf::orders {

/// Formats of a cost center, as the settings name them. Each rule below knows its own formats and treats every other
/// one in its own way; administrators rely on what their format does today, so none of them is made like the rest.
inline constexpr TextView wholeCostCenter = u"1";
inline constexpr TextView splitCostCenter = u"XXX-XXX";

/// What a person types the cost center into.
enum class CostCenterFields { None, Whole, Halves };

[[nodiscard]] CostCenterFields costCenterFields(TextView format);

/// The texts of the two fields. A half that is not touched has none.
struct CostCenterTexts {
    std::optional<Text> first;
    std::optional<Text> second;
};

/// How a stored cost center is shown. Only one of exactly six characters has a second half.
[[nodiscard]] CostCenterTexts shownCostCenter(TextView format, TextView stored);
/// What is stored of the two fields; nothing for a format that stores nothing.
[[nodiscard]] std::optional<Text> storedCostCenter(TextView format, TextView first, TextView second);

/// Whether an order that costs something has its cost center. Format "0" wants three characters, and both fields
/// numeric or the second one empty; a split cost center is never complete.
[[nodiscard]] bool isCostCenterComplete(const Regional& regional, TextView format, TextView first, TextView second);

/// Whether the first field takes a key: halves take digits and backspace only.
[[nodiscard]] bool firstFieldTakes(TextView format, char16_t key);
/// The second field takes digits and backspace, whatever the format.
[[nodiscard]] bool secondFieldTakes(char16_t key);
/// Whether the first half is complete, so that typing goes on in the second one.
[[nodiscard]] bool goesToSecondField(TextView format, TextView first);

} // namespace rf::orders
