#pragma once

#include "outlook/constants.h"

#include <array>

namespace rf {

/// The user properties that every booking carries.
enum class BookingProperty : std::uint8_t {
    /// Who made the booking; written once, never overwritten when not empty.
    SafeOrganizer,
    /// The time that the rules accepted last; the rules tell a move by them and undo a refused one with them.
    OriginalStartDate,
    /// In minutes.
    OriginalDuration,
    OrderComment,
    PlaceSetting,
    CostCenter,
    /// Links the booking with its copies.
    LinkIdentifier
};

struct BookingPropertyFacts {
    TextView name;
    outlook::UserPropertyType type;
};

/// In the order of `BookingProperty`.
inline constexpr std::array bookingProperties{
    BookingPropertyFacts{u"SafeOrganizer", outlook::UserPropertyType::Text},
    BookingPropertyFacts{u"OriginalStartDate", outlook::UserPropertyType::DateTime},
    BookingPropertyFacts{u"OriginalDuration", outlook::UserPropertyType::Number},
    BookingPropertyFacts{u"OrderComment", outlook::UserPropertyType::Text},
    BookingPropertyFacts{u"PlaceSetting", outlook::UserPropertyType::Text},
    BookingPropertyFacts{u"CostCenter", outlook::UserPropertyType::Text},
    BookingPropertyFacts{u"OCID", outlook::UserPropertyType::Text},
};

[[nodiscard]] constexpr TextView nameOf(BookingProperty property)
{
    return bookingProperties[static_cast<std::size_t>(property)].name;
}

static_assert(nameOf(BookingProperty::SafeOrganizer) == u"SafeOrganizer");
static_assert(nameOf(BookingProperty::LinkIdentifier) == u"OCID");

} // namespace rf
