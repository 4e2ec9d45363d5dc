#include "linux/regional.h"

#include <unicode/udat.h>
#include <unicode/uloc.h>
#include <unicode/unum.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <initializer_list>

namespace rf::native {
namespace {

/// What an ICU function writes into a buffer; an empty text where it fails.
template <typename Function>
Text written(Function write)
{
    std::array<char16_t, 128> buffer{};
    UErrorCode status = U_ZERO_ERROR;
    const std::int32_t length = write(buffer.data(), static_cast<std::int32_t>(buffer.size()), &status);
    return U_FAILURE(status) ? Text{} : Text{buffer.data(), static_cast<std::size_t>(length)};
}

/// Blanks that prevent a line break become plain ones and direction marks vanish: the texts of a settings panel have
/// neither, and people type neither.
Text plain(Text text)
{
    static constexpr TextView directionMarks = u"\u200E\u200F\u061C";
    std::erase_if(text, [](char16_t unit) { return directionMarks.find(unit) != TextView::npos; });
    std::replace(text.begin(), text.end(), u'\u00A0', u' ');
    std::replace(text.begin(), text.end(), u'\u202F', u' ');
    return text;
}

class NumberFormat {
public:
    NumberFormat(UNumberFormatStyle style, const std::string& locale)
    {
        UErrorCode status = U_ZERO_ERROR;
        format_.adoptInstead(unum_open(style, nullptr, 0, locale.c_str(), nullptr, &status));
    }

    [[nodiscard]] Text symbol(UNumberFormatSymbol symbol) const
    {
        return written([this, symbol](char16_t* buffer, std::int32_t room, UErrorCode* status) {
            return unum_getSymbol(format_.getAlias(), symbol, buffer, room, status);
        });
    }

    [[nodiscard]] int attribute(UNumberFormatAttribute attribute) const
    {
        return unum_getAttribute(format_.getAlias(), attribute);
    }

    /// How an amount is written, with `n` for its digits and `$` for the symbol.
    [[nodiscard]] Text pattern(UNumberFormatTextAttribute prefix, UNumberFormatTextAttribute suffix) const
    {
        return affix(prefix) + u'n' + affix(suffix);
    }

private:
    [[nodiscard]] Text affix(UNumberFormatTextAttribute attribute) const
    {
        const Text text = written([this, attribute](char16_t* buffer, std::int32_t room, UErrorCode* status) {
            return unum_getTextAttribute(format_.getAlias(), attribute, buffer, room, status);
        });
        const Text withoutSymbol = replaceAll(text, symbol(UNUM_CURRENCY_SYMBOL), u"$");
        return plain(replaceAll(withoutSymbol, symbol(UNUM_MINUS_SIGN_SYMBOL), u"-"));
    }

    icu::LocalUNumberFormatPointer format_;
};

class DateFormat {
public:
    DateFormat(UDateFormatStyle time, UDateFormatStyle date, const std::string& locale)
    {
        UErrorCode status = U_ZERO_ERROR;
        format_.adoptInstead(udat_open(time, date, locale.c_str(), nullptr, 0, nullptr, 0, &status));
    }

    [[nodiscard]] Text pattern() const
    {
        return plain(written([this](char16_t* buffer, std::int32_t room, UErrorCode* status) {
            return udat_toPattern(format_.getAlias(), 0, buffer, room, status);
        }));
    }

    [[nodiscard]] Text name(UDateFormatSymbolType type, std::int32_t index) const
    {
        return plain(written([this, type, index](char16_t* buffer, std::int32_t room, UErrorCode* status) {
            return udat_getSymbols(format_.getAlias(), type, index, buffer, room, status);
        }));
    }

    template <std::size_t count>
    void takeNames(std::array<Text, count>& names, UDateFormatSymbolType type, std::int32_t firstIndex) const
    {
        for (std::size_t index = 0; index < count; ++index) {
            names[index] = name(type, static_cast<std::int32_t>(index) + firstIndex);
        }
    }

private:
    icu::LocalUDateFormatPointer format_;
};

/// A run of one letter of an ICU pattern as it stands in a picture; years have four digits, eras are left out.
Text pictureField(char16_t letter, std::size_t length)
{
    switch (letter) {
    case u'y':
    case u'u':
        return u"yyyy";
    case u'M':
    case u'L':
        return Text(length > 4 ? 3 : length, u'M');
    case u'E':
    case u'c':
        return length == 4 ? u"dddd" : u"ddd";
    case u'H':
    case u'k':
        return Text(length, u'H');
    case u'h':
    case u'K':
        return Text(length, u'h');
    case u'd':
    case u'm':
    case u's':
        return Text(length, letter);
    case u'a':
    case u'b':
    case u'B':
        return u"tt";
    default:
        return {};
    }
}

bool isLetter(char16_t unit) { return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z'); }

/// The Windows picture string for an ICU pattern; both quote their words in the same way.
Text pictureOf(TextView pattern)
{
    Text picture;
    bool quoted = false;
    while (!pattern.empty()) {
        const char16_t unit = pattern.front();
        const bool field = !quoted && isLetter(unit);
        const std::size_t length = field ? std::min(pattern.find_first_not_of(unit), pattern.size()) : 1;
        picture += field ? pictureField(unit, length) : Text{unit};
        quoted = quoted != (unit == u'\'');
        pattern.remove_prefix(length);
    }
    return Text{trim(picture)};
}

/// What stands between the given field of a picture and the next one, without blanks.
Text separatorBehind(TextView picture, TextView fieldLetters)
{
    const std::size_t field = std::min(picture.find_first_of(fieldLetters), picture.size());
    TextView rest = picture.substr(field);
    rest.remove_prefix(std::min(rest.find_first_not_of(fieldLetters), rest.size()));
    const auto end = std::find_if(rest.begin(), rest.end(), isLetter);
    return Text{trim(rest.substr(0, static_cast<std::size_t>(end - rest.begin())))};
}

DateOrder orderOf(TextView picture)
{
    const std::size_t day = picture.find(u'd');
    if (picture.find(u'y') < day) {
        return DateOrder::YearMonthDay;
    }
    return picture.find(u'M') < day ? DateOrder::MonthDayYear : DateOrder::DayMonthYear;
}

void readNumbers(RegionalSettings& settings, const std::string& locale)
{
    const NumberFormat format{UNUM_DECIMAL, locale};
    settings.decimalSeparator = format.symbol(UNUM_DECIMAL_SEPARATOR_SYMBOL);
    settings.groupSeparator = format.symbol(UNUM_GROUPING_SEPARATOR_SYMBOL);
    settings.groupSize = format.attribute(UNUM_GROUPING_SIZE);
}

// In the United States, Windows writes negative money in parentheses, which ICU does in its accounting style only.
void readMoney(RegionalSettings& settings, const std::string& locale)
{
    const NumberFormat format{
        settings.localeId == locale_id::unitedStates ? UNUM_CURRENCY_ACCOUNTING : UNUM_CURRENCY, locale};
    settings.currencySymbol = plain(format.symbol(UNUM_CURRENCY_SYMBOL));
    settings.currencyDecimalSeparator = format.symbol(UNUM_MONETARY_SEPARATOR_SYMBOL);
    settings.currencyGroupSeparator = format.symbol(UNUM_MONETARY_GROUPING_SEPARATOR_SYMBOL);
    settings.currencyDecimals = format.attribute(UNUM_FRACTION_DIGITS);
    settings.positiveCurrencyPattern = format.pattern(UNUM_POSITIVE_PREFIX, UNUM_POSITIVE_SUFFIX);
    settings.negativeCurrencyPattern = format.pattern(UNUM_NEGATIVE_PREFIX, UNUM_NEGATIVE_SUFFIX);
}

void readDates(RegionalSettings& settings, const std::string& locale)
{
    const DateFormat format{UDAT_NONE, UDAT_SHORT, locale};
    settings.shortDatePattern = pictureOf(format.pattern());
    settings.dateSeparator = separatorBehind(settings.shortDatePattern, u"dMy");
    settings.dateOrder = orderOf(settings.shortDatePattern);
    format.takeNames(settings.monthNames, UDAT_MONTHS, 0);
    format.takeNames(settings.shortMonthNames, UDAT_SHORT_MONTHS, 0);
    format.takeNames(settings.weekdayNames, UDAT_WEEKDAYS, 1);
    // The form for a name that stands alone, which has no full stop in German.
    format.takeNames(settings.shortWeekdayNames, UDAT_STANDALONE_SHORT_WEEKDAYS, 1);
}

// Few languages put words between the figures of a time. No reader expects them here, and no one types them.
void readTimes(RegionalSettings& settings, const std::string& locale)
{
    const DateFormat format{UDAT_MEDIUM, UDAT_NONE, locale};
    const Text pattern = format.pattern();
    settings.longTimePattern = pattern.find(u'\'') == Text::npos ? pictureOf(pattern) : u"HH:mm:ss";
    settings.timeSeparator = separatorBehind(settings.longTimePattern, u"hH");
    settings.amDesignator = format.name(UDAT_AM_PMS, 0);
    settings.pmDesignator = format.name(UDAT_AM_PMS, 1);
}

std::string languageOf(const char* locale)
{
    std::array<char, ULOC_LANG_CAPACITY> language{};
    UErrorCode status = U_ZERO_ERROR;
    uloc_getLanguage(locale, language.data(), static_cast<std::int32_t>(language.size()), &status);
    return language.data();
}

/// ICU would quietly answer for another language; "C" and "POSIX" are no languages either.
bool isKnownLanguage(const std::string& language)
{
    for (std::int32_t index = 0; index < uloc_countAvailable(); ++index) {
        if (languageOf(uloc_getAvailable(index)) == language) {
            return true;
        }
    }
    return false;
}

std::string countryOf(const std::string& locale)
{
    std::array<char, ULOC_COUNTRY_CAPACITY> country{};
    UErrorCode status = U_ZERO_ERROR;
    uloc_getCountry(locale.c_str(), country.data(), static_cast<std::int32_t>(country.size()), &status);
    return country.data();
}

/// The locale with the likely country where it names none, since money depends on the country: "de" is Germany.
std::string withCountry(const std::string& locale)
{
    if (!countryOf(locale).empty()) {
        return locale;
    }
    std::array<char, ULOC_FULLNAME_CAPACITY> full{};
    UErrorCode status = U_ZERO_ERROR;
    uloc_addLikelySubtags(locale.c_str(), full.data(), static_cast<std::int32_t>(full.size()), &status);
    const std::string country = U_FAILURE(status) != 0 ? std::string{} : countryOf(full.data());
    return country.empty() ? locale : locale + '_' + country;
}

/// The value of the first of the variables that is set and not empty, as the C library chooses a locale.
std::string firstSet(std::initializer_list<const char*> variables)
{
    for (const char* const variable : variables) {
        const char* const value = std::getenv(variable);
        if (value != nullptr && *value != '\0') {
            return value;
        }
    }
    return {};
}

void takeNumbers(RegionalSettings& settings, const RegionalSettings& other)
{
    settings.decimalSeparator = other.decimalSeparator;
    settings.groupSeparator = other.groupSeparator;
    settings.groupSize = other.groupSize;
}

void takeMoney(RegionalSettings& settings, const RegionalSettings& other)
{
    settings.currencySymbol = other.currencySymbol;
    settings.currencyDecimalSeparator = other.currencyDecimalSeparator;
    settings.currencyGroupSeparator = other.currencyGroupSeparator;
    settings.currencyDecimals = other.currencyDecimals;
    settings.positiveCurrencyPattern = other.positiveCurrencyPattern;
    settings.negativeCurrencyPattern = other.negativeCurrencyPattern;
}

} // namespace

RegionalSettings settingsOf(const std::string& localeName)
{
    const std::string name = withCountry(localeName.substr(0, localeName.find_first_of(".@")));
    RegionalSettings settings = englishSettings();
    if (!isKnownLanguage(languageOf(name.c_str()))) {
        return settings;
    }
    settings.localeId = uloc_getLCID(name.c_str());
    // The calendar and the digits that automation knows, whatever is common in the country.
    const std::string locale = name + "@calendar=gregorian;numbers=latn";
    readNumbers(settings, locale);
    readMoney(settings, locale);
    readDates(settings, locale);
    readTimes(settings, locale);
    return settings;
}

std::unique_ptr<Regional> makeRegional()
{
    RegionalSettings settings = settingsOf(firstSet({"LC_ALL", "LC_TIME", "LANG"}));
    takeNumbers(settings, settingsOf(firstSet({"LC_ALL", "LC_NUMERIC", "LANG"})));
    takeMoney(settings, settingsOf(firstSet({"LC_ALL", "LC_MONETARY", "LANG"})));
    settings.localeId = settingsOf(firstSet({"LC_ALL", "LC_MESSAGES", "LANG"})).localeId;
    return std::make_unique<PatternRegional>(std::move(settings));
}

} // namespace rf::native
