#include "object_model/object_model.h"

#include "host/entry_id.h"

namespace rf::test {

std::int32_t ScriptedWindows::alert(const Text& title, const Text& message, std::int32_t buttons, std::int32_t icon)
{
    alerts.push_back(title + u"|" + message + u"|" + decimal(buttons) + u"|" + decimal(icon));
    return answer;
}

ObjectModel::ObjectModel()
    : root(host::ensureRoomfoldRoot(store, u"Roomfold", u"file:///roomfold/Roomfold.htm"))
    , room(host::ensureCalendar(store, root, u"Room 1"))
{
    host::ensureMailbox(store, u"Jane Doe");
    host::ensureMailbox(store, u"Rita Roe");
    host = host::Application::make({store, regional, clock, windows, recurrence.get()}, {u"11.0.8169", u"Jane Doe"});
    transport = GetParam().make();
    application = transport->connect(host);
}

std::shared_ptr<host::Application> ObjectModel::secondHost(TextView person)
{
    return host::Application::make({store, regional, clock, windows, recurrence.get()}, {u"11.0.8169", Text{person}});
}

outlook::Folder ObjectModel::folder(host::FolderId id) const
{
    return application.getNamespace().getFolderFromId(host::entryIdOf(id), {});
}

outlook::AppointmentItem ObjectModel::newAppointment(const Text& subject, Date start, int minutes) const
{
    auto item = calendar().items().add().as<outlook::AppointmentItem>();
    item.setSubject(subject);
    item.setStart(start);
    item.setDuration(minutes);
    return item;
}

outlook::AppointmentItem ObjectModel::booked(const Text& subject, Date start, int minutes) const
{
    auto item = newAppointment(subject, start, minutes);
    item.save();
    return item;
}

Date at(int hour, int minute) { return Date::fromFields({2024, 2, 3, hour, minute, 0}); }

} // namespace rf::test
