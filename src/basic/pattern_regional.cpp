#include "basic/pattern_regional.h"

#include "basic/date_parser.h"
#include "basic/date_picture.h"
#include "basic/decimal_number.h"
#include "basic/number_parser.h"

#include <algorithm>

namespace rf {
namespace {

/// Whole digits with the separator between groups, counted from the right.
Text grouped(Text digits, TextView separator, int groupSize)
{
    const auto size = static_cast<std::size_t>(std::max(groupSize, 0));
    if (size == 0) {
        return digits;
    }
    for (std::size_t place = digits.size(); place > size;) {
        place -= size;
        digits.insert(place, separator);
    }
    return digits;
}

/// The amount without its sign, as money is written.
Text moneyDigits(const RegionalSettings& settings, DecimalNumber amount)
{
    amount.negative = false;
    const Text whole = writeFixed(amount, settings.currencyDecimals, settings.currencyDecimalSeparator);
    const auto decimals = static_cast<std::size_t>(settings.currencyDecimals);
    const std::size_t tail = decimals == 0 ? 0 : decimals + settings.currencyDecimalSeparator.size();
    const std::size_t place = whole.size() - tail;
    return grouped(whole.substr(0, place), settings.currencyGroupSeparator, settings.groupSize) + whole.substr(place);
}

} // namespace

PatternRegional::PatternRegional(RegionalSettings settings)
    : settings_(std::move(settings))
{
}

std::optional<double> PatternRegional::parseNumber(TextView text) const
{
    const auto number = readNumber(settings_, text);
    return number ? toDouble(*number) : std::nullopt;
}

std::optional<Currency> PatternRegional::parseCurrency(TextView text) const
{
    const auto number = readNumber(settings_, text);
    return number ? toCurrency(*number) : std::nullopt;
}

std::optional<Date> PatternRegional::parseDate(TextView text) const { return readDate(settings_, text); }

Text PatternRegional::formatNumber(double number) const
{
    return writeGeneral(fifteenDigits(number), digitsOfDouble, settings_.decimalSeparator);
}

Text PatternRegional::formatSingle(float number) const
{
    return writeGeneral(sevenDigits(number), digitsOfSingle, settings_.decimalSeparator);
}

// From the fifteen digits that a person sees: 2.675 is 2.68, although the nearest double lies below it.
Text PatternRegional::formatFixed(double number, int decimals) const
{
    return writeFixed(fifteenDigits(number), std::max(decimals, 0), settings_.decimalSeparator);
}

Text PatternRegional::formatPlain(Currency amount) const
{
    return writePlain(digitsOf(amount), settings_.decimalSeparator);
}

Text PatternRegional::formatMoney(Currency amount) const
{
    const DecimalNumber value = rounded(digitsOf(amount), settings_.currencyDecimals);
    const bool negative = value.negative && !value.digits.empty();
    Text text;
    for (const char16_t unit : negative ? settings_.negativeCurrencyPattern : settings_.positiveCurrencyPattern) {
        if (unit == u'n') {
            text += moneyDigits(settings_, value);
        } else if (unit == u'$') {
            text += settings_.currencySymbol;
        } else {
            text += unit;
        }
    }
    return text;
}

Text PatternRegional::formatDate(Date date) const
{
    constexpr std::int64_t secondsPerDay = 86400;
    const std::int64_t seconds = date.seconds();
    if (seconds >= 0 && seconds < secondsPerDay) {
        return writeDate(settings_, settings_.longTimePattern, date);
    }
    const Text day = formatShortDate(date);
    return seconds % secondsPerDay == 0 ? day : day + u' ' + writeDate(settings_, settings_.longTimePattern, date);
}

Text PatternRegional::formatShortDate(Date date) const
{
    return writeDate(settings_, settings_.shortDatePattern, date);
}

Text PatternRegional::formatWeekday(Date date) const { return writeDate(settings_, u"ddd", date); }

std::string PatternRegional::toSystemCodePage(TextView text) const { return toUtf8(text); }

Text PatternRegional::fromSystemCodePage(std::string_view bytes) const { return fromUtf8(bytes); }

} // namespace rf
