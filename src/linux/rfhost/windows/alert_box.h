#pragma once

#include "basic/text.h"

#include <cstdint>

class QWidget;

namespace rf::native {

/// Shows an alert and waits for its answer; programs are served meanwhile. Buttons, icon and answer are numbered as in
/// the object model.
[[nodiscard]] std::int32_t showAlert(const Text& title, const Text& message, std::int32_t buttons, std::int32_t icon);

} // namespace rf::native
