#pragma once

#include "basic/regional.h"

#include <array>

namespace rf {

namespace locale_id {
constexpr std::uint32_t germany = 1031;
constexpr std::uint32_t unitedStates = 1033;
} // namespace locale_id

/// Regional settings as data.
struct RegionalSettings {
    std::uint32_t localeId = locale_id::unitedStates;
    Text decimalSeparator = u".";
    Text groupSeparator = u",";
    Text currencySymbol = u"$";
    Text currencyDecimalSeparator = u".";
    Text currencyGroupSeparator = u",";
    int currencyDecimals = 2;
    /// `n` stands for the amount, `$` for the symbol: "$n", "n $", "-$n", "($n)".
    Text positiveCurrencyPattern = u"$n";
    Text negativeCurrencyPattern = u"($n)";
    DateOrder dateOrder = DateOrder::MonthDayYear;
    /// Windows picture strings: d dd ddd dddd M MM MMM MMMM yy yyyy, h hh H HH m mm s ss, t tt, quoted text in '…'.
    Text shortDatePattern = u"M/d/yyyy";
    Text longTimePattern = u"h:mm:ss tt";
    Text dateSeparator = u"/";
    Text timeSeparator = u":";
    Text amDesignator = u"AM";
    Text pmDesignator = u"PM";
    std::array<Text, 12> monthNames;
    std::array<Text, 12> shortMonthNames;
    /// From Sunday on.
    std::array<Text, 7> weekdayNames;
    std::array<Text, 7> shortWeekdayNames;
    /// Digits in a group, counted from the decimal separator; 3 nearly everywhere.
    int groupSize = 3;
};

/// Settings for tests and for systems that tell nothing: English (United States), German (Germany).
[[nodiscard]] RegionalSettings englishSettings();
[[nodiscard]] RegionalSettings germanSettings();

/// The regional settings of any system that can state them as data: the same readings and writings that OLE
/// Automation has on Windows, computed from `RegionalSettings`. The system code page is UTF-8.
class PatternRegional : public Regional {
public:
    explicit PatternRegional(RegionalSettings settings);

    [[nodiscard]] std::optional<double> parseNumber(TextView text) const override;
    [[nodiscard]] std::optional<Currency> parseCurrency(TextView text) const override;
    [[nodiscard]] std::optional<Date> parseDate(TextView text) const override;
    [[nodiscard]] Text formatNumber(double number) const override;
    [[nodiscard]] Text formatSingle(float number) const override;
    [[nodiscard]] Text formatFixed(double number, int decimals) const override;
    [[nodiscard]] Text formatPlain(Currency amount) const override;
    [[nodiscard]] Text formatMoney(Currency amount) const override;
    [[nodiscard]] Text formatDate(Date date) const override;
    [[nodiscard]] Text formatShortDate(Date date) const override;
    [[nodiscard]] Text formatWeekday(Date date) const override;
    [[nodiscard]] DateOrder dateOrder() const override { return settings_.dateOrder; }
    [[nodiscard]] std::uint32_t systemLocaleId() const override { return settings_.localeId; }
    [[nodiscard]] std::string toSystemCodePage(TextView text) const override;
    [[nodiscard]] Text fromSystemCodePage(std::string_view bytes) const override;

    [[nodiscard]] const RegionalSettings& settings() const { return settings_; }

private:
    RegionalSettings settings_;
};

} // namespace rf
