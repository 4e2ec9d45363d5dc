#include "host/item_factory.h"

#include "host/appointment_item.h"
#include "host/folder.h"
#include "host/host_error.h"
#include "host/inspectors.h"
#include "host/model.h"
#include "host/note_items.h"
#include "host/recurrence.h"
#include "outlook/constants.h"
#include "outlook/event_interfaces.h"

namespace rf::host {

namespace {

bool isA(TextView messageClass, TextView base) { return equalIgnoringCase(messageClass.substr(0, base.size()), base); }

Date nextHalfHour(Date now)
{
    constexpr std::int64_t halfHour = 1800;
    return Date::fromSeconds((now.seconds() / halfHour + 1) * halfHour);
}

} // namespace

std::shared_ptr<automation::Dispatch> makeItem(
    std::shared_ptr<Model> model, ItemRecord record, std::optional<OccurrenceOf> occurrence)
{
    const Text messageClass = record.messageClass;
    if (occurrence || isA(messageClass, outlook::message_class::appointment))
        return std::make_shared<AppointmentItem>(std::move(model), std::move(record), occurrence);
    if (isA(messageClass, outlook::message_class::post))
        return std::make_shared<PostItem>(std::move(model), std::move(record), occurrence);
    if (isA(messageClass, outlook::message_class::meetingRequest))
        return std::make_shared<MeetingItem>(std::move(model), std::move(record), occurrence);
    return std::make_shared<MailItem>(std::move(model), std::move(record), occurrence);
}

std::shared_ptr<Item> itemOf(const std::shared_ptr<automation::Dispatch>& object)
{
    return std::dynamic_pointer_cast<Item>(object);
}

ItemRecord newRecord(const Model& model, FolderId folder, TextView messageClass)
{
    ItemRecord record;
    record.folder = folder;
    record.messageClass = messageClass;
    if (isA(messageClass, outlook::message_class::appointment)) {
        constexpr long long length = 30;
        record.start = nextHalfHour(model.clock().now());
        record.end = record.start.plusMinutes(length);
    }
    return record;
}

ItemRecord occurrenceRecord(const ItemRecord& series, const Occurrence& occurrence)
{
    ItemRecord record = series;
    record.start = occurrence.start;
    record.end = occurrence.end;
    if (!occurrence.change)
        return record;
    const OccurrenceChange& change = series.recurrence->changes[*occurrence.change];
    record.subject = change.subject;
    record.body = change.body;
    record.location = change.location;
    record.categories = change.categories;
    record.userProperties = change.userProperties;
    return record;
}

std::shared_ptr<automation::Dispatch> parentOf(Item& item)
{
    if (!item.occurrence())
        return std::make_shared<Folder>(item.sharedModel(), item.record().folder);
    auto series = item.model().store().read(item.occurrence()->series);
    if (!series)
        throw hostError(host_error::deleted, u"The series has been moved or deleted.");
    return makeItem(item.sharedModel(), std::move(*series));
}

std::shared_ptr<automation::Dispatch> inspectorOf(Item& item)
{
    return item.model().inspectors().windowOf(item.self());
}

void displayItem(Item& item)
{
    if (!item.refused(u"Open"))
        item.model().inspectors().windowOf(item.self())->display();
}

void closeItem(Item& item, CloseMode mode)
{
    if (const auto window = item.model().inspectors().find(item))
        window->close(mode);
    else
        static_cast<void>(item.close(mode));
}

bool isItemEvents(const automation::EventInterface& set) { return set.id == outlook::event_interface::item.id; }

} // namespace rf::host
