#pragma once

#include "automation/local_object.h"
#include "host/command_bars.h"
#include "host/folder.h"
#include "host/host_windows.h"
#include "host/window_place.h"

#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace rf::host {

class Explorers;

/// A window that shows a folder.
class Explorer final : public automation::LocalObject<Explorer> {
public:
    static constexpr TextView className = u"Explorer";

    Explorer(std::weak_ptr<Explorers> owner, std::shared_ptr<Folder> folder, HostWindows& windows);
    /// Programs may hold its bars longer than it lives.
    ~Explorer() override { commandBars_->setChanged({}); }
    Explorer(const Explorer&) = delete;
    Explorer& operator=(const Explorer&) = delete;

    [[nodiscard]] const std::shared_ptr<Folder>& folder() const { return folder_; }
    /// Shows another folder.
    void switchTo(std::shared_ptr<Folder> folder);
    /// Brings the window to the front.
    void activate();
    /// A person has brought the window to the front.
    void cameToFront();
    /// Nothing happens when it is closed.
    void close();
    [[nodiscard]] bool isClosed() const { return closed_; }
    [[nodiscard]] CommandBars& commandBars() const { return *commandBars_; }
    [[nodiscard]] WindowPlace& place() { return place_; }
    /// A program has assigned a place.
    void placed() const { windows_.explorerChanged(*this); }
    /// As the window's title bar has it.
    [[nodiscard]] Text caption() const { return folder_->record().name + u" - Outlook"; }

    [[nodiscard]] static std::span<const automation::LocalMember<Explorer>> members();

private:
    [[nodiscard]] automation::EventSource* eventSource(const automation::EventInterface& events) override;

    std::weak_ptr<Explorers> owner_;
    std::shared_ptr<Folder> folder_;
    HostWindows& windows_;
    std::shared_ptr<CommandBars> commandBars_;
    bool closed_ = false;
    WindowPlace place_;
    automation::EventSource events_;
};

/// The open folder windows in the order of their opening.
class Explorers final : public automation::LocalObject<Explorers> {
public:
    static constexpr TextView className = u"Explorers";

    /// `windows` outlives this.
    explicit Explorers(HostWindows& windows)
        : windows_(windows)
    {
    }

    std::shared_ptr<Explorer> add(std::shared_ptr<Folder> folder);
    void remove(const Explorer& explorer);
    void activate(const std::shared_ptr<Explorer>& explorer);
    /// Tells a home page of each folder that comes to the front.
    void setFolderShown(std::function<void(const FolderRecord& folder)> folderShown)
    {
        folderShown_ = std::move(folderShown);
    }
    void folderShown(const Folder& folder) const;
    [[nodiscard]] std::size_t count() const { return explorers_.size(); }
    /// From 1 up; error -2147352567 outside.
    [[nodiscard]] std::shared_ptr<Explorer> item(std::int32_t position) const;
    /// Nothing while no window has been brought to the front.
    [[nodiscard]] std::shared_ptr<Explorer> active() const { return active_; }

    [[nodiscard]] static std::span<const automation::LocalMember<Explorers>> members();

private:
    HostWindows& windows_;
    std::vector<std::shared_ptr<Explorer>> explorers_;
    std::shared_ptr<Explorer> active_;
    std::function<void(const FolderRecord&)> folderShown_;
};

} // namespace rf::host
