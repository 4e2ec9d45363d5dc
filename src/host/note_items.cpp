#include "host/note_items.h"

#include "outlook/constants.h"

namespace rf::host {

using automation::Arguments;
using automation::LocalMember;
using automation::Variant;

namespace {

template <class T, outlook::ObjectClass objectClass>
LocalMember<T> classMember()
{
    return {u"Class", [](T&, const Arguments&) -> Variant { return static_cast<std::int32_t>(objectClass); }};
}

} // namespace

std::span<const LocalMember<PostItem>> PostItem::members()
{
    static const auto table = itemMembers<PostItem>({classMember<PostItem, outlook::ObjectClass::Post>()});
    return table;
}

std::span<const LocalMember<MailItem>> MailItem::members()
{
    static const auto table = itemMembers<MailItem>(
        {classMember<MailItem, outlook::ObjectClass::Mail>(), itemText<MailItem, &ItemRecord::to>(u"To")});
    return table;
}

std::span<const LocalMember<MeetingItem>> MeetingItem::members()
{
    static const auto table
        = itemMembers<MeetingItem>({classMember<MeetingItem, outlook::ObjectClass::MeetingRequest>()});
    return table;
}

} // namespace rf::host
