#pragma once

#include "outlook/command_bars.h"
#include "ui/list_control.h"

namespace rf {

/// A combo box on a command bar of the host as a list like any other. The host's errors leave it.
class CommandBarList final : public ui::ListControl {
public:
    explicit CommandBarList(outlook::CommandBarComboBox combo)
        : combo_(std::move(combo))
    {
    }

    [[nodiscard]] Text text() const override { return combo_.text(); }
    void setText(TextView text) override { combo_.setText(text); }
    void clear() override { combo_.clear(); }
    void addItem(TextView line) override { combo_.addItem(line); }
    [[nodiscard]] std::int32_t listCount() const override { return combo_.listCount(); }
    /// The host counts from 1.
    [[nodiscard]] Text list(std::int32_t position) const override { return combo_.list(position + 1); }

private:
    outlook::CommandBarComboBox combo_;
};

} // namespace rf
