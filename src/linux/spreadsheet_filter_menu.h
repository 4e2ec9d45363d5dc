#pragma once

#include "linux/spreadsheet_sheet.h"

class QPoint;
class QWidget;

namespace rf::native::spreadsheet {

/// The menu below a heading of a filtered list: sort it by that column, or tick which of its texts are shown.
void runFilterMenu(Sheet& sheet, Cell heading, const QPoint& below, QWidget* parent);

} // namespace rf::native::spreadsheet
