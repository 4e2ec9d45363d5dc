#pragma once

#include "host/command_bars.h"

#include <memory>
#include <vector>

namespace rf::host {

/// A control as a window shows it.
struct ShownControl {
    std::shared_ptr<CommandBarControl> control;
    /// What stands on a button or before a combo; empty for a combo without a label.
    Text label;
    /// What a screen reader says; never empty.
    Text name;
    bool enabled = true;
    bool beginGroup = false;
    /// In pixels; 0 leaves it to the window.
    int width = 0;
    std::vector<Text> list;

    friend bool operator==(const ShownControl&, const ShownControl&) = default;
};

/// A command bar as a window shows it.
struct ShownBar {
    Text name;
    std::int32_t position = 0;
    std::vector<ShownControl> controls;

    friend bool operator==(const ShownBar&, const ShownBar&) = default;
};

/// The visible bars with their visible controls, in their order; a bar on which everything is hidden is left out. The
/// text of a combo is none of it: it changes while a person types, and the bar stays as it is.
[[nodiscard]] std::vector<ShownBar> shownBars(const CommandBars& bars);

} // namespace rf::host
