#pragma once

#include "outlook/appointment_item.h"
#include "outlook/folder.h"

namespace rf {

class Session;

/// The other items of a calendar that overlap an interval, one record each, with CR LF between two; empty when there
/// is none. `entryId` names the booking itself, which does not count; a booking that was never saved has none and is
/// compared with every item. A record is
///
///     Subject;HH:NN - HH:NN;hours;organizer;entry identifier;store identifier
///
/// with the hours to two decimals in the user's form. Nothing stands between the records before and behind the booking
/// itself. No error leaves it: a search that fails finds nothing, and what cannot be read of an item is empty in its
/// record.
[[nodiscard]] Text fncFindConflicts(
    Session& session, TextView entryId, Date startAt, Date endAt, const outlook::Folder& folder);

/// Whether `fncFindConflicts` would name any item; nothing is read of the items but whether one is the booking itself.
[[nodiscard]] bool hasConflicts(
    Session& session, TextView entryId, Date startAt, Date endAt, const outlook::Folder& folder);

/// Who made a booking; empty when the item has no organizer of ours. No error leaves it.
[[nodiscard]] Text fncGetSafeOrganizer(Session& session, const outlook::Item& item);

} // namespace rf
