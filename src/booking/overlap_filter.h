#pragma once

#include "basic/date.h"
#include "basic/regional.h"
#include "basic/text.h"

namespace rf {

/// The restriction that finds the items of a calendar which start inside an interval, end inside it or enclose it. One
/// that ends exactly at `startAt` or starts exactly at `endAt` is not among them. The host reads it to the minute, with
/// the user's date order, in which it is written. Error 5 when a date lies outside the years 100 to 9999.
[[nodiscard]] Text fncMakeOverlapFilter(const Regional& regional, Date startAt, Date endAt);

/// A date as the host's restrictions read it: the year, then day and month in the order that the system reads them
/// behind a year, without padding. The order is found out at each call; empty where the system has none of the known
/// ones, which leaves a literal with no date and a search that finds nothing.
[[nodiscard]] Text fncLocalDateString(const Regional& regional, Date date);

/// The time of day, hours from 00 to 23: 09:05.
[[nodiscard]] Text fncTimeHHNN(Date date);

/// A number with a zero in front when its text is a single character.
[[nodiscard]] Text fncTwoDigit(int value);

/// " PM " from noon on, " AM" before it.
[[nodiscard]] Text fncAmPm(Date date);

} // namespace rf
