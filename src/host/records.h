#pragma once

#include "automation/variant.h"
#include "basic/date.h"
#include "basic/text.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace rf::host {

/// The numbers that a store gives; they are never used again, not even for another thing of the same kind. 0 is none.
enum class FolderId : std::int64_t { None = 0 };
enum class ItemId : std::int64_t { None = 0 };

/// What a folder is to the mailbox or the public store around it.
enum class FolderRole : std::int32_t {
    None = 0,
    /// The root of a message store; its name is the store's.
    PublicRoot = 1,
    MailboxRoot = 2,
    Inbox = 3,
    Calendar = 4,
    Drafts = 5,
};

/// A field that the items of a folder can be searched by, though it is not built in.
struct FieldDefinition {
    Text name;
    std::int32_t type = 1;

    friend bool operator==(const FieldDefinition&, const FieldDefinition&) = default;
};

struct FolderRecord {
    FolderId id = FolderId::None;
    /// None for the root of a message store.
    FolderId parent = FolderId::None;
    FolderRole role = FolderRole::None;
    Text name;
    /// 0 mail, 1 appointment, 6 post: what the object model counts.
    std::int32_t defaultItemType = 0;
    Text webViewUrl;
    bool webViewOn = false;
    std::vector<FieldDefinition> fields;

    friend bool operator==(const FolderRecord&, const FolderRecord&) = default;
};

/// A named, typed value of an item. The type is the object model's: 1 text, 3 number, 5 date/time, 6 yes/no.
struct UserPropertyRecord {
    Text name;
    std::int32_t type = 1;
    automation::Variant value;

    friend bool operator==(const UserPropertyRecord&, const UserPropertyRecord&) = default;
};

/// One occurrence of a series that is not as the series has it. Dates are local to the installation, as an item's.
struct OccurrenceChange {
    /// The start that the series gives it.
    Date original;
    /// Nothing but `original` counts in an occurrence that does not take place.
    bool deleted = false;
    Date start;
    Date end;
    Text subject;
    Text body;
    Text location;
    Text categories;
    std::vector<UserPropertyRecord> userProperties;

    friend bool operator==(const OccurrenceChange&, const OccurrenceChange&) = default;
};

/// How an appointment repeats. Start and end of the appointment are those of the first occurrence. Dates are local
/// to the installation, whatever the zone in which the series keeps its hour; only the rule speaks of that zone's time.
struct RecurrenceRecord {
    /// The value of an RRULE, such as "FREQ=WEEKLY;BYDAY=MO,WE;COUNT=10"; UNTIL in the time of `timeZone`.
    Text rule;
    /// Further starts beside the rule's (RDATE).
    std::vector<Date> additions;
    std::vector<OccurrenceChange> changes;
    /// When the last occurrence ends; nothing for a series without end. Whoever makes or changes a series fills it in,
    /// the reader of calendar files included (`RecurrenceEngine::lastEnd`); the store takes it as it is.
    std::optional<Date> lastEnd;

    friend bool operator==(const RecurrenceRecord&, const RecurrenceRecord&) = default;
};

/// An item of any class. Dates are local to the installation, as the object model shows them.
struct ItemRecord {
    ItemId id = ItemId::None;
    FolderId folder = FolderId::None;
    /// Counts the saves; 0 until the first.
    std::int64_t revision = 0;
    Text messageClass;
    Text subject;
    Text body;
    Text categories;
    Text location;
    /// The addressees of a mail.
    Text to;
    Date start;
    Date end;
    bool allDay = false;
    std::int32_t busyStatus = 2;
    std::int32_t meetingStatus = 0;
    Date creationTime = noDate;
    Date lastModificationTime = noDate;
    /// Bytes in the store; 0 until the first save.
    std::int32_t size = 0;
    std::optional<RecurrenceRecord> recurrence;
    /// The IANA name of the zone that a series keeps its hour in; empty for the installation's own.
    Text timeZone;
    /// The identifier that a calendar file knows it by; empty for an item that came from none.
    Text uid;
    std::vector<UserPropertyRecord> userProperties;

    friend bool operator==(const ItemRecord&, const ItemRecord&) = default;
};

} // namespace rf::host
