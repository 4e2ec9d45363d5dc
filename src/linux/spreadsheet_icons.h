#pragma once

#include <QIcon>

namespace rf::native::spreadsheet {

enum class ToolSign { Cut, Copy, Paste };

/// A sign that is drawn with lines in the colour of the captions, light or dark: not every machine has a font or a
/// theme with such signs.
[[nodiscard]] QIcon drawnIcon(ToolSign sign);

} // namespace rf::native::spreadsheet
