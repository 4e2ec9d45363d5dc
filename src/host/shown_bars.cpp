#include "host/shown_bars.h"

#include "outlook/constants.h"

#include <algorithm>

namespace rf::host {

namespace {

/// The host's own controls carry no caption of a program.
Text captionOf(const CommandBarControl& control)
{
    if (!control.caption().empty())
        return control.caption();
    return control.id() == outlook::host_control::refreshPage ? Text{u"&Refresh"} : Text{};
}

/// The caption as it is read out: an ampersand only marks the letter behind it.
Text withoutMark(const Text& caption)
{
    Text text;
    for (std::size_t index = 0; index < caption.size(); ++index) {
        if (caption[index] == u'&' && index + 1 < caption.size())
            ++index;
        text += caption[index];
    }
    return text;
}

/// Programs look for the control that invites people, and hide it. In a window it would promise what this host does not
/// do: it sends no mail.
bool isOffered(const CommandBarControl& control)
{
    return control.visible() && control.id() != outlook::host_control::inviteAttendees;
}

ShownControl shown(const std::shared_ptr<CommandBarControl>& control)
{
    const Text caption = captionOf(*control);
    const bool labelled
        = !control->isCombo() || control->style() == static_cast<std::int32_t>(outlook::ComboStyle::Label);
    const Text name = withoutMark(caption);
    return {control, labelled ? caption : Text{}, name.empty() ? Text{u"Command"} : name, control->enabled(),
        control->beginGroup(), std::max(control->width(), 0), control->list()};
}

} // namespace

std::vector<ShownBar> shownBars(const CommandBars& bars)
{
    std::vector<ShownBar> all;
    for (const auto& bar : bars.all()) {
        if (!bar->visible())
            continue;
        ShownBar& added = all.emplace_back(ShownBar{bar->name(), bar->position(), {}});
        for (const auto& control : bar->controls().all())
            if (isOffered(*control))
                added.controls.push_back(shown(control));
        if (added.controls.empty() && !bar->controls().all().empty())
            all.pop_back();
    }
    return all;
}

} // namespace rf::host
