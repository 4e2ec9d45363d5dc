#include "host/explorers.h"

#include "host/host_error.h"
#include "outlook/event_interfaces.h"

#include <array>
#include <utility>

namespace rf::host {

using automation::Arguments;
using automation::LocalMember;
using automation::Variant;

namespace {

template <class T>
std::shared_ptr<T> argumentAs(const Variant& value)
{
    auto object = std::dynamic_pointer_cast<T>(value.dispatch());
    if (object == nullptr)
        throw RuntimeError{error_number::typeMismatch};
    return object;
}

} // namespace

Explorer::Explorer(std::weak_ptr<Explorers> owner, std::shared_ptr<Folder> folder, HostWindows& windows)
    : owner_(std::move(owner))
    , folder_(std::move(folder))
    , windows_(windows)
    , commandBars_(CommandBars::ofExplorer())
{
    commandBars_->setChanged([this] { windows_.explorerChanged(*this); });
}

void Explorer::switchTo(std::shared_ptr<Folder> folder)
{
    const auto keptAlive = shared_from_this();
    folder_ = std::move(folder);
    windows_.explorerChanged(*this);
    events_.raise(u"FolderSwitch");
    if (const auto owner = owner_.lock())
        owner->folderShown(*folder_);
}

void Explorer::activate()
{
    const auto keptAlive = shared_from_this();
    if (closed_)
        return;
    windows_.showExplorer(keptAlive);
    if (const auto owner = owner_.lock())
        owner->activate(keptAlive);
    events_.raise(u"Activate");
}

void Explorer::cameToFront()
{
    const auto keptAlive = shared_from_this();
    const auto owner = owner_.lock();
    // That a program has brought it there is known already.
    if (closed_ || owner == nullptr || owner->active() == keptAlive)
        return;
    owner->activate(keptAlive);
    events_.raise(u"Activate");
}

void Explorer::close()
{
    const auto keptAlive = shared_from_this();
    if (std::exchange(closed_, true))
        return;
    if (const auto owner = owner_.lock())
        owner->remove(*this);
    windows_.explorerClosed(*this);
    events_.raise(u"Close");
}

automation::EventSource* Explorer::eventSource(const automation::EventInterface& events)
{
    return events.id == outlook::event_interface::explorer.id ? &events_ : nullptr;
}

std::span<const LocalMember<Explorer>> Explorer::members()
{
    static constexpr std::array table{
        LocalMember<Explorer>{u"CurrentFolder",
            [](Explorer& self, const Arguments&) -> Variant { return self.folder_; },
            [](Explorer& self, const Arguments& arguments) { self.switchTo(argumentAs<Folder>(arguments.value())); }},
        LocalMember<Explorer>{u"Caption", [](Explorer& self, const Arguments&) -> Variant { return self.caption(); }},
        LocalMember<Explorer>{
            u"CommandBars", [](Explorer& self, const Arguments&) -> Variant { return self.commandBars_; }},
        placeMember<Explorer, &WindowPlace::left>(u"Left"),
        placeMember<Explorer, &WindowPlace::top>(u"Top"),
        placeMember<Explorer, &WindowPlace::width>(u"Width"),
        placeMember<Explorer, &WindowPlace::height>(u"Height"),
        windowStateMember<Explorer>(),
        LocalMember<Explorer>{u"Display",
            [](Explorer& self, const Arguments&) -> Variant {
                self.activate();
                return {};
            }},
        LocalMember<Explorer>{u"Activate",
            [](Explorer& self, const Arguments&) -> Variant {
                self.activate();
                return {};
            }},
        LocalMember<Explorer>{u"Close",
            [](Explorer& self, const Arguments&) -> Variant {
                self.close();
                return {};
            }},
    };
    return table;
}

std::shared_ptr<Explorer> Explorers::add(std::shared_ptr<Folder> folder)
{
    return explorers_.emplace_back(std::make_shared<Explorer>(weak_from_this(), std::move(folder), windows_));
}

void Explorers::activate(const std::shared_ptr<Explorer>& explorer)
{
    const bool first = active_ == nullptr;
    active_ = explorer;
    if (first)
        folderShown(*explorer->folder());
}

void Explorers::folderShown(const Folder& folder) const
{
    if (folderShown_)
        folderShown_(folder.record());
}

void Explorers::remove(const Explorer& explorer)
{
    std::erase_if(explorers_, [&](const auto& entry) { return entry.get() == &explorer; });
    if (active_.get() == &explorer)
        active_ = explorers_.empty() ? nullptr : explorers_.back();
}

std::shared_ptr<Explorer> Explorers::item(std::int32_t position) const
{
    if (position < 1 || std::cmp_greater(position, explorers_.size()))
        throw hostError(host_error::badArgument, u"Array index out of bounds.");
    return explorers_[static_cast<std::size_t>(position - 1)];
}

std::span<const LocalMember<Explorers>> Explorers::members()
{
    static constexpr std::array table{
        LocalMember<Explorers>{u"Count",
            [](Explorers& self, const Arguments&) -> Variant { return static_cast<std::int32_t>(self.count()); }},
        LocalMember<Explorers>{u"Item",
            [](Explorers& self, const Arguments& arguments) -> Variant { return self.item(arguments[0].integer32()); }},
        LocalMember<Explorers>{u"Add",
            [](Explorers& self, const Arguments& arguments) -> Variant {
                return self.add(argumentAs<Folder>(arguments[0]));
            }},
    };
    return table;
}

} // namespace rf::host
