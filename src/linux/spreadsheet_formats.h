#pragma once

#include "linux/spreadsheet_area_map.h"
#include "linux/spreadsheet_constants.h"

namespace rf::native::spreadsheet {

/// One kind of line of every cell: those on one of its edges.
struct Borders {
    AreaMap<LineStyle> style{LineStyle::None};
    AreaMap<std::int32_t> color{0};
    /// In the numbers of the control's generation.
    AreaMap<std::int32_t> weight{1};
};

/// How the cells of a sheet look and whether they are locked.
struct Formats {
    AreaMap<Text> numberFormat{u"General"};
    AreaMap<Text> fontName{u"Arial"};
    /// In points.
    AreaMap<double> fontSize{10};
    AreaMap<bool> bold{false};
    /// Red + 256 * green + 65536 * blue; nothing for cells without a background of their own.
    AreaMap<std::optional<std::int32_t>> interior{std::nullopt};
    AreaMap<Alignment> alignment{Alignment::General};
    AreaMap<bool> locked{true};
    std::array<Borders, edgeCount> borders;

    /// Back to how an untouched cell looks. Whether cells are locked is no matter of looks and stays.
    void clear(const Area& area);
};

} // namespace rf::native::spreadsheet
