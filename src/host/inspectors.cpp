#include "host/inspectors.h"

#include "host/host_error.h"
#include "host/model.h"
#include "outlook/constants.h"
#include "outlook/event_interfaces.h"

#include <algorithm>
#include <array>
#include <utility>

namespace rf::host {

using automation::Arguments;
using automation::LocalMember;
using automation::Variant;

namespace {

/// The forms by the message classes that they show.
struct Form {
    TextView messageClass;
    /// What the caption calls it.
    TextView name;
    std::span<const TextView> pages;
};

constexpr std::array<TextView, 2> appointmentPages{u"Appointment", u"Scheduling"};
constexpr std::array<TextView, 1> messagePages{u"Message"};
/// The first one serves every class that begins as its own does; the last one all others.
constexpr std::array forms{Form{outlook::message_class::appointment, u"Appointment", appointmentPages},
    Form{outlook::message_class::recurrenceException, u"Appointment", appointmentPages},
    Form{outlook::message_class::meetingRequest, u"Meeting", appointmentPages},
    Form{outlook::message_class::post, u"Discussion", messagePages}, Form{u"", u"Message", messagePages}};

const Form& formOf(TextView messageClass)
{
    return *std::ranges::find_if(forms, [&](const Form& form) {
        return equalIgnoringCase(messageClass.substr(0, form.messageClass.size()), form.messageClass);
    });
}

} // namespace

Inspector::Inspector(std::weak_ptr<Inspectors> owner, std::shared_ptr<Item> item)
    : owner_(std::move(owner))
    , item_(std::move(item))
    , commandBars_(CommandBars::ofInspector())
{
    commandBars_->setChanged([this] { item_->model().windows().inspectorChanged(*this); });
}

Text Inspector::caption() const
{
    const Text& subject = item_->record().subject;
    const Form& form = formOf(item_->record().messageClass);
    return (subject.empty() ? Text{u"Untitled"} : subject) + u" - " + Text{form.name};
}

std::vector<Text> Inspector::pages() const
{
    const auto all = formOf(item_->record().messageClass).pages;
    std::vector<Text> pages{all.begin(), all.end()};
    std::erase_if(pages, [&](const Text& page) {
        return std::ranges::any_of(hiddenPages_, [&](const Text& hidden) { return equalIgnoringCase(hidden, page); });
    });
    return pages;
}

void Inspector::display()
{
    const auto keptAlive = shared_from_this();
    const bool first = !std::exchange(shown_, true);
    if (const auto owner = owner_.lock(); first && owner)
        owner->announce(keptAlive);
    activate();
    // What programs write into an item while its window opens is no change that a person has to decide about.
    if (first)
        item_->settle();
}

void Inspector::activate()
{
    const auto keptAlive = shared_from_this();
    if (closed_)
        return;
    if (const auto owner = owner_.lock())
        owner->activate(keptAlive);
    if (shown_)
        item_->model().windows().showInspector(keptAlive);
    events_.raise(u"Activate");
}

void Inspector::cameToFront()
{
    const auto keptAlive = shared_from_this();
    const auto owner = owner_.lock();
    // That a program has brought it there is known already.
    if (closed_ || owner == nullptr || owner->active() == keptAlive)
        return;
    owner->activate(keptAlive);
    events_.raise(u"Activate");
}

void Inspector::close(CloseMode mode)
{
    const auto keptAlive = shared_from_this();
    if (!closed_ && item_->close(mode))
        finish();
}

void Inspector::itemDeleted()
{
    const auto keptAlive = shared_from_this();
    finish();
}

void Inspector::finish()
{
    // A handler of the closing may have closed it already.
    if (std::exchange(closed_, true))
        return;
    if (const auto owner = owner_.lock())
        owner->remove(*this);
    item_->model().windows().inspectorClosed(*this);
    events_.raise(u"Close");
}

void Inspector::placed() const { item_->model().windows().inspectorChanged(*this); }

void Inspector::hideFormPage(const Text& name)
{
    const auto all = formOf(item_->record().messageClass).pages;
    if (std::ranges::none_of(all, [&](TextView page) { return equalIgnoringCase(page, name); }))
        throw hostError(host_error::badArgument, u"The form has no page of the name \"" + name + u"\".");
    hiddenPages_.push_back(name);
    item_->model().windows().inspectorChanged(*this);
}

automation::EventSource* Inspector::eventSource(const automation::EventInterface& events)
{
    return events.id == outlook::event_interface::inspector.id ? &events_ : nullptr;
}

std::span<const LocalMember<Inspector>> Inspector::members()
{
    using Self = Inspector;
    static constexpr std::array table{
        LocalMember<Self>{
            u"CurrentItem", [](Self& self, const Arguments&) -> Variant { return self.item_->dispatch(); }},
        LocalMember<Self>{u"CommandBars", [](Self& self, const Arguments&) -> Variant { return self.commandBars_; }},
        LocalMember<Self>{u"Caption", [](Self& self, const Arguments&) -> Variant { return self.caption(); }},
        placeMember<Inspector, &WindowPlace::left>(u"Left"),
        placeMember<Inspector, &WindowPlace::top>(u"Top"),
        placeMember<Inspector, &WindowPlace::width>(u"Width"),
        placeMember<Inspector, &WindowPlace::height>(u"Height"),
        windowStateMember<Inspector>(),
        LocalMember<Self>{
            u"Display", [](Self& self, const Arguments&) -> Variant { return self.display(), Variant{}; }},
        LocalMember<Self>{
            u"Activate", [](Self& self, const Arguments&) -> Variant { return self.activate(), Variant{}; }},
        LocalMember<Self>{u"Close",
            [](Self& self, const Arguments& arguments) -> Variant {
                self.close(static_cast<CloseMode>(arguments[0].integer32()));
                return {};
            }},
        LocalMember<Self>{u"HideFormPage",
            [](Self& self, const Arguments& arguments) -> Variant {
                self.hideFormPage(arguments[0].text());
                return {};
            }},
    };
    return table;
}

std::shared_ptr<Inspector> Inspectors::find(const Item& item) const
{
    const auto found = std::ranges::find_if(inspectors_, [&](const auto& window) { return &window->item() == &item; });
    return found == inspectors_.end() ? nullptr : *found;
}

std::shared_ptr<Inspector> Inspectors::findStored(Item& item) const
{
    const auto originalOf = [](const Item& one) {
        return one.occurrence() ? std::optional{one.occurrence()->original.seconds()} : std::nullopt;
    };
    const auto found = std::ranges::find_if(inspectors_, [&](const auto& window) {
        Item& shown = window->item();
        return &shown == &item
            || (item.record().id != ItemId::None && shown.record().id == item.record().id
                && originalOf(shown) == originalOf(item));
    });
    return found == inspectors_.end() ? nullptr : *found;
}

std::shared_ptr<Inspector> Inspectors::windowOf(const std::shared_ptr<Item>& item)
{
    if (auto window = find(*item))
        return window;
    return inspectors_.emplace_back(std::make_shared<Inspector>(weak_from_this(), item));
}

void Inspectors::announce(const std::shared_ptr<Inspector>& inspector)
{
    std::array<Variant, 1> arguments{Variant{inspector}};
    events_.raise(u"NewInspector", arguments);
}

void Inspectors::remove(const Inspector& inspector)
{
    std::erase_if(inspectors_, [&](const auto& entry) { return entry.get() == &inspector; });
    if (active_.get() == &inspector)
        active_ = inspectors_.empty() ? nullptr : inspectors_.back();
}

void Inspectors::clear()
{
    inspectors_.clear();
    active_.reset();
}

std::shared_ptr<Inspector> Inspectors::item(std::int32_t position) const
{
    if (position < 1 || std::cmp_greater(position, inspectors_.size()))
        throw hostError(host_error::badArgument, u"Array index out of bounds.");
    return inspectors_[static_cast<std::size_t>(position - 1)];
}

automation::EventSource* Inspectors::eventSource(const automation::EventInterface& events)
{
    return events.id == outlook::event_interface::inspectors.id ? &events_ : nullptr;
}

std::span<const LocalMember<Inspectors>> Inspectors::members()
{
    using Self = Inspectors;
    static constexpr std::array table{
        LocalMember<Self>{
            u"Count", [](Self& self, const Arguments&) -> Variant { return static_cast<std::int32_t>(self.count()); }},
        LocalMember<Self>{u"Item",
            [](Self& self, const Arguments& arguments) -> Variant { return self.item(arguments[0].integer32()); }},
    };
    return table;
}

} // namespace rf::host
