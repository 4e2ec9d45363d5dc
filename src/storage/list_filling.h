#pragma once

#include "basic/random_numbers.h"
#include "ui/list_control.h"

#include <cstddef>
#include <span>

namespace rf {

/// Replaces the lines of a control by those that are not blank, and gives it a text: the given one, else what it showed
/// before. A control that does not take the text keeps none.
void fillList(ui::ListControl& control, std::span<const Text> lines, TextView text = {});

/// A position from 0 up to but not including `count`, which is above 0, drawn with one number.
[[nodiscard]] std::size_t randomPosition(const RandomNumbers& randomNumbers, std::size_t count);

} // namespace rf
