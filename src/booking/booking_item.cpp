#include "booking/booking_item.h"

namespace rf {

namespace {

template <class Value, class Read>
const Value& once(std::optional<Value>& known, const Read& read)
{
    if (!known)
        known = read();
    return *known;
}

outlook::Folder folderOf(const outlook::Parent& parent, bool isRecurring, outlook::Where where)
{
    // The parent of an occurrence is its series, and that one's is the folder.
    if (isRecurring && parent.isAppointment(where))
        return parent.parent(where).as<outlook::Folder>();
    return parent.as<outlook::Folder>();
}

} // namespace

Text BookingItem::entryId(Where where)
{
    return once(entryId_, [&] { return item_.entryId(where); });
}

Text BookingItem::subject(Where where)
{
    return once(subject_, [&] { return item_.subject(where); });
}

Text BookingItem::categories(Where where)
{
    return once(categories_, [&] { return item_.categories(where); });
}

Date BookingItem::start(Where where)
{
    return once(start_, [&] { return item_.start(where); });
}

Date BookingItem::end(Where where)
{
    return once(end_, [&] { return item_.end(where); });
}

std::int32_t BookingItem::duration(Where where)
{
    return once(duration_, [&] { return item_.duration(where); });
}

bool BookingItem::isRecurring(Where where)
{
    return once(isRecurring_, [&] { return item_.isRecurring(where); });
}

outlook::Folder BookingItem::folder(Where where)
{
    return once(folder_, [&] { return folderOf(item_.parent(where), isRecurring(where), where); });
}

Text BookingItem::folderEntryId(Where where)
{
    return once(folderEntryId_, [&] { return folder(where).entryId(where); });
}

void BookingItem::setSubject(const Text& subject, Where where)
{
    item_.setSubject(subject, where);
    subject_ = subject;
}

void BookingItem::setCategories(const Text& categories, Where where)
{
    item_.setCategories(categories, where);
    categories_ = categories;
}

void BookingItem::setStart(Date start, Where where)
{
    item_.setStart(start, where);
    start_ = start;
    end_.reset();
}

void BookingItem::setDuration(std::int32_t minutes, Where where)
{
    item_.setDuration(minutes, where);
    duration_ = minutes;
    end_.reset();
}

const outlook::UserProperties& BookingItem::userProperties(Where where)
{
    return once(userProperties_, [&] { return item_.userProperties(where); });
}

outlook::UserProperty BookingItem::property(BookingProperty property, Where where)
{
    return once(properties_[static_cast<std::size_t>(property)],
        [&] { return userProperties(where).find(nameOf(property), where); });
}

void BookingItem::addProperties(PendingError& errors)
{
    for (std::size_t index = 0; index < bookingProperties.size(); ++index)
        errors.attempt([&] {
            const auto& [name, type] = bookingProperties[index];
            properties_[index] = userProperties(Where::current()).add(name, type, false);
        });
}

bool fncAddBookingProps(BookingItem& booking)
{
    PendingError errors;
    booking.addProperties(errors);
    return !errors.pending();
}

bool fncAddBookingProps(const outlook::AppointmentItem& item)
{
    BookingItem booking{item};
    return fncAddBookingProps(booking);
}

} // namespace rf
