#include "booking/app_items.h"

#include "app/session.h"
#include "app/user_name.h"
#include "booking/acceptance.h"
#include "booking/app_copy.h"
#include "booking/link_identifier.h"
#include "booking/validation.h"
#include "outlook/events.h"

#include <algorithm>
#include <optional>

namespace rf {

namespace {

/// Dates up to this year are no bookings' but what an unset date looks like.
constexpr int lastUnsetYear = 1910;

/// Runs a step; whether it came to its end.
template <class Step>
bool succeeds(PendingError& errors, const Step& step)
{
    return errors.attempt([&] {
        step();
        return true;
    });
}

/// A booking made through the program's window has an organizer already when it is saved.
bool isForeign(BookingItem& item) { return !item.property(BookingProperty::SafeOrganizer) && item.item().saved(); }

/// What the booking that takes an item's place is made of.
void readWhole(BookingItem& dropped)
{
    static_cast<void>(dropped.subject());
    static_cast<void>(dropped.folder());
    static_cast<void>(dropped.start());
    static_cast<void>(dropped.duration());
    static_cast<void>(dropped.categories());
}

/// The booking's new link identifier; empty when the booking does not take it.
Text link(Session& session, BookingItem& booking, CopyCalendars& copies, PendingError& errors)
{
    return errors.attempt([&] {
        Text ocid = fncNewOCID(session, copies);
        booking.property(BookingProperty::LinkIdentifier).setValue(ocid);
        return ocid;
    });
}

/// Where a booking lies and where the rules accepted it last.
struct Move {
    AcceptedTime now;
    AcceptedTime accepted;

    /// By whole seconds: the host may keep a user property and a start with different noise in the fraction.
    [[nodiscard]] bool startDiffers() const { return now.start.seconds() != accepted.start.seconds(); }
    [[nodiscard]] bool durationDiffers() const { return now.duration != accepted.duration; }
};

/// Nothing when either time cannot be read: half a time is no reason to move a booking.
std::optional<Move> moveOf(Session& session, BookingItem& booking, PendingError& errors)
{
    return errors.attempt([&]() -> std::optional<Move> {
        return Move{{booking.start(), booking.duration()}, acceptedTime(session, booking)};
    });
}

/// Remembers a time that differs. Whether anything of it can be read back: only that is saved, so the event that the
/// save raises finds nothing to do, whatever the host refuses, and whatever a property of another type makes of the
/// time.
bool remember(Session& session, const Move& move, BookingItem& booking, PendingError& errors)
{
    const bool writesStart = move.startDiffers() && succeeds(errors, [&] { rememberStart(booking); });
    const bool writesDuration = move.durationDiffers() && succeeds(errors, [&] { rememberDuration(booking); });
    if (!writesStart && !writesDuration)
        return false;
    const auto reread = errors.attempt([&] { return std::optional{Move{move.now, acceptedTime(session, booking)}}; });
    return reread && ((writesStart && !reread->startDiffers()) || (writesDuration && !reread->durationDiffers()));
}

/// Puts a booking back to where it was accepted. Whether anything was moved. What is where it was is not assigned
/// again: a booking with an unset start, which stays where it is, would be saved at every event of its own save.
bool putBack(const Move& move, BookingItem& booking, PendingError& errors)
{
    bool isChanged = false;
    if (move.startDiffers() && move.accepted.start.fields().year > lastUnsetYear)
        isChanged |= succeeds(errors, [&] { booking.setStart(move.accepted.start); });
    if (move.durationDiffers() && move.accepted.duration > 0)
        isChanged |= succeeds(errors, [&] { booking.setDuration(move.accepted.duration); });
    return isChanged;
}

} // namespace

void cAppItems::setOuisItems(const outlook::Items& items, const outlook::Folder& folder)
{
    PendingError errors;
    ouisItems_ = items;
    folder_ = folder;
    folderEntryId_ = errors.attempt([&] { return folder.entryId(); });
    events_ = outlook::connect(items,
        outlook::ItemsEvents{.itemAdd = [this](const outlook::Item& item) { ouisItems_ItemAdd(item); },
            .itemChange = [this](const outlook::Item& item) { ouisItems_ItemChange(item); }});
}

void cAppItems::ouisItems_ItemAdd(const outlook::Item& item)
{
    PendingError errors;
    BookingItem dropped{item.as<outlook::AppointmentItem>()};
    if (!errors.attempt([&] { return isForeign(dropped); }))
        return;
    // Read first, whole or not at all: behind the deletion nothing can be read again, and the booking would be lost.
    // Of several programs that hear of the item only the one whose deletion succeeds makes the booking.
    const bool isTaken
        = succeeds(errors, [&] { readWhole(dropped); }) && succeeds(errors, [&] { dropped.item().remove(); });
    if (isTaken)
        replace(dropped, errors);
    errors.clear();
}

void cAppItems::replace(BookingItem& dropped, PendingError& errors)
{
    const auto folder = dropped.folder();
    const auto item = errors.attempt([&] { return folder.items().add(outlook::message_class::appointment); });
    BookingItem replacement{item.as<outlook::AppointmentItem>(), folder};
    if (!fncAddBookingProps(replacement))
        return;
    errors.attempt([&] { replacement.setSubject(dropped.subject()); });
    const bool isTimed = succeeds(errors, [&] { replacement.setStart(dropped.start()); })
        && succeeds(errors, [&] { replacement.setDuration(dropped.duration()); });
    errors.attempt([&] { replacement.setCategories(dropped.categories()); });
    errors.attempt([&] { replacement.property(BookingProperty::SafeOrganizer).setValue(fncGetUserName(session_)); });
    errors.attempt([&] { rememberStart(replacement); });
    errors.attempt([&] { rememberDuration(replacement); });
    CopyCalendars copies{session_};
    const Text ocid = link(session_, replacement, copies, errors);
    const bool isBooked = isTimed && fncValidateBooking(session_, replacement).empty()
        && succeeds(errors, [&] { replacement.item().save(); });
    if (isBooked)
        copy(replacement, ocid, copies);
    else
        // Its window's own save tells the reason. What the host fails to set or to save is left to the person too: the
        // item that came is gone, and this is all there is of the booking.
        errors.attempt([&] { replacement.item().display(); });
}

void cAppItems::copy(BookingItem& booking, TextView ocid, CopyCalendars& copies) const
{
    // Copies of a booking that does not know its link would never be found again, and every save would add another.
    if (!ocid.empty())
        copies.copyBooking(booking, ocid, strFolderName_);
}

void cAppItems::ouisItems_ItemChange(const outlook::Item& item)
{
    if (!item)
        return;
    PendingError errors;
    BookingItem booking{item.as<outlook::AppointmentItem>()};
    const auto original = errors.attempt([&] { return booking.property(BookingProperty::OriginalStartDate); });
    if (!original && !fncAddBookingProps(booking))
        return;
    const bool isValid = fncValidateBooking(session_, booking).empty();
    const auto move = moveOf(session_, booking, errors);
    const bool isChanged
        = move && (isValid ? remember(session_, *move, booking, errors) : putBack(*move, booking, errors));
    if (isValid && wantsCopies(session_)) {
        CopyCalendars copies{session_};
        copy(booking, errors.attempt([&] { return linkIdentifier(session_, booking); }), copies);
    }
    if (isChanged)
        errors.attempt([&] { booking.item().save(); });
    errors.clear();
}

std::shared_ptr<cAppItems> watcherOf(const Session& session, TextView folderEntryId)
{
    const auto found = std::ranges::find_if(session.colAppItems,
        [&](const auto& entry) { return !folderEntryId.empty() && entry.second->folderEntryId() == folderEntryId; });
    return found == session.colAppItems.end() ? nullptr : found->second;
}

} // namespace rf
