#pragma once

#include "basic/text.h"

#include <cstdint>

namespace rf::ui {

/// Lines to choose from beside a text: a combo box, or a list box, whose text is the chosen line. It may stand on a
/// form or on a command bar of the host.
class ListControl {
public:
    virtual ~ListControl() = default;

    [[nodiscard]] virtual Text text() const = 0;
    /// A control that takes only its own lines as text fails with a run-time error for any other.
    virtual void setText(TextView text) = 0;
    /// Takes the lines away, and the text with them.
    virtual void clear() = 0;
    /// Adds a line behind the others.
    virtual void addItem(TextView line) = 0;
    [[nodiscard]] virtual std::int32_t listCount() const = 0;
    /// The line at a position from 0 up.
    [[nodiscard]] virtual Text list(std::int32_t position) const = 0;
};

} // namespace rf::ui
