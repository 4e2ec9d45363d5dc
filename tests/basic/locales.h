#pragma once

#include "basic/pattern_regional.h"

#include <ostream>

namespace rf::test {

/// Settings that differ in all that reading and writing depend on.
struct Locale {
    const char* name;
    RegionalSettings settings;

    friend std::ostream& operator<<(std::ostream& out, const Locale& locale) { return out << locale.name; }
};

inline RegionalSettings frenchSettings()
{
    RegionalSettings settings = germanSettings();
    settings.localeId = 1036;
    settings.groupSeparator = settings.currencyGroupSeparator = u"\u202F";
    settings.shortDatePattern = u"dd/MM/yyyy";
    settings.dateSeparator = u"/";
    settings.monthNames[1] = u"février";
    settings.shortMonthNames[1] = u"févr.";
    settings.weekdayNames[4] = u"jeudi";
    settings.shortWeekdayNames[4] = u"jeu.";
    return settings;
}

inline RegionalSettings swedishSettings()
{
    RegionalSettings settings = germanSettings();
    settings.localeId = 1053;
    settings.groupSeparator = settings.currencyGroupSeparator = u"\u00A0";
    settings.currencySymbol = u"kr";
    settings.dateOrder = DateOrder::YearMonthDay;
    settings.shortDatePattern = u"yyyy-MM-dd";
    settings.dateSeparator = u"-";
    return settings;
}

inline RegionalSettings danishSettings()
{
    RegionalSettings settings = germanSettings();
    settings.localeId = 1030;
    settings.currencySymbol = u"kr.";
    settings.longTimePattern = u"HH.mm.ss";
    settings.timeSeparator = u".";
    return settings;
}

inline RegionalSettings swissSettings()
{
    RegionalSettings settings = germanSettings();
    settings.localeId = 2055;
    settings.decimalSeparator = u",";
    settings.groupSeparator = u"’";
    settings.currencyDecimalSeparator = u".";
    settings.currencyGroupSeparator = u"’";
    settings.currencySymbol = u"CHF";
    settings.positiveCurrencyPattern = u"$ n";
    settings.negativeCurrencyPattern = u"$-n";
    return settings;
}

inline RegionalSettings koreanSettings()
{
    RegionalSettings settings = englishSettings();
    settings.localeId = 1042;
    settings.currencySymbol = u"₩";
    settings.currencyDecimals = 0;
    settings.negativeCurrencyPattern = u"-$n";
    settings.dateOrder = DateOrder::YearMonthDay;
    settings.shortDatePattern = u"yyyy. M. d.";
    settings.longTimePattern = u"tt h:mm:ss";
    settings.dateSeparator = u".";
    settings.amDesignator = u"오전";
    settings.pmDesignator = u"오후";
    return settings;
}

inline RegionalSettings bulgarianSettings()
{
    RegionalSettings settings = germanSettings();
    settings.localeId = 1026;
    settings.shortDatePattern = u"d.M.yyyy 'г.'";
    settings.currencySymbol = u"лв.";
    return settings;
}

inline std::vector<Locale> locales()
{
    return {{"English", englishSettings()}, {"German", germanSettings()}, {"French", frenchSettings()},
        {"Swedish", swedishSettings()}, {"Danish", danishSettings()}, {"Swiss", swissSettings()},
        {"Korean", koreanSettings()}, {"Bulgarian", bulgarianSettings()}};
}

} // namespace rf::test
