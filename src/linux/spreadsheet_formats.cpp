#include "linux/spreadsheet_formats.h"

namespace rf::native::spreadsheet {

void Formats::clear(const Area& area)
{
    numberFormat.clear(area);
    fontName.clear(area);
    fontSize.clear(area);
    bold.clear(area);
    interior.clear(area);
    alignment.clear(area);
    for (Borders& edge : borders) {
        edge.style.clear(area);
        edge.color.clear(area);
        edge.weight.clear(area);
    }
}

} // namespace rf::native::spreadsheet
