#pragma once

#include "automation/local_object.h"
#include "host/command_bars.h"
#include "host/item.h"
#include "host/window_place.h"

#include <memory>
#include <span>
#include <vector>

namespace rf::host {

class Inspectors;

/// A window that shows one item.
class Inspector final : public automation::LocalObject<Inspector> {
public:
    static constexpr TextView className = u"Inspector";

    Inspector(std::weak_ptr<Inspectors> owner, std::shared_ptr<Item> item);
    /// Programs may hold its bars longer than it lives.
    ~Inspector() override { commandBars_->setChanged({}); }
    Inspector(const Inspector&) = delete;
    Inspector& operator=(const Inspector&) = delete;

    [[nodiscard]] Item& item() const { return *item_; }
    /// Shows the window and brings it to the front; its first time announces it to those who wait for new windows.
    void display();
    void activate();
    /// A person has brought the window to the front.
    void cameToFront();
    /// Closes the item and, unless a handler or the person refuses, the window. Nothing happens when it is closed.
    void close(CloseMode mode);
    /// The item is gone, and its window with it: nobody is asked, there is nothing left to keep.
    void itemDeleted();
    [[nodiscard]] bool isClosed() const { return closed_; }
    /// As the window's title bar has it.
    [[nodiscard]] Text caption() const;
    /// The names of the form's pages, without the hidden ones.
    [[nodiscard]] std::vector<Text> pages() const;
    [[nodiscard]] const std::vector<Text>& hiddenPages() const { return hiddenPages_; }
    [[nodiscard]] CommandBars& commandBars() const { return *commandBars_; }
    [[nodiscard]] WindowPlace& place() { return place_; }
    /// A program has assigned a place.
    void placed() const;

    [[nodiscard]] static std::span<const automation::LocalMember<Inspector>> members();

private:
    [[nodiscard]] automation::EventSource* eventSource(const automation::EventInterface& events) override;
    void finish();
    /// Error `badArgument` for a page that the form does not have.
    void hideFormPage(const Text& name);

    std::weak_ptr<Inspectors> owner_;
    std::shared_ptr<Item> item_;
    std::shared_ptr<CommandBars> commandBars_;
    WindowPlace place_;
    std::vector<Text> hiddenPages_;
    bool shown_ = false;
    bool closed_ = false;
    automation::EventSource events_;
};

/// The open item windows in the order of their opening.
class Inspectors final : public automation::LocalObject<Inspectors> {
public:
    static constexpr TextView className = u"Inspectors";

    /// The window of an item object; made, but not shown, when it has none.
    [[nodiscard]] std::shared_ptr<Inspector> windowOf(const std::shared_ptr<Item>& item);
    /// The window of an item object; nothing when it has none.
    [[nodiscard]] std::shared_ptr<Inspector> find(const Item& item) const;
    /// The window that shows the stored item, by whatever object; nothing when there is none.
    [[nodiscard]] std::shared_ptr<Inspector> findStored(Item& item) const;
    [[nodiscard]] std::shared_ptr<Inspector> active() const { return active_; }
    [[nodiscard]] std::size_t count() const { return inspectors_.size(); }

    void announce(const std::shared_ptr<Inspector>& inspector);
    void activate(const std::shared_ptr<Inspector>& inspector) { active_ = inspector; }
    void remove(const Inspector& inspector);
    /// Lets go of every window, without a word to anybody: the host ends.
    void clear();

    [[nodiscard]] static std::span<const automation::LocalMember<Inspectors>> members();

private:
    [[nodiscard]] automation::EventSource* eventSource(const automation::EventInterface& events) override;
    /// From 1 up; error `badArgument` outside.
    [[nodiscard]] std::shared_ptr<Inspector> item(std::int32_t position) const;

    std::vector<std::shared_ptr<Inspector>> inspectors_;
    std::shared_ptr<Inspector> active_;
    automation::EventSource events_;
};

} // namespace rf::host
