#pragma once

#include "basic/currency.h"
#include "basic/date.h"
#include "basic/text.h"

#include <cstdint>
#include <optional>
#include <string>

namespace rf {

enum class DateOrder { MonthDayYear, DayMonthYear, YearMonthDay };

/// The user's regional settings: every text that stands for a number, a date or an amount of money goes through
/// them. On Windows they are OLE Automation's own conversions, elsewhere `PatternRegional` filled by the platform.
/// Parsing answers nothing for a text that does not stand for such a value; nothing here throws but `format…`
/// on a value outside its range (error 5 for dates, 6 for numbers).
class Regional {
public:
    virtual ~Regional() = default;

    /// A number as people write it here: decimal and group separators, sign in front or behind, parentheses for
    /// a negative, exponent, the currency symbol, blanks around. "&H1F" and "&O17" are hexadecimal and octal.
    [[nodiscard]] virtual std::optional<double> parseNumber(TextView text) const = 0;
    /// The same text as money, exact to the fourth decimal and never through floating point.
    [[nodiscard]] virtual std::optional<Currency> parseCurrency(TextView text) const = 0;
    /// A date, a time or both, in the user's order of day, month and year. Numbers that do not fit the order are
    /// tried in the other ones (14 can be no month); a year of two digits below 30 is in this century.
    [[nodiscard]] virtual std::optional<Date> parseDate(TextView text) const = 0;

    /// Up to 15 digits, the user's decimal separator, no grouping: 2.5, 1E+20.
    [[nodiscard]] virtual Text formatNumber(double number) const = 0;
    /// The same in up to 7 digits, as many as a number of that size keeps: 0.1, 1.234568E+07.
    [[nodiscard]] virtual Text formatSingle(float number) const = 0;
    /// With the given count of decimals, half away from zero, no grouping: 1.50.
    [[nodiscard]] virtual Text formatFixed(double number, int decimals) const = 0;
    /// Money as a plain number, up to four decimals, no symbol: 2.5.
    [[nodiscard]] virtual Text formatPlain(Currency amount) const = 0;
    /// Money as the user writes it: symbol, grouping and count of decimals of the settings.
    [[nodiscard]] virtual Text formatMoney(Currency amount) const = 0;
    /// The general form of a date: the short date, and the long time behind a blank unless it is midnight;
    /// only the time on the zero date.
    [[nodiscard]] virtual Text formatDate(Date date) const = 0;
    [[nodiscard]] virtual Text formatShortDate(Date date) const = 0;
    /// The abbreviated name of the weekday ("ddd").
    [[nodiscard]] virtual Text formatWeekday(Date date) const = 0;

    [[nodiscard]] virtual DateOrder dateOrder() const = 0;
    /// The system's default locale id, such as 1031 for German in Germany.
    [[nodiscard]] virtual std::uint32_t systemLocaleId() const = 0;

    /// Text in the system code page and back; what the code page cannot hold becomes "?".
    [[nodiscard]] virtual std::string toSystemCodePage(TextView text) const = 0;
    [[nodiscard]] virtual Text fromSystemCodePage(std::string_view bytes) const = 0;
};

} // namespace rf
