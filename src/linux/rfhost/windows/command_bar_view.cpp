#include "linux/rfhost/windows/command_bar_view.h"

#include "linux/qt_text.h"
#include "linux/rfhost/windows/person.h"
#include "outlook/constants.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QToolBar>
#include <QToolButton>

namespace rf::native {

namespace {

using host::CommandBarControl;
using host::ShownControl;

Qt::ToolBarArea areaOf(std::int32_t position)
{
    switch (static_cast<outlook::BarPosition>(position)) {
    case outlook::BarPosition::Left:
        return Qt::LeftToolBarArea;
    case outlook::BarPosition::Right:
        return Qt::RightToolBarArea;
    case outlook::BarPosition::Bottom:
        return Qt::BottomToolBarArea;
    case outlook::BarPosition::Top:
    case outlook::BarPosition::Floating:
        break;
    }
    return Qt::TopToolBarArea;
}

} // namespace

CommandBarView::CommandBarView(QMainWindow& window, std::function<void()> pressed)
    : window_(window)
    , pressed_(std::move(pressed))
{
}

void CommandBarView::refresh(const host::CommandBars& bars)
{
    auto now = host::shownBars(bars);
    if (now != shown_) {
        shown_ = std::move(now);
        rebuild();
    }
    refreshTexts();
}

void CommandBarView::rebuild()
{
    for (QToolBar* bar : toolBars_) {
        window_.removeToolBar(bar);
        // A person may be pressing a button on it.
        bar->deleteLater();
    }
    toolBars_.clear();
    combos_.clear();
    for (const host::ShownBar& shown : shown_) {
        auto* const bar = new QToolBar{qtText(shown.name), &window_};
        bar->setObjectName(qtText(shown.name));
        bar->setAccessibleName(qtText(shown.name));
        bar->setMovable(false);
        for (const ShownControl& control : shown.controls) {
            if (control.beginGroup && !bar->actions().isEmpty())
                bar->addSeparator();
            control.control->isCombo() ? addCombo(*bar, control) : addButton(*bar, control);
        }
        window_.addToolBar(areaOf(shown.position), bar);
        toolBars_.push_back(bar);
    }
}

void CommandBarView::addButton(QToolBar& bar, const ShownControl& shown)
{
    auto* const action = bar.addAction(qtText(shown.label));
    action->setToolTip(qtText(shown.name));
    action->setEnabled(shown.enabled);
    QObject::connect(action, &QAction::triggered, &bar, [this, control = shown.control] { click(control); });
    auto* const button = dynamic_cast<QToolButton*>(bar.widgetForAction(action));
    button->setObjectName(qtText(shown.name));
    button->setAccessibleName(qtText(shown.name));
    // What a mouse can press, the keyboard can.
    button->setFocusPolicy(Qt::TabFocus);
    if (shown.width > 0)
        button->setMinimumWidth(shown.width);
}

void CommandBarView::addCombo(QToolBar& bar, const ShownControl& shown)
{
    auto* const combo = new QComboBox;
    combo->setObjectName(qtText(shown.name));
    combo->setAccessibleName(qtText(shown.name));
    combo->setToolTip(qtText(shown.name));
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setEnabled(shown.enabled);
    for (const Text& entry : shown.list)
        combo->addItem(qtText(entry));
    combo->setCurrentIndex(-1);
    if (shown.width > 0)
        combo->setFixedWidth(shown.width);
    else
        combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    if (!shown.label.empty()) {
        auto* const label = new QLabel{qtText(shown.label)};
        label->setBuddy(combo);
        constexpr int beside = 6;
        label->setContentsMargins(beside, 0, beside, 0);
        bar.addWidget(label);
    }
    bar.addWidget(combo);
    const auto choose = [combo, &window = window_, control = shown.control] {
        later(&window, [control, text = textOf(combo->currentText())] {
            // Leaving the box without a change is no choice.
            if (text != control->text())
                control->choose(text);
        });
    };
    QObject::connect(combo, &QComboBox::textActivated, &bar, choose);
    QObject::connect(combo->lineEdit(), &QLineEdit::editingFinished, &bar, choose);
    combos_.emplace_back(shown.control, combo);
}

void CommandBarView::click(const std::shared_ptr<CommandBarControl>& control)
{
    later(&window_, [pressed = pressed_, control, window = QPointer{&window_}] {
        control->click();
        if (window != nullptr && pressed)
            pressed();
    });
}

void CommandBarView::refreshTexts()
{
    for (const auto& [control, combo] : combos_) {
        const QSignalBlocker quiet{combo};
        const bool isTyping = combo->lineEdit()->hasFocus() && combo->lineEdit()->isModified();
        if (const QString text = qtText(control->text()); text != combo->currentText() && !isTyping)
            combo->setCurrentText(text);
    }
}

} // namespace rf::native
