#pragma once

#include "linux/spreadsheet_area.h"

#include <vector>

namespace rf::native::spreadsheet {

/// A value for every cell of a sheet, kept as the areas that were given one. A later area lies above the earlier ones,
/// so that a format of whole rows costs as much as that of one cell.
template <class T>
class AreaMap {
public:
    explicit AreaMap(T everywhere)
        : everywhere_(std::move(everywhere))
    {
    }

    void set(const Area& area, T value)
    {
        std::erase_if(layers_, [&](const Layer& layer) { return area.covers(layer.area); });
        layers_.push_back({area, std::move(value)});
    }
    [[nodiscard]] const T& at(Cell cell) const
    {
        for (auto layer = layers_.rbegin(); layer != layers_.rend(); ++layer)
            if (layer->area.contains(cell))
                return layer->value;
        return everywhere_;
    }
    /// Whether a cell of the area has the value.
    [[nodiscard]] bool has(const Area& area, const T& value) const { return has(area, value, layers_.size()); }
    void clear(const Area& area) { set(area, everywhere_); }

private:
    struct Layer {
        Area area;
        T value;
    };

    [[nodiscard]] bool has(const Area& area, const T& value, std::size_t below) const
    {
        for (; below > 0; --below) {
            const Layer& layer = layers_[below - 1];
            const auto shared = area.common(layer.area);
            if (!shared)
                continue;
            if (layer.value == value)
                return true;
            return std::ranges::any_of(
                without(area, *shared), [&](const Area& rest) { return has(rest, value, below - 1); });
        }
        return everywhere_ == value;
    }
    /// What is left of an area when a part of it is taken out.
    [[nodiscard]] static std::vector<Area> without(const Area& area, const Area& part)
    {
        std::vector<Area> rest;
        const auto keep = [&](Cell first, Cell last) {
            if (first.row <= last.row && first.column <= last.column)
                rest.push_back({first, last});
        };
        keep(area.first, {part.first.row - 1, area.last.column});
        keep({part.last.row + 1, area.first.column}, area.last);
        keep({part.first.row, area.first.column}, {part.last.row, part.first.column - 1});
        keep({part.first.row, part.last.column + 1}, {part.last.row, area.last.column});
        return rest;
    }

    T everywhere_;
    std::vector<Layer> layers_;
};

} // namespace rf::native::spreadsheet
