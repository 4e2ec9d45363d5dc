#include "linux/form_neighbours.h"

#include "linux/form_controls.h"

#include <algorithm>
#include <limits>
#include <set>

namespace rf::native {

namespace {

constexpr std::int32_t farthestBeside = 3000;
constexpr std::int32_t farthestAbove = 600;
constexpr std::int32_t none = std::numeric_limits<std::int32_t>::max();

bool overlap(std::int32_t start, std::int32_t size, std::int32_t otherStart, std::int32_t otherSize)
{
    return start < otherStart + otherSize && otherStart < start + size;
}

/// How far the label is from what it may speak of; `none` when it speaks of something else.
std::int32_t distance(const ui::Bounds& label, const ui::Bounds& control)
{
    if (overlap(label.top, label.height, control.top, control.height) && label.left < control.left) {
        const std::int32_t gap = std::max(control.left - (label.left + label.width), 0);
        return gap <= farthestBeside ? gap : none;
    }
    if (overlap(label.left, label.width, control.left, control.width) && label.top < control.top) {
        const std::int32_t gap = std::max(control.top - (label.top + label.height), 0);
        return gap <= farthestAbove ? gap : none;
    }
    return none;
}

QtLabel* labelFor(const FormControls& controls, FormControl& control)
{
    QtLabel* nearest = nullptr;
    std::int32_t least = none;
    for (const auto& other : controls) {
        auto* label = dynamic_cast<QtLabel*>(other.get());
        if (label == nullptr || !label->visible() || label->caption().empty())
            continue;
        const std::int32_t found = distance(label->bounds(), control.control().bounds());
        if (found < least) {
            least = found;
            nearest = label;
        }
    }
    return nearest;
}

bool leadsSomewhere(const FormControl& control)
{
    if (control.shownCaption() == nullptr || control.widget().isHidden())
        return false;
    if (const auto* button = dynamic_cast<const QtButton*>(&control))
        return button->role() == ui::ButtonRole::Plain;
    if (const auto* label = qobject_cast<const QLabel*>(&control.widget()))
        return label->buddy() != nullptr;
    return true;
}

/// The first letter of a word that is still free, else any letter that is.
QChar freeLetter(const QString& caption, std::set<QChar>& taken)
{
    for (const bool wordsOnly : {true, false})
        for (qsizetype index = 0; index < caption.size(); ++index) {
            const QChar letter = caption[index];
            const bool startsWord = index == 0 || !caption[index - 1].isLetterOrNumber();
            if (letter.isLetterOrNumber() && (startsWord || !wordsOnly) && taken.insert(letter.toLower()).second)
                return letter;
        }
    return {};
}

/// The part of a control that has the keys.
QWidget& takesKeys(QWidget& widget) { return widget.focusProxy() == nullptr ? widget : *widget.focusProxy(); }

} // namespace

void nameByLabels(const FormControls& controls)
{
    for (const auto& control : controls)
        if (auto* label = dynamic_cast<QtLabel*>(control.get()))
            label->setBuddy(nullptr);
    for (const auto& control : controls) {
        // A control whose keys go to a part of it has its name from there.
        if (control->shownCaption() != nullptr || control->widget().focusProxy() != nullptr)
            continue;
        QtLabel* label = labelFor(controls, *control);
        control->widget().setAccessibleName(qtText(label == nullptr ? control->control().name() : label->caption()));
        if (label != nullptr)
            label->setBuddy(&control->widget());
    }
}

void orderByPlace(const FormControls& controls)
{
    std::vector<FormControl*> sorted;
    for (const auto& control : controls)
        if (takesKeys(control->widget()).focusPolicy() != Qt::NoFocus)
            sorted.push_back(control.get());
    std::ranges::stable_sort(sorted, {}, [](FormControl* control) {
        const ui::Bounds bounds = control->control().bounds();
        return std::pair{bounds.top, bounds.left};
    });
    for (std::size_t index = 1; index < sorted.size(); ++index)
        QWidget::setTabOrder(&takesKeys(sorted[index - 1]->widget()), &takesKeys(sorted[index]->widget()));
}

void chooseMnemonics(const FormControls& controls)
{
    std::set<QChar> taken;
    for (const auto& control : controls) {
        if (control->shownCaption() == nullptr)
            continue;
        const bool leads = leadsSomewhere(*control);
        control->showCaption(leads ? freeLetter(qtText(*control->shownCaption()), taken) : QChar{});
    }
}

} // namespace rf::native
