#include "host/model.h"

#include "host/entry_id.h"
#include "host/host_error.h"
#include "host/inspectors.h"
#include "host/item_factory.h"
#include "host/items.h"

#include <algorithm>

namespace rf::host {

using automation::Variant;

namespace {

constexpr std::chrono::seconds leaseDuration{10};
/// Longer than any lease lasts: whoever waits gets its turn.
constexpr std::chrono::seconds leasePatience{60};
constexpr std::int32_t mostThatAreAnnounced = 16;

automation::Error folderIsGone() { return hostError(host_error::notFound, u"The folder does not exist."); }

} // namespace

/// The lease of one folder, for as long as the outermost step runs. It may be lost before.
class Model::Lease {
public:
    Lease(Model& model, FolderId folder)
        : model_(model)
    {
        if (model_.steps_++ == 0)
            model_.takeLease(folder);
    }
    ~Lease()
    {
        if (--model_.steps_ == 0)
            model_.askingPerson();
    }
    Lease(const Lease&) = delete;
    Lease& operator=(const Lease&) = delete;

private:
    Model& model_;
};

Model::Model(const HostServices& services, Settings settings)
    : services_(services)
    , settings_(std::move(settings))
    , inspectors_(std::make_shared<Inspectors>())
    , followed_(services.store.lastChange())
{
}

FolderRecord Model::folder(FolderId id) const
{
    auto found = store().folder(id);
    if (!found)
        throw folderIsGone();
    return *std::move(found);
}

void Model::change(FolderId id, const std::function<void(FolderRecord&)>& work) const
{
    try {
        store().change(id, work);
    } catch (const StoreError& error) {
        if (error.fault() == StoreFault::Missing)
            throw folderIsGone();
        throw;
    }
}

FolderRecord Model::storeOf(FolderId id) const
{
    FolderRecord folderRecord = folder(id);
    while (folderRecord.parent != FolderId::None)
        folderRecord = folder(folderRecord.parent);
    return folderRecord;
}

FolderRecord Model::defaultFolder(FolderRole role, TextView person) const
{
    const auto all = folders();
    const Text mailboxName = u"Mailbox - " + Text{person};
    const auto isMailbox = [&](const FolderRecord& record) {
        return record.role == FolderRole::MailboxRoot
            && (equalIgnoringCase(record.name, mailboxName) || equalIgnoringCase(record.name, person));
    };
    const auto mailbox = std::ranges::find_if(all, isMailbox);
    if (mailbox == all.end())
        throw hostError(host_error::notFound, u"There is no mailbox of the name \"" + Text{person} + u"\".");
    const auto found = std::ranges::find_if(
        all, [&](const FolderRecord& record) { return record.parent == mailbox->id && record.role == role; });
    if (found == all.end())
        throw hostError(host_error::notFound, u"The mailbox has no such folder.");
    return *found;
}

const void* Model::identityOf(FolderId folder) { return &*identities_.insert(folder).first; }

void Model::listen(const std::shared_ptr<Items>& items)
{
    std::erase_if(listeners_, [](const auto& listener) { return listener.expired(); });
    listeners_.push_back(items);
}

bool Model::hasListeners(FolderId folder) const
{
    return std::ranges::any_of(listeners_, [&](const std::weak_ptr<Items>& listener) {
        const auto items = listener.lock();
        return items != nullptr && items->folderId() == folder && items->hasHandlers();
    });
}

void Model::followChanges()
{
    if (steps_ > 0)
        return;
    for (const Change& change : store().changesAfter(followed_)) {
        followed_ = change.sequence;
        if (hasListeners(change.folder))
            raise(change);
    }
}

void Model::raise(const Change& change)
{
    if (change.kind == ChangeKind::Removed)
        return raiseToListeners(change, u"ItemRemove", {});
    if (change.kind == ChangeKind::Added && change.arrivedTogether > mostThatAreAnnounced)
        return;
    const Lease lease{*this, change.folder};
    const auto record = store().read(change.item);
    // Another program's handler may have moved or replaced it while this one waited for the lease.
    if (!record || record->folder != change.folder)
        return;
    const auto event = change.kind == ChangeKind::Added ? u"ItemAdd" : u"ItemChange";
    raiseToListeners(change, event, {Variant{makeItem(shared_from_this(), *record)}});
}

void Model::raiseToListeners(const Change& change, TextView event, std::vector<Variant> arguments)
{
    const auto listeners = listeners_;
    for (const auto& listener : listeners)
        if (const auto items = listener.lock(); items != nullptr && items->folderId() == change.folder)
            items->raise(event, arguments);
}

void Model::takeLease(FolderId folder)
{
    leased_ = folder;
    if (!store().takeLease(folder, leaseDuration, leasePatience))
        throw hostError(host_error::storeFailed, u"Another program keeps this calendar busy.");
}

void Model::underLease(FolderId folder, const std::function<bool()>& allow, const std::function<void()>& commit)
{
    const Lease lease{*this, folder};
    const bool outermost = steps_ == 1;
    while (allow()) {
        if (outermost && !store().holdsLease(folder)) {
            takeLease(folder);
            continue;
        }
        return commit();
    }
}

void Model::askingPerson()
{
    if (leased_ != FolderId::None)
        store().giveUpLease(leased_);
    leased_ = FolderId::None;
}

} // namespace rf::host
