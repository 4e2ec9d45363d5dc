#pragma once

#include "automation/object.h"
#include "basic/clock.h"
#include "basic/regional.h"
#include "host/host_windows.h"
#include "host/store.h"

#include <functional>
#include <memory>
#include <set>
#include <vector>

namespace rf::host {

class Inspectors;
class Items;
class RecurrenceEngine;

/// What a host is made of. Everything here outlives it.
struct HostServices {
    Store& store;
    const Regional& regional;
    const Clock& clock;
    HostWindows& windows;
    /// Null where series are not expanded; a series then counts as its first occurrence.
    const RecurrenceEngine* recurrence = nullptr;
};

/// What the objects of one host share: its store, whose mailbox is open in it, the collections that listen, and the
/// leases under which handlers run. The objects of the object model are made of this and a number of the store.
class Model : public std::enable_shared_from_this<Model> {
public:
    struct Settings {
        Text version = u"11.0.8169";
        /// The name of the person whose mailbox is the default one.
        Text user;
    };

    Model(const HostServices& services, Settings settings);

    [[nodiscard]] Store& store() const { return services_.store; }
    [[nodiscard]] const Regional& regional() const { return services_.regional; }
    [[nodiscard]] const Clock& clock() const { return services_.clock; }
    [[nodiscard]] HostWindows& windows() const { return services_.windows; }
    [[nodiscard]] const RecurrenceEngine* recurrence() const { return services_.recurrence; }
    [[nodiscard]] const Settings& settings() const { return settings_; }

    /// The folders as they are now.
    [[nodiscard]] std::vector<FolderRecord> folders() const { return store().folders(); }
    /// Error `notFound` when the folder is gone.
    [[nodiscard]] FolderRecord folder(FolderId id) const;
    /// Changes a folder as it is stored, as `Store::change` does. Error `notFound` when the folder is gone.
    void change(FolderId id, const std::function<void(FolderRecord&)>& work) const;
    /// The default folder of a role in the mailbox of a person. Error `notFound` when there is no such mailbox.
    [[nodiscard]] FolderRecord defaultFolder(FolderRole role, TextView person) const;
    /// The root of the store that a folder lies in.
    [[nodiscard]] FolderRecord storeOf(FolderId id) const;

    /// The objects of which a host has one. The application makes them known when it is made.
    [[nodiscard]] std::shared_ptr<automation::Dispatch> application() const { return application_.lock(); }
    [[nodiscard]] Inspectors& inspectors() const { return *inspectors_; }
    void setApplication(const std::shared_ptr<automation::Dispatch>& application) { application_ = application; }

    /// The same for all objects of one folder.
    [[nodiscard]] const void* identityOf(FolderId folder);

    /// Lets a collection hear of the items that come, change and go in its folder.
    void listen(const std::shared_ptr<Items>& items);

    /// Raises the events of every change since the last call, this host's own ones and those of other processes. The
    /// events of one change are raised under the lease of its folder, and only for an item that is still as the change
    /// left it there. Of more than 16 items that arrived together no arrival is raised. Does nothing while a handler
    /// runs: the changes wait for the next call.
    void followChanges();

    /// Called after each change that this host itself makes, so that whoever drives it need not wait with
    /// `followChanges` until it next looks for the changes of others.
    void setChanged(std::function<void()> changed) { changed_ = std::move(changed); }
    /// For the objects of this host, which make the changes.
    void changed() const { changed_(); }

    /// Runs a step under the lease of a folder: `allow` decides, `commit` does what was allowed. When the lease is lost
    /// before the commit, because it took too long or because a person was asked, `allow` is asked again under a new
    /// one. A step within another takes no lease of its own, so no two steps can wait for each other.
    void underLease(FolderId folder, const std::function<bool()>& allow, const std::function<void()>& commit);

    /// Gives up every lease: a person is being asked, which may take any time.
    void askingPerson();

private:
    class Lease;

    void raise(const Change& change);
    void raiseToListeners(const Change& change, TextView event, std::vector<automation::Variant> arguments);
    [[nodiscard]] bool hasListeners(FolderId folder) const;
    void takeLease(FolderId folder);

    HostServices services_;
    Settings settings_;
    std::function<void()> changed_ = [] {};
    std::weak_ptr<automation::Dispatch> application_;
    std::shared_ptr<Inspectors> inspectors_;
    std::set<FolderId> identities_;
    std::vector<std::weak_ptr<Items>> listeners_;
    std::int64_t followed_;
    /// The folder whose lease is taken; none outside a step.
    FolderId leased_ = FolderId::None;
    int steps_ = 0;
};

} // namespace rf::host
