#include "host/item.h"

#include "host/host_error.h"
#include "host/inspectors.h"
#include "host/model.h"
#include "host/recurrence.h"

#include <algorithm>
#include <array>

namespace rf::host {

using automation::Reference;
using automation::Variant;

namespace {

automation::Error itemDeleted() { return hostError(host_error::deleted, u"The item has been moved or deleted."); }

/// Gives a series the change of one of its occurrences in place of an earlier one. Error `deleted` when there is no
/// such occurrence any more.
void takeChange(ItemRecord& series, const OccurrenceChange& change)
{
    if (!series.recurrence)
        throw itemDeleted();
    auto& changes = series.recurrence->changes;
    const auto earlier = std::ranges::find(
        changes, change.original.seconds(), [](const auto& known) { return known.original.seconds(); });
    if (earlier == changes.end())
        changes.push_back(change);
    else if (earlier->deleted)
        throw itemDeleted();
    else
        *earlier = change;
}

} // namespace

Item::Item(std::shared_ptr<Model> model, ItemRecord record, std::optional<OccurrenceOf> occurrence)
    : model_(std::move(model))
    , record_(std::move(record))
    , occurrence_(occurrence)
    , saved_(record_.id != ItemId::None)
{
}

std::shared_ptr<Item> Item::self() { return {dispatch(), this}; }

void Item::requireAlive() const
{
    if (deleted_)
        throw itemDeleted();
}

void Item::touch()
{
    saved_ = false;
    touched_ = true;
    model_->windows().itemChanged(*this);
}

void Item::defineField(const FieldDefinition& field)
{
    const auto defines = [&field](const FolderRecord& folder) {
        return std::ranges::any_of(
            folder.fields, [&](const FieldDefinition& known) { return equalIgnoringCase(known.name, field.name); });
    };
    if (defines(model_->folder(record_.folder)))
        return;
    model_->change(record_.folder, [&](FolderRecord& folder) {
        if (!defines(folder))
            folder.fields.push_back(field);
    });
}

bool Item::refused(TextView event)
{
    Variant cancel{false};
    std::array<Variant, 1> arguments{Variant{Reference{&cancel}}};
    const auto keptAlive = self();
    events_.raise(event, arguments);
    return cancel.boolean();
}

void Item::save()
{
    requireAlive();
    if (!events_.hasHandlers())
        return commit();
    const auto keptAlive = self();
    model_->underLease(
        record_.folder, [&] { return !refused(u"Write") && !deleted_; }, [&] { commit(); });
}

void Item::commit()
{
    record_.lastModificationTime = model_->clock().now();
    if (occurrence_)
        commitOccurrence();
    else {
        if (record_.id == ItemId::None && record_.creationTime == noDate)
            record_.creationTime = record_.lastModificationTime;
        if (record_.recurrence && model_->recurrence() != nullptr)
            record_.recurrence->lastEnd = model_->recurrence()->lastEnd(record_);
        model_->store().save(record_);
    }
    saved_ = true;
    touched_ = false;
    model_->changed();
    model_->windows().itemChanged(*this);
}

void Item::commitOccurrence()
{
    OccurrenceChange change;
    change.original = occurrence_->original;
    change.start = record_.start;
    change.end = record_.end;
    change.subject = record_.subject;
    change.body = record_.body;
    change.location = record_.location;
    change.categories = record_.categories;
    change.userProperties = record_.userProperties;
    changeSeries(change);
    occurrence_->exception = true;
}

void Item::changeSeries(const OccurrenceChange& change)
{
    // Others may be at other occurrences of it at the same time.
    const auto work = [&](ItemRecord& series) {
        takeChange(series, change);
        series.lastModificationTime = model_->clock().now();
        if (model_->recurrence() != nullptr)
            series.recurrence->lastEnd = model_->recurrence()->lastEnd(series);
    };
    try {
        model_->store().change(occurrence_->series, work);
    } catch (const StoreError& error) {
        if (error.fault() == StoreFault::Missing)
            throw itemDeleted();
        throw;
    }
}

void Item::remove()
{
    requireAlive();
    deleted_ = true;
    if (occurrence_) {
        OccurrenceChange deletion;
        deletion.original = occurrence_->original;
        deletion.deleted = true;
        changeSeries(deletion);
    } else if (record_.id != ItemId::None && !model_->store().remove(record_.id)) {
        throw itemDeleted();
    }
    model_->changed();
    if (const auto window = model_->inspectors().find(*this))
        window->itemDeleted();
}

bool Item::saveForClosing()
{
    save();
    return saved_ || deleted_;
}

bool Item::settleChanges(CloseMode mode)
{
    if (mode == CloseMode::Save)
        return saved_ || saveForClosing();
    if (mode == CloseMode::Discard || !touched_)
        return true;
    model_->askingPerson();
    switch (model_->windows().askToSave(record_.subject)) {
    case SaveAnswer::Save:
        return saveForClosing();
    case SaveAnswer::KeepOpen:
        return false;
    case SaveAnswer::Discard:
        break;
    }
    return true;
}

bool Item::close(CloseMode mode)
{
    requireAlive();
    const auto keptAlive = self();
    const int before = closings_;
    const bool cancelled = refused(u"Close");
    // A handler may have deleted it, or closed it in its own way: then there is nothing left to decide.
    if (deleted_ || closings_ != before)
        return true;
    if (cancelled || !settleChanges(mode))
        return false;
    ++closings_;
    return true;
}

} // namespace rf::host
