#include "booking/conflicts.h"

#include "app/session.h"
#include "booking/booking_properties.h"
#include "booking/overlap_filter.h"
#include "diagnostics/pending_error.h"
#include "storage/outlook_value.h"

namespace rf {

namespace {

constexpr double minutesPerHour = 60;

/// What an overlap search finds, one item after the other.
class OverlapSearch {
public:
    OverlapSearch(Session& session, TextView ownEntryId, Date startAt, Date endAt, const outlook::Folder& folder)
        : ownEntryId_(ownEntryId)
    {
        const Text filter
            = errors_.attempt([&] { return fncMakeOverlapFilter(session.services.regional, startAt, endAt); });
        items_ = errors_.attempt([&] { return folder.items(); });
        errors_.attempt([&] { items_.sort(outlook::field::start); });
        // Series count as their occurrences only in items that are sorted by their start already.
        errors_.attempt([&] { items_.setIncludeRecurrences(true); });
        take(errors_.attempt([&] { return items_.find(filter); }));
    }

    [[nodiscard]] bool found() const { return static_cast<bool>(item_); }
    [[nodiscard]] const outlook::AppointmentItem& item() const { return item_; }
    [[nodiscard]] const Text& entryId() const { return entryId_; }
    /// Whether the item is the booking for which room is sought.
    [[nodiscard]] bool isBookingItself() const { return !ownEntryId_.empty() && entryId_ == ownEntryId_; }
    void next()
    {
        take(errors_.attempt([&] { return items_.findNext(); }));
    }

private:
    void take(const outlook::Item& item)
    {
        item_ = item.as<outlook::AppointmentItem>();
        entryId_ = item ? errors_.attempt([&] { return item.entryId(); }) : Text{};
    }

    TextView ownEntryId_;
    PendingError errors_;
    outlook::Items items_;
    outlook::AppointmentItem item_;
    Text entryId_;
};

Text recordOf(Session& session, const OverlapSearch& search, const Text& storeId)
{
    const auto& item = search.item();
    PendingError errors;
    const auto timeOf = [&](auto&& read) { return errors.attempt([&] { return fncTimeHHNN(read()); }); };
    const Text subject = errors.attempt([&] { return item.subject(); });
    const Text start = timeOf([&] { return item.start(); });
    const Text end = timeOf([&] { return item.end(); });
    const Text hours
        = errors.attempt([&] { return session.services.regional.formatFixed(item.duration() / minutesPerHour, 2); });
    return subject + u";" + start + u" - " + end + u";" + hours + u";" + fncGetSafeOrganizer(session, item) + u";"
        + search.entryId() + u";" + storeId;
}

} // namespace

Text fncFindConflicts(Session& session, TextView entryId, Date startAt, Date endAt, const outlook::Folder& folder)
{
    PendingError errors;
    OverlapSearch search{session, entryId, startAt, endAt, folder};
    // All of them lie in the one folder; the parent of an occurrence would be its series, which has no store of its
    // own.
    const Text storeId = search.found() ? errors.attempt([&] { return folder.storeId(); }) : Text{};
    Text records;
    while (search.found()) {
        const bool counts = !search.isBookingItself();
        if (counts)
            records += recordOf(session, search, storeId);
        search.next();
        // A record is closed for the item that follows at once. When that is the booking itself nothing is written, so
        // the records around it run together: readers of the list know it so, and it is never shown with its own entry.
        if (counts && search.found() && !search.isBookingItself())
            records += lineBreak;
    }
    return records;
}

bool hasConflicts(Session& session, TextView entryId, Date startAt, Date endAt, const outlook::Folder& folder)
{
    OverlapSearch search{session, entryId, startAt, endAt, folder};
    while (search.found() && search.isBookingItself())
        search.next();
    return search.found();
}

Text fncGetSafeOrganizer(Session& session, const outlook::Item& item)
{
    return fncGetOutlookValue(session, item, nameOf(BookingProperty::SafeOrganizer), ValueKind::String, u"").text();
}

} // namespace rf
