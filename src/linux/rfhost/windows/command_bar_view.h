#pragma once

#include "host/shown_bars.h"

#include <QMainWindow>
#include <functional>
#include <vector>

class QComboBox;
class QToolBar;

namespace rf::native {

/// The command bars of a window as tool bars of it. Buttons and combos tell their objects what a person does, and
/// those the programs.
class CommandBarView {
public:
    /// `pressed` hears that a button was, after the programs have; it may be empty.
    CommandBarView(QMainWindow& window, std::function<void()> pressed);

    /// Shows the bars as they are now. One that is as it was stays, and whatever a person does on it goes on.
    void refresh(const host::CommandBars& bars);

private:
    void rebuild();
    void addButton(QToolBar& bar, const host::ShownControl& shown);
    void addCombo(QToolBar& bar, const host::ShownControl& shown);
    void click(const std::shared_ptr<host::CommandBarControl>& control);
    void refreshTexts();

    QMainWindow& window_;
    std::function<void()> pressed_;
    std::vector<host::ShownBar> shown_;
    std::vector<QToolBar*> toolBars_;
    std::vector<std::pair<std::shared_ptr<host::CommandBarControl>, QComboBox*>> combos_;
};

} // namespace rf::native
