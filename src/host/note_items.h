#pragma once

#include "host/item_members.h"

namespace rf::host {

/// A post in a folder.
class PostItem final : public ItemObject<PostItem> {
public:
    static constexpr TextView className = u"PostItem";
    using ItemObject::ItemObject;
    [[nodiscard]] static std::span<const automation::LocalMember<PostItem>> members();
};

/// A mail; here it is written and kept, not sent.
class MailItem final : public ItemObject<MailItem> {
public:
    static constexpr TextView className = u"MailItem";
    using ItemObject::ItemObject;
    [[nodiscard]] static std::span<const automation::LocalMember<MailItem>> members();
};

/// A request to meet, as it lies in the inbox of those who are asked.
class MeetingItem final : public ItemObject<MeetingItem> {
public:
    static constexpr TextView className = u"MeetingItem";
    using ItemObject::ItemObject;
    [[nodiscard]] static std::span<const automation::LocalMember<MeetingItem>> members();
};

} // namespace rf::host
