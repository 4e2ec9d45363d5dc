#pragma once

#include "booking/booking_item.h"
#include "booking/booking_properties.h"
#include "host/entry_id.h"
#include "host/item_factory.h"
#include "storage/settings.h"
#include "support/session_fixture.h"

#include <algorithm>

namespace rf::test {

/// 3 February 2024 at that time.
[[nodiscard]] inline Date at(int hour, int minute = 0) { return Date::fromFields({2024, 2, 3, hour, minute, 0}); }

/// A program beside a host with two resource calendars and a calendar for all bookings, and a person, Jane Doe.
class BookingTest : public SessionTest {
protected:
    BookingTest() { begin(); }

    /// A new host with nothing in it, and a program that starts beside it.
    void begin()
    {
        session.reset();
        runHost();
        const auto root = host::ensureRoomfoldRoot(*store, u"Roomfold", u"file:///roomfold/Roomfold.htm");
        room = host::ensureCalendar(*store, root, u"Room 1");
        otherRoom = host::ensureCalendar(*store, root, u"Room 2");
        all = host::ensureCalendar(*store, root, u"All bookings");
        own = SessionTest::folder(host::FolderRole::Calendar)->id();
        attach(outlook::Application{automation::Object{host}});
    }

    /// Starts the program at one end of a transport, in place of the one that ran. By value: the application may be
    /// the running program's own.
    void attach(outlook::Application application)
    {
        session = std::make_unique<Session>(services());
        session->ouaApp = std::move(application);
        session->ounNameSpace = session->ouaApp.getNamespace();
        session->language.loadQuietly();
        session->strUserName = u"Jane Doe";
        session->objSettings = std::make_unique<cSettings>(*session);
    }

    /// A calendar as the program sees it.
    [[nodiscard]] outlook::Folder folder(host::FolderId id) const
    {
        return session->ouaApp.getNamespace().getFolderFromId(host::entryIdOf(id), {});
    }
    /// A new appointment, unsaved, in the first room unless a test says where.
    [[nodiscard]] outlook::AppointmentItem newAppointment(
        const Text& subject, Date start, int minutes, host::FolderId where = host::FolderId::None) const
    {
        auto item = folder(where == host::FolderId::None ? room : where).items().add().as<outlook::AppointmentItem>();
        item.setSubject(subject);
        item.setStart(start);
        item.setDuration(minutes);
        return item;
    }
    /// The same, saved.
    outlook::AppointmentItem saved(
        const Text& subject, Date start, int minutes, host::FolderId where = host::FolderId::None) const
    {
        auto item = newAppointment(subject, start, minutes, where);
        item.save();
        return item;
    }
    /// The same as a booking that the rules have accepted.
    outlook::AppointmentItem booked(const Text& subject, Date start, int minutes) const
    {
        auto item = newAppointment(subject, start, minutes);
        EXPECT_TRUE(fncAddBookingProps(item));
        setProperty(item, u"SafeOrganizer", u"Jane Doe");
        setProperty(item, u"OriginalStartDate", start);
        setProperty(item, u"OriginalDuration", minutes);
        setProperty(item, u"OCID", u"2024-2-3:8.0.0_" + subject);
        item.save();
        return item;
    }
    static void setProperty(const outlook::Item& item, TextView name, const automation::Variant& value)
    {
        item.userProperties().find(name).setValue(value);
    }

    /// A series of every week, saved.
    outlook::AppointmentItem savedSeries(const Text& subject, Date start, int minutes) const
    {
        auto item = newAppointment(subject, start, minutes);
        item.getRecurrencePattern().object().put(u"RecurrenceType", 1);
        item.save();
        return item;
    }
    /// One occurrence of a series that was moved to another time.
    [[nodiscard]] outlook::AppointmentItem movedOccurrence(const outlook::AppointmentItem& series, Date start) const
    {
        auto record = *store->read(*host::itemIdOf(series.entryId()));
        const host::OccurrenceOf occurrence{record.id, record.start, true};
        record.end = Date::fromSeconds(record.end.seconds() - record.start.seconds() + start.seconds());
        record.start = start;
        return outlook::AppointmentItem{
            automation::Object{host::makeItem(host->model().shared_from_this(), std::move(record), occurrence)}};
    }

    /// What the store has in a calendar, in the order in which it came.
    [[nodiscard]] std::vector<host::ItemRecord> stored(host::FolderId id) const
    {
        std::vector<host::ItemRecord> items;
        for (const auto item : store->items(id))
            items.push_back(*store->read(item));
        return items;
    }
    [[nodiscard]] host::ItemRecord only(host::FolderId id) const
    {
        const auto items = stored(id);
        EXPECT_EQ(items.size(), 1U);
        return items.empty() ? host::ItemRecord{} : items.front();
    }
    /// Empty when the item has no such property.
    [[nodiscard]] static automation::Variant property(const host::ItemRecord& item, TextView name)
    {
        const auto found = std::ranges::find(item.userProperties, name, &host::UserPropertyRecord::name);
        return found == item.userProperties.end() ? automation::Variant{} : found->value;
    }

    host::FolderId room{};
    host::FolderId otherRoom{};
    host::FolderId all{};
    host::FolderId own{};
    std::unique_ptr<Session> session;
};

} // namespace rf::test
