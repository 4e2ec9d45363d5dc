#pragma once

#include "basic/date.h"
#include "basic/text.h"

#include <QDateTime>
#include <QLocale>

namespace rf::native {

[[nodiscard]] inline QDate qtDate(Date date)
{
    const DateFields fields = date.fields();
    return {fields.year, fields.month, fields.day};
}

[[nodiscard]] inline QTime qtTime(Date date)
{
    const DateFields fields = date.fields();
    return {fields.hour, fields.minute, fields.second};
}

/// Times are local to the installation and have no zone, so that no change of the clocks moves them.
[[nodiscard]] inline Date dateOf(QDate date, QTime time = {0, 0})
{
    return Date::fromFields({date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()});
}

/// How the person's regional settings write a time of day, without the seconds that no appointment has.
[[nodiscard]] inline QString timeFormat()
{
    return QLocale{}.timeFormat(QLocale::ShortFormat).remove(QStringLiteral(":ss")).remove(QStringLiteral(".ss"));
}
[[nodiscard]] inline QString timeText(Date date) { return QLocale{}.toString(qtTime(date), timeFormat()); }
/// As the person's regional settings write a day.
[[nodiscard]] inline QString dayText(Date date) { return QLocale{}.toString(qtDate(date), QLocale::LongFormat); }
[[nodiscard]] inline QString shortDayText(Date date) { return QLocale{}.toString(qtDate(date), QLocale::ShortFormat); }

} // namespace rf::native
