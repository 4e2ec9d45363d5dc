#include "host/command_bars.h"

#include "outlook/constants.h"
#include "outlook/event_interfaces.h"

#include <algorithm>
#include <array>
#include <utility>

namespace rf::host {

using automation::Arguments;
using automation::Invocation;
using automation::LocalMember;
using automation::Reference;
using automation::Variant;

namespace {

constexpr auto button = static_cast<std::int32_t>(outlook::ControlType::Button);
constexpr auto comboBox = static_cast<std::int32_t>(outlook::ControlType::ComboBox);
constexpr auto top = static_cast<std::int32_t>(outlook::BarPosition::Top);
/// The id of every control that is not the host's own.
constexpr std::int32_t ownControl = 1;

/// The element at a position from 1 up, or the first one of that text; error 5 when there is none.
template <class T, class TextOf>
std::shared_ptr<T> elementAt(const std::vector<std::shared_ptr<T>>& list, const Variant& index, TextOf textOf)
{
    auto found = list.end();
    if (index.is<Text>())
        found = std::ranges::find_if(
            list, [&](const auto& element) { return equalIgnoringCase(textOf(*element), index.text()); });
    else if (const auto position = index.integer32(); position >= 1 && std::cmp_less_equal(position, list.size()))
        found = list.begin() + (position - 1);
    if (found == list.end())
        throw RuntimeError{error_number::invalidCall};
    return *found;
}

void tell(const BarsChanged& changed)
{
    if (*changed)
        (*changed)();
}

} // namespace

Variant CommandBarControl::invoke(TextView name, Invocation kind, std::span<Variant> values)
{
    auto answer = LocalObject::invoke(name, kind, values);
    if (kind != Invocation::Get)
        tell(changed_);
    return answer;
}

bool CommandBarControl::isCombo() const { return type_ == comboBox; }

void CommandBarControl::click()
{
    ++executed_;
    Variant cancelDefault{false};
    const auto keptAlive = shared_from_this();
    std::array<Variant, 2> arguments{Variant{keptAlive}, Variant{Reference{&cancelDefault}}};
    if (type_ == button)
        events_.raise(u"Click", arguments);
}

void CommandBarControl::choose(const Text& text)
{
    requireCombo();
    text_ = text;
    const auto keptAlive = shared_from_this();
    std::array<Variant, 1> arguments{Variant{keptAlive}};
    events_.raise(u"Change", arguments);
}

void CommandBarControl::requireCombo() const
{
    if (type_ != comboBox)
        throw RuntimeError{error_number::memberNotFound};
}

Text CommandBarControl::listed(std::int32_t position) const
{
    requireCombo();
    if (position < 1 || std::cmp_greater(position, list_.size()))
        throw RuntimeError{error_number::invalidCall};
    return list_[static_cast<std::size_t>(position - 1)];
}

automation::EventSource* CommandBarControl::eventSource(const automation::EventInterface& events)
{
    const auto& own
        = type_ == comboBox ? outlook::event_interface::commandBarComboBox : outlook::event_interface::commandBarButton;
    return events.id == own.id ? &events_ : nullptr;
}

std::span<const LocalMember<CommandBarControl>> CommandBarControl::members()
{
    using Self = CommandBarControl;
    static constexpr std::array table{
        LocalMember<Self>{u"Type", [](Self& self, const Arguments&) -> Variant { return self.type_; }},
        LocalMember<Self>{u"Id", [](Self& self, const Arguments&) -> Variant { return self.id_; }},
        LocalMember<Self>{u"Width", [](Self& self, const Arguments&) -> Variant { return self.width_; },
            [](Self& self, const Arguments& arguments) { self.width_ = arguments.value().integer32(); }},
        LocalMember<Self>{u"Style", [](Self& self, const Arguments&) -> Variant { return self.style_; },
            [](Self& self, const Arguments& arguments) { self.style_ = arguments.value().integer32(); }},
        LocalMember<Self>{u"FaceId", [](Self& self, const Arguments&) -> Variant { return self.faceId_; },
            [](Self& self, const Arguments& arguments) { self.faceId_ = arguments.value().integer32(); }},
        LocalMember<Self>{u"Visible", [](Self& self, const Arguments&) -> Variant { return self.visible_; },
            [](Self& self, const Arguments& arguments) { self.visible_ = arguments.value().boolean(); }},
        LocalMember<Self>{u"Enabled", [](Self& self, const Arguments&) -> Variant { return self.enabled_; },
            [](Self& self, const Arguments& arguments) { self.enabled_ = arguments.value().boolean(); }},
        LocalMember<Self>{u"BeginGroup", [](Self& self, const Arguments&) -> Variant { return self.beginGroup_; },
            [](Self& self, const Arguments& arguments) { self.beginGroup_ = arguments.value().boolean(); }},
        LocalMember<Self>{u"Caption", [](Self& self, const Arguments&) -> Variant { return self.caption_; },
            [](Self& self, const Arguments& arguments) { self.caption_ = arguments.value().text(); }},
        LocalMember<Self>{u"Tag", [](Self& self, const Arguments&) -> Variant { return self.tag_; },
            [](Self& self, const Arguments& arguments) { self.tag_ = arguments.value().text(); }},
        LocalMember<Self>{u"Text",
            [](Self& self, const Arguments&) -> Variant {
                self.requireCombo();
                return self.text_;
            },
            [](Self& self, const Arguments& arguments) {
                self.requireCombo();
                self.text_ = arguments.value().text();
            }},
        LocalMember<Self>{u"ListCount",
            [](Self& self, const Arguments&) -> Variant {
                self.requireCombo();
                return static_cast<std::int32_t>(self.list_.size());
            }},
        LocalMember<Self>{u"List",
            [](Self& self, const Arguments& arguments) -> Variant { return self.listed(arguments[0].integer32()); }},
        LocalMember<Self>{u"AddItem",
            [](Self& self, const Arguments& arguments) -> Variant {
                self.requireCombo();
                self.list_.push_back(arguments[0].text());
                return {};
            }},
        LocalMember<Self>{u"Clear",
            [](Self& self, const Arguments&) -> Variant {
                self.requireCombo();
                self.list_.clear();
                self.text_.clear();
                return {};
            }},
        LocalMember<Self>{u"Execute", [](Self& self, const Arguments&) -> Variant { return self.click(), Variant{}; }},
    };
    return table;
}

std::shared_ptr<CommandBarControl> CommandBarControls::add(std::int32_t type, std::int32_t id)
{
    if (type != button && type != comboBox)
        throw RuntimeError{error_number::invalidCall};
    auto control = controls_.emplace_back(std::make_shared<CommandBarControl>(type, id, changed_));
    tell(changed_);
    return control;
}

std::shared_ptr<CommandBarControl> CommandBarControls::item(const Variant& index) const
{
    return elementAt(controls_, index, [](const CommandBarControl& control) { return control.caption(); });
}

std::span<const LocalMember<CommandBarControls>> CommandBarControls::members()
{
    using Self = CommandBarControls;
    static constexpr std::array table{
        LocalMember<Self>{u"Count",
            [](Self& self, const Arguments&) -> Variant { return static_cast<std::int32_t>(self.controls_.size()); }},
        LocalMember<Self>{
            u"Item", [](Self& self, const Arguments& arguments) -> Variant { return self.item(arguments[0]); }},
        LocalMember<Self>{u"Add",
            [](Self& self, const Arguments& arguments) -> Variant {
                return self.add(arguments.has(0) ? arguments[0].integer32() : button,
                    arguments.has(1) ? arguments[1].integer32() : ownControl);
            }},
    };
    return table;
}

Variant CommandBar::invoke(TextView name, Invocation kind, std::span<Variant> values)
{
    auto answer = LocalObject::invoke(name, kind, values);
    if (kind != Invocation::Get)
        tell(changed_);
    return answer;
}

std::span<const LocalMember<CommandBar>> CommandBar::members()
{
    using Self = CommandBar;
    static constexpr std::array table{
        LocalMember<Self>{u"Name", [](Self& self, const Arguments&) -> Variant { return self.name_; }},
        LocalMember<Self>{u"Position", [](Self& self, const Arguments&) -> Variant { return self.position_; },
            [](Self& self, const Arguments& arguments) { self.position_ = arguments.value().integer32(); }},
        LocalMember<Self>{u"Visible", [](Self& self, const Arguments&) -> Variant { return self.visible_; },
            [](Self& self, const Arguments& arguments) { self.visible_ = arguments.value().boolean(); }},
        LocalMember<Self>{u"Controls", [](Self& self, const Arguments&) -> Variant { return self.controls_; }},
        LocalMember<Self>{u"Delete",
            [](Self& self, const Arguments&) -> Variant {
                if (const auto owner = self.owner_.lock())
                    owner->remove(self);
                return {};
            }},
    };
    return table;
}

std::shared_ptr<CommandBars> CommandBars::ofInspector()
{
    auto bars = std::make_shared<CommandBars>();
    const auto standard = bars->add(u"Standard", top);
    standard->show();
    standard->controls().add(button, outlook::host_control::inviteAttendees);
    return bars;
}

std::shared_ptr<CommandBars> CommandBars::ofExplorer()
{
    auto bars = std::make_shared<CommandBars>();
    const auto web = bars->add(Text{outlook::host_control::webBar}, top);
    web->controls().add(button, outlook::host_control::refreshPage);
    return bars;
}

std::shared_ptr<CommandBar> CommandBars::add(const Text& name, std::int32_t position)
{
    if (find(name) != nullptr)
        throw RuntimeError{error_number::invalidCall};
    return bars_.emplace_back(std::make_shared<CommandBar>(weak_from_this(), name, position, changed_));
}

void CommandBars::remove(const CommandBar& bar)
{
    std::erase_if(bars_, [&](const auto& entry) { return entry.get() == &bar; });
}

std::shared_ptr<CommandBar> CommandBars::find(TextView name) const
{
    const auto found
        = std::ranges::find_if(bars_, [&](const auto& bar) { return equalIgnoringCase(bar->name(), name); });
    return found == bars_.end() ? nullptr : *found;
}

std::shared_ptr<CommandBar> CommandBars::item(const Variant& index) const
{
    return elementAt(bars_, index, [](const CommandBar& bar) { return bar.name(); });
}

std::shared_ptr<CommandBarControl> CommandBars::findControl(std::int32_t id) const
{
    for (const auto& bar : bars_)
        for (const auto& control : bar->controls().all())
            if (control->id() == id)
                return control;
    return nullptr;
}

std::span<const LocalMember<CommandBars>> CommandBars::members()
{
    using Self = CommandBars;
    static constexpr std::array table{
        LocalMember<Self>{u"Count",
            [](Self& self, const Arguments&) -> Variant { return static_cast<std::int32_t>(self.bars_.size()); }},
        LocalMember<Self>{
            u"Item", [](Self& self, const Arguments& arguments) -> Variant { return self.item(arguments[0]); }},
        LocalMember<Self>{u"Add",
            [](Self& self, const Arguments& arguments) -> Variant {
                return self.add(arguments[0].text(), arguments.has(1) ? arguments[1].integer32() : top);
            }},
        LocalMember<Self>{u"FindControl",
            // The first argument is the type, which an id makes superfluous.
            [](Self& self, const Arguments& arguments) -> Variant {
                return self.findControl(arguments[1].integer32());
            }},
    };
    return table;
}

} // namespace rf::host
