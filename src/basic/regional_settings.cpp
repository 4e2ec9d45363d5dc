#include "basic/pattern_regional.h"

namespace rf {

RegionalSettings englishSettings()
{
    RegionalSettings settings;
    settings.monthNames = {u"January", u"February", u"March", u"April", u"May", u"June", u"July", u"August",
        u"September", u"October", u"November", u"December"};
    settings.shortMonthNames
        = {u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun", u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"};
    settings.weekdayNames = {u"Sunday", u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday"};
    settings.shortWeekdayNames = {u"Sun", u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat"};
    return settings;
}

RegionalSettings germanSettings()
{
    RegionalSettings settings;
    settings.localeId = locale_id::germany;
    settings.decimalSeparator = settings.currencyDecimalSeparator = u",";
    settings.groupSeparator = settings.currencyGroupSeparator = u".";
    settings.currencySymbol = u"€";
    settings.positiveCurrencyPattern = u"n $";
    settings.negativeCurrencyPattern = u"-n $";
    settings.dateOrder = DateOrder::DayMonthYear;
    settings.shortDatePattern = u"dd.MM.yyyy";
    settings.longTimePattern = u"HH:mm:ss";
    settings.dateSeparator = u".";
    settings.monthNames = {u"Januar", u"Februar", u"März", u"April", u"Mai", u"Juni", u"Juli", u"August", u"September",
        u"Oktober", u"November", u"Dezember"};
    settings.shortMonthNames
        = {u"Jan", u"Feb", u"Mrz", u"Apr", u"Mai", u"Jun", u"Jul", u"Aug", u"Sep", u"Okt", u"Nov", u"Dez"};
    settings.weekdayNames = {u"Sonntag", u"Montag", u"Dienstag", u"Mittwoch", u"Donnerstag", u"Freitag", u"Samstag"};
    settings.shortWeekdayNames = {u"So", u"Mo", u"Di", u"Mi", u"Do", u"Fr", u"Sa"};
    return settings;
}

} // namespace rf
