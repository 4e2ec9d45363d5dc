#pragma once

#include "linux/form_control.h"

#include <memory>
#include <span>
#include <vector>

namespace rf::native {

/// A control of a form and the object that a window keeps it by.
using FormControls = std::vector<std::unique_ptr<FormControl>>;

/// Gives each control without a caption the name of the label that stands before or above it, for those who hear the
/// screen instead of seeing it, and lets that label's key lead to it. A control without such a label has its own name.
void nameByLabels(const FormControls& controls);

/// Lets the Tab key go through the controls as people read them, from top to bottom and from left to right, whatever
/// the order in which they were made: some are made at run time, behind all others.
void orderByPlace(const FormControls& controls);

/// Gives every caption that can lead somewhere a letter of its own as its key, so that no phrase needs a mark for it.
/// Buttons that Enter or Escape press have those.
void chooseMnemonics(const FormControls& controls);

} // namespace rf::native
