#pragma once

#include "host/item_members.h"

namespace rf::host {

/// An appointment: one, a series, or an occurrence of a series.
class AppointmentItem final : public ItemObject<AppointmentItem> {
public:
    static constexpr TextView className = u"AppointmentItem";

    using ItemObject::ItemObject;

    [[nodiscard]] static std::span<const automation::LocalMember<AppointmentItem>> members();

    /// Whether it belongs to a series, as a whole or as one occurrence.
    [[nodiscard]] bool isRecurring();
    /// Makes a series of an appointment that stands alone, as asking for its pattern does: every week, without end.
    void beginSeries();
    /// Moves the appointment and keeps its length.
    void setStart(Date start);
    /// Error `badArgument` when it lies before the start.
    void setEnd(Date end);
    /// In minutes; error `badArgument` below 0.
    void setDuration(std::int32_t minutes);
    [[nodiscard]] std::int32_t duration();
    /// The message class; an occurrence that differs from its series has one of its own.
    [[nodiscard]] Text messageClass();
};

} // namespace rf::host
