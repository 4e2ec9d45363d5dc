#pragma once

#include "linux/form_control.h"
#include "ui/form_window.h"

namespace rf::native {

/// A text box of one line or of many. Whatever way a text comes in by hand, typed, pasted, dropped or composed, its
/// characters go through `KeyPressed` one by one and stop at the maximum length.
[[nodiscard]] std::unique_ptr<ui::TextBox> makeTextBox(
    QWidget* parent, TextView name, ui::Bounds bounds, ui::LineBreaks lineBreaks);

} // namespace rf::native
