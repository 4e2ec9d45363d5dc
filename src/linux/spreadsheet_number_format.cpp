#include "linux/spreadsheet_number_format.h"

#include "automation/conversion.h"

#include <algorithm>

namespace rf::native::spreadsheet {

using automation::Variant;

namespace {

bool isNumber(const Variant& value)
{
    return !value.isEmpty() && !value.is<Text>() && !value.is<bool>() && !value.is<Date>();
}

bool named(TextView format, std::initializer_list<TextView> names)
{
    return std::ranges::any_of(names, [&](TextView name) { return equalIgnoringCase(format, name); });
}

bool isMoneyFormat(TextView format) { return named(format, {u"Currency", u"Euro Currency"}); }

/// "0.00" has two; a format without a digit has no opinion.
std::optional<int> decimalsOf(TextView format)
{
    if (named(format, {u"Fixed", u"Standard", u"Percent", u"Scientific"}))
        return 2;
    const auto isDigit = [](char16_t unit) { return unit == u'0' || unit == u'#'; };
    if (std::ranges::none_of(format, isDigit))
        return std::nullopt;
    const auto point = format.find(u'.');
    if (point == TextView::npos)
        return 0;
    return static_cast<int>(std::ranges::count_if(format.substr(point), isDigit));
}

Text numberShown(const Regional& regional, const Variant& value, TextView format)
{
    const auto* money = value.getIf<Currency>();
    if (isMoneyFormat(format) || (money != nullptr && equalIgnoringCase(format, u"General")))
        return regional.formatMoney(automation::toCurrency(regional, value));
    const double number = value.number();
    const auto decimals = decimalsOf(format);
    if (format.ends_with(u'%') || equalIgnoringCase(format, u"Percent"))
        return regional.formatFixed(number * 100, decimals.value_or(0)) + u"%";
    if (decimals)
        return regional.formatFixed(number, *decimals);
    return money != nullptr ? regional.formatPlain(*money) : regional.formatNumber(number);
}

} // namespace

bool isTextFormat(TextView format) { return named(format, {u"Text", u"@"}); }

bool isDateFormat(TextView format)
{
    return named(format, {u"General Date", u"Short Date", u"Medium Date", u"Long Date"})
        || format.find(u"yy") != TextView::npos;
}

Text formatted(const Regional& regional, const Variant& value, TextView format)
try {
    if (isDateFormat(format) && (value.is<Date>() || isNumber(value))) {
        const Date date = value.is<Date>() ? value.date() : Date{value.number()};
        return equalIgnoringCase(format, u"General Date") ? regional.formatDate(date) : regional.formatShortDate(date);
    }
    if (isNumber(value) && !isTextFormat(format))
        return numberShown(regional, value, format);
    return automation::toText(regional, value);
} catch (const RuntimeError&) {
    // A number that no date or amount of money can hold; spreadsheets fill the cell with marks then.
    return u"#####";
}

} // namespace rf::native::spreadsheet
