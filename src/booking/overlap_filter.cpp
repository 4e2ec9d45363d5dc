#include "booking/overlap_filter.h"

#include <optional>

namespace rf {

namespace {

constexpr int noon = 12;

/// How the system reads 1 and 2 in this text tells its order.
constexpr TextView probe = u"01/02/2001";

enum class OrderBehindYear { DayMonth, MonthDay };

std::optional<OrderBehindYear> probedOrder(const Regional& regional)
{
    constexpr int dayFirst = 1;
    constexpr int monthFirst = 2;
    /// Out of 2001, where the first number is taken for the year.
    constexpr int yearFirst = 20;
    const auto date = regional.parseDate(probe);
    switch (date ? date->fields().day : 0) {
    case dayFirst:
        return OrderBehindYear::DayMonth;
    case monthFirst:
    case yearFirst:
        return OrderBehindYear::MonthDay;
    default:
        return std::nullopt;
    }
}

/// Quotes and number signs both, as the host wants a date inside a restriction.
Text dateLiteral(const Regional& regional, Date date)
{
    const auto fields = date.fields();
    // The hour counts to 23 although AM or PM stands behind it: readers ignore a designator behind an hour above 12,
    // and without one a reader of a twelve-hour system could take 14:05 for no time at all.
    return u"\"#" + fncLocalDateString(regional, date) + u" " + decimal(fields.hour) + u":" + fncTwoDigit(fields.minute)
        + fncAmPm(date) + u"#\"";
}

} // namespace

Text fncMakeOverlapFilter(const Regional& regional, Date startAt, Date endAt)
{
    const Text from = dateLiteral(regional, startAt);
    const Text to = dateLiteral(regional, endAt);
    // No blank before the first "or" and two before the second: the text is compared and searched for as a whole by
    // what else knows it, so its spacing is part of it.
    return u"([Start] >= " + from + u" and [Start] < " + to + u")" + u"or ([End] > " + from + u" and [End] <= " + to
        + u")  " + u"or ([Start] < " + from + u" and [End] >= " + to + u")";
}

Text fncLocalDateString(const Regional& regional, Date date)
{
    const auto order = probedOrder(regional);
    if (!order)
        return {};
    const auto fields = date.fields();
    const Text day = decimal(fields.day);
    const Text month = decimal(fields.month);
    // A day-first system reads the day before the month behind a leading year too, so they are swapped for it.
    return decimal(fields.year) + u"-"
        + (*order == OrderBehindYear::DayMonth ? day + u"-" + month : month + u"-" + day);
}

Text fncTimeHHNN(Date date)
{
    const auto fields = date.fields();
    return fncTwoDigit(fields.hour) + u":" + fncTwoDigit(fields.minute);
}

Text fncTwoDigit(int value)
{
    Text text = decimal(value);
    return text.size() == 1 ? u"0" + text : text;
}

Text fncAmPm(Date date)
{
    // Only the afternoon has a blank behind it: the literal has always been written so, and hosts read both.
    return date.fields().hour >= noon ? u" PM " : u" AM";
}

} // namespace rf
