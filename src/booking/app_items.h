#pragma once

#include "automation/events.h"
#include "booking/booking_item.h"

#include <memory>

namespace rf {

class CopyCalendars;
class Session;

/// Watches the items of one resource calendar and keeps it clean. What comes into it by other ways than the program's
/// windows is made a booking of, and what is moved or edited in the calendar's view is put back when the rules refuse
/// it. It lives until the session ends; the handlers run with errors suppressed and leave none pending.
class cAppItems {
public:
    explicit cAppItems(Session& session)
        : session_(session)
    {
    }
    cAppItems(const cAppItems&) = delete;
    cAppItems& operator=(const cAppItems&) = delete;
    ~cAppItems() = default;

    /// Listens to the items of a calendar. The collection is held as well: the host raises no events of one that nobody
    /// holds.
    void setOuisItems(const outlook::Items& items, const outlook::Folder& folder);

    /// The calendar's name, under which it is known to people and in its copies.
    [[nodiscard]] const Text& FolderName() const { return strFolderName_; }
    void setFolderName(Text name) { strFolderName_ = std::move(name); }
    /// The watched calendar.
    [[nodiscard]] const outlook::Folder& folder() const { return folder_; }
    /// Its identifier, asked for once; empty when the host did not tell.
    [[nodiscard]] const Text& folderEntryId() const { return folderEntryId_; }

    /// An item that came without the program's window, dropped, pasted, imported or made by another client, is deleted
    /// and made anew as a booking. A refused one is shown unsaved, so that the person corrects it; an accepted one is
    /// saved and copied.
    void ouisItems_ItemAdd(const outlook::Item& item);

    /// A booking that was changed. An accepted time is remembered and the copies follow; a refused move is put back
    /// without a word. Saving it raises the event again, and the second time finds nothing to change.
    void ouisItems_ItemChange(const outlook::Item& item);

private:
    void replace(BookingItem& dropped, PendingError& errors);
    void copy(BookingItem& booking, TextView ocid, CopyCalendars& copies) const;

    Session& session_;
    Text strFolderName_;
    outlook::Folder folder_;
    Text folderEntryId_;
    outlook::Items ouisItems_;
    automation::Connection events_;
};

/// The session's watcher of a folder; null when none watches it.
[[nodiscard]] std::shared_ptr<cAppItems> watcherOf(const Session& session, TextView folderEntryId);

} // namespace rf
