#include "host/items.h"

#include "host/fields.h"
#include "host/host_error.h"
#include "host/item_factory.h"
#include "host/model.h"
#include "host/recurrence.h"
#include "host/restriction_plan.h"
#include "outlook/constants.h"
#include "outlook/event_interfaces.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

namespace rf::host {

using automation::Arguments;
using automation::LocalMember;
using automation::Variant;

namespace {

/// A field's name as it is given to Sort: with or without brackets.
TextView unbracketed(TextView name)
{
    name = trim(name);
    return name.starts_with(u'[') && name.ends_with(u']') ? name.substr(1, name.size() - 2) : name;
}

std::vector<ItemId> candidates(const Store& store, FolderId folder, const TimeWindows& windows)
{
    std::vector<ItemId> ids;
    for (const TimeWindow& window : windows)
        for (const ItemId id : store.overlapping(folder, window.from, window.to))
            if (std::ranges::find(ids, id) == ids.end())
                ids.push_back(id);
    return ids;
}

/// Where an index leads; every item of the folder when none does.
std::vector<ItemId> candidates(const Store& store, FolderId folder, const std::optional<Plan>& plan)
{
    if (!plan)
        return store.items(folder);
    if (const auto* subject = std::get_if<SubjectEquality>(&*plan))
        return store.withSubject(folder, subject->subject);
    if (const auto* property = std::get_if<PropertyEquality>(&*plan))
        return store.withProperty(folder, property->name, property->text);
    return candidates(store, folder, std::get<TimeWindows>(*plan));
}

bool before(const FieldValue& left, const FieldValue& right)
{
    if (const auto* text = std::get_if<TextView>(&left))
        return compareIgnoringCase(*text, std::get<TextView>(right)) < 0;
    return left < right;
}

TextView messageClassOf(std::int32_t itemType)
{
    switch (static_cast<outlook::ItemType>(itemType)) {
    case outlook::ItemType::Mail:
        return u"IPM.Note";
    case outlook::ItemType::Appointment:
        return outlook::message_class::appointment;
    case outlook::ItemType::Post:
        return outlook::message_class::post;
    }
    throw hostError(host_error::badArgument, u"Items of that kind are not kept here.");
}

} // namespace

std::shared_ptr<Items> Items::make(const std::shared_ptr<Model>& model, FolderId folder)
{
    auto items = std::make_shared<Items>(model, folder);
    model->listen(items);
    return items;
}

automation::EventSource* Items::eventSource(const automation::EventInterface& events)
{
    return events.id == outlook::event_interface::items.id ? &events_ : nullptr;
}

std::shared_ptr<const Restriction> Items::parse(const Text& text) const
{
    return std::make_shared<const Restriction>(
        Restriction::parse(text, model_->folder(folder_).fields, model_->regional()));
}

bool Items::expands() const
{
    // The object model expands series only in a collection that is sorted by start, upwards.
    return includeRecurrences_ && model_->recurrence() != nullptr && order_.field && !order_.descending
        && equalIgnoringCase(order_.field->name(), u"Start");
}

std::vector<Items::Entry> Items::occurrences(const ItemRecord& series, const TimeWindows& windows) const
{
    std::vector<Entry> found;
    std::set<std::int64_t> starts;
    for (const TimeWindow& window : windows)
        for (const Occurrence& occurrence : model_->recurrence()->expand(series, window.from, window.to))
            // One that is long enough lies in more than one window.
            if (starts.insert(occurrence.original.seconds()).second)
                found.push_back({occurrenceRecord(series, occurrence),
                    OccurrenceOf{series.id, occurrence.original, occurrence.isException()}});
    return found;
}

std::vector<Items::Entry> Items::occurrences(const ItemRecord& series) const
{
    if (const auto end = series.recurrence->lastEnd)
        return occurrences(series, {{firstDate, *end}});
    std::vector<Entry> found{{series, std::nullopt}};
    for (const OccurrenceChange& change : series.recurrence->changes)
        if (const auto occurrence = model_->recurrence()->occurrence(series, change.original))
            found.push_back(
                {occurrenceRecord(series, *occurrence), OccurrenceOf{series.id, occurrence->original, true}});
    return found;
}

void Items::arrange(std::vector<Entry>& entries) const
{
    if (!order_.field)
        return;
    std::ranges::stable_sort(entries, [&](const Entry& left, const Entry& right) {
        const auto first = order_.field->read((order_.descending ? right : left).record);
        return before(first, order_.field->read((order_.descending ? left : right).record));
    });
}

std::vector<Items::Entry> Items::entries(const Restriction* further) const
{
    const Restriction* narrower = further != nullptr ? further : restriction_.get();
    const bool expanding = expands();
    const auto windows = narrower != nullptr && expanding ? planWindows(*narrower) : std::nullopt;
    std::vector<Entry> found;
    const auto keepMatching = [&](Entry entry) {
        if ((restriction_ == nullptr || restriction_->matches(entry.record))
            && (further == nullptr || further->matches(entry.record)))
            found.push_back(std::move(entry));
    };
    // An exception has a subject and properties of its own, by which no index finds its series.
    const auto ids = windows
        ? candidates(model_->store(), folder_, *windows)
        : candidates(model_->store(), folder_, narrower != nullptr && !expanding ? plan(*narrower) : std::nullopt);
    for (const ItemId id : ids) {
        auto record = model_->store().read(id);
        if (record && record->recurrence && expanding)
            std::ranges::for_each(windows ? occurrences(*record, *windows) : occurrences(*record), keepMatching);
        else if (record)
            keepMatching({std::move(*record), std::nullopt});
    }
    arrange(found);
    return found;
}

std::shared_ptr<automation::Dispatch> Items::objectOf(const Entry& entry) const
{
    return makeItem(model_, entry.record, entry.occurrence);
}

std::int32_t Items::count() const
{
    if (restriction_ == nullptr)
        return static_cast<std::int32_t>(model_->store().count(folder_));
    return static_cast<std::int32_t>(entries(nullptr).size());
}

std::shared_ptr<automation::Dispatch> Items::item(const Variant& index) const
{
    if (index.is<Text>()) {
        for (const ItemId id : model_->store().withSubject(folder_, index.text()))
            if (auto record = model_->store().read(id))
                return makeItem(model_, std::move(*record));
        throw hostError(host_error::badArgument, u"The operation failed. An object could not be found.");
    }
    const auto all = entries(nullptr);
    const auto position = index.integer32();
    if (position < 1 || std::cmp_greater(position, all.size()))
        throw hostError(host_error::badArgument, u"Array index out of bounds.");
    return objectOf(all[static_cast<std::size_t>(position - 1)]);
}

std::shared_ptr<automation::Dispatch> Items::add(const Variant& kind) const
{
    if (kind.is<Text>())
        return makeItem(model_, newRecord(*model_, folder_, kind.text()));
    const auto type = kind.isEmpty() ? model_->folder(folder_).defaultItemType : kind.integer32();
    return makeItem(model_, newRecord(*model_, folder_, messageClassOf(type)));
}

std::shared_ptr<automation::Dispatch> Items::find(const Text& restriction)
{
    found_ = entries(parse(restriction).get());
    next_ = 0;
    return findNext();
}

std::shared_ptr<automation::Dispatch> Items::findNext()
{
    return next_ < found_.size() ? objectOf(found_[next_++]) : nullptr;
}

std::shared_ptr<Items> Items::restricted(const Text& restriction) const
{
    auto items = make(model_, folder_);
    items->restriction_ = parse(restriction);
    items->order_ = order_;
    items->includeRecurrences_ = includeRecurrences_;
    return items;
}

void Items::sort(const Text& field, bool descending)
{
    auto found = Field::find(unbracketed(field), model_->folder(folder_).fields);
    if (!found)
        throw hostError(host_error::badArgument, u"The field \"" + field + u"\" is not known in this folder.");
    order_ = {std::make_shared<const Field>(std::move(*found)), descending};
}

std::span<const LocalMember<Items>> Items::members()
{
    using Self = Items;
    static constexpr std::array table{
        LocalMember<Self>{u"Count", [](Self& self, const Arguments&) -> Variant { return self.count(); }},
        LocalMember<Self>{
            u"Item", [](Self& self, const Arguments& arguments) -> Variant { return self.item(arguments[0]); }},
        LocalMember<Self>{u"Add",
            [](Self& self, const Arguments& arguments) -> Variant {
                return self.add(arguments.has(0) ? arguments[0] : Variant{});
            }},
        LocalMember<Self>{
            u"Find", [](Self& self, const Arguments& arguments) -> Variant { return self.find(arguments[0].text()); }},
        LocalMember<Self>{u"FindNext", [](Self& self, const Arguments&) -> Variant { return self.findNext(); }},
        LocalMember<Self>{u"Restrict",
            [](Self& self, const Arguments& arguments) -> Variant { return self.restricted(arguments[0].text()); }},
        LocalMember<Self>{u"Sort",
            [](Self& self, const Arguments& arguments) -> Variant {
                self.sort(arguments[0].text(), arguments.has(1) && arguments[1].boolean());
                return {};
            }},
        LocalMember<Self>{u"IncludeRecurrences",
            [](Self& self, const Arguments&) -> Variant { return self.includeRecurrences_; },
            [](Self& self, const Arguments& arguments) { self.includeRecurrences_ = arguments.value().boolean(); }},
    };
    return table;
}

} // namespace rf::host
