#include "windows/regional.h"

#include "basic/decimal_number.h"
#include "basic/runtime_error.h"
#include "windows/win32.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace rf::native {
namespace {

/// A text that OLE Automation allocates.
class OwnedBstr {
public:
    OwnedBstr() = default;
    OwnedBstr(const OwnedBstr&) = delete;
    OwnedBstr& operator=(const OwnedBstr&) = delete;
    ~OwnedBstr() { SysFreeString(text_); }

    [[nodiscard]] BSTR* receive() { return &text_; }
    [[nodiscard]] Text text() const { return textOf(text_, SysStringLen(text_)); }

private:
    BSTR text_ = nullptr;
};

Text succeeded(HRESULT result, const OwnedBstr& text, std::int32_t errorNumber)
{
    if (FAILED(result)) {
        throw RuntimeError{errorNumber};
    }
    return text.text();
}

CY toCy(Currency amount)
{
    CY money{};
    money.int64 = amount.tenThousandths();
    return money;
}

bool containsNul(TextView text) { return text.find(u'\0') != TextView::npos; }

/// The form in which the NLS functions take numbers, whatever the locale.
constexpr TextView nlsDecimalSeparator = u".";

class AutomationRegional final : public Regional {
public:
    AutomationRegional(LCID locale, DWORD flags)
        : locale_(locale)
        , flags_(flags)
    {
    }

    [[nodiscard]] std::optional<double> parseNumber(TextView text) const override
    {
        return parse<double>(
            text, [this](wchar_t* units, double* number) { return VarR8FromStr(units, locale_, flags_, number); });
    }

    [[nodiscard]] std::optional<Currency> parseCurrency(TextView text) const override
    {
        const auto money = parse<CY>(
            text, [this](wchar_t* units, CY* amount) { return VarCyFromStr(units, locale_, flags_, amount); });
        return money ? std::optional{Currency::fromTenThousandths(money->int64)} : std::nullopt;
    }

    [[nodiscard]] std::optional<Date> parseDate(TextView text) const override
    {
        const auto days = parse<double>(
            text, [this](wchar_t* units, double* date) { return VarDateFromStr(units, locale_, flags_, date); });
        return days ? std::optional{Date{*days}} : std::nullopt;
    }

    [[nodiscard]] Text formatNumber(double number) const override
    {
        if (!std::isfinite(number)) {
            throw RuntimeError{error_number::overflow};
        }
        OwnedBstr text;
        return succeeded(VarBstrFromR8(number, locale_, flags_, text.receive()), text, error_number::overflow);
    }

    [[nodiscard]] Text formatSingle(float number) const override
    {
        if (!std::isfinite(number)) {
            throw RuntimeError{error_number::overflow};
        }
        OwnedBstr text;
        return succeeded(VarBstrFromR4(number, locale_, flags_, text.receive()), text, error_number::overflow);
    }

    [[nodiscard]] Text formatFixed(double number, int decimals) const override;
    [[nodiscard]] Text formatMoney(Currency amount) const override;

    [[nodiscard]] Text formatPlain(Currency amount) const override
    {
        OwnedBstr text;
        return succeeded(VarBstrFromCy(toCy(amount), locale_, flags_, text.receive()), text, error_number::overflow);
    }

    [[nodiscard]] Text formatDate(Date date) const override { return dateText(date.days(), flags_); }

    [[nodiscard]] Text formatShortDate(Date date) const override
    {
        const Text text = dateText(date.days(), flags_ | VAR_DATEVALUEONLY);
        return text.empty() ? shortZeroDate() : text;
    }

    [[nodiscard]] Text formatWeekday(Date date) const override
    {
        // The names are counted from Monday.
        const auto dayFromMonday = static_cast<LCTYPE>((date.weekday() + 5) % 7);
        return setting(LOCALE_SABBREVDAYNAME1 + dayFromMonday);
    }

    [[nodiscard]] DateOrder dateOrder() const override
    {
        switch (numericSetting(LOCALE_IDATE)) {
        case 0:
            return DateOrder::MonthDayYear;
        case 1:
            return DateOrder::DayMonthYear;
        default:
            return DateOrder::YearMonthDay;
        }
    }

    [[nodiscard]] std::uint32_t systemLocaleId() const override { return GetSystemDefaultLCID(); }
    [[nodiscard]] std::string toSystemCodePage(TextView text) const override;
    [[nodiscard]] Text fromSystemCodePage(std::string_view bytes) const override;

private:
    template <typename Value, typename Conversion>
    [[nodiscard]] static std::optional<Value> parse(TextView text, Conversion convert)
    {
        Value value{};
        Text units{text};
        // The conversions take a text up to its first NUL and would pass over the rest.
        if (containsNul(text) || FAILED(convert(reinterpret_cast<wchar_t*>(units.data()), &value))) {
            return std::nullopt;
        }
        return value;
    }

    [[nodiscard]] Text dateText(double days, DWORD flags) const
    {
        OwnedBstr text;
        return succeeded(VarBstrFromDate(days, locale_, flags, text.receive()), text, error_number::invalidCall);
    }

    /// The day that the conversion leaves out, as it does in front of a time alone.
    [[nodiscard]] Text shortZeroDate() const
    {
        SYSTEMTIME day{};
        day.wYear = 1899;
        day.wMonth = 12;
        day.wDay = 30;
        std::array<wchar_t, 128> text{};
        GetDateFormatW(locale_, flags_ | DATE_SHORTDATE, &day, nullptr, text.data(), static_cast<int>(text.size()));
        return textOf(text.data());
    }

    [[nodiscard]] Text setting(LCTYPE type) const
    {
        std::array<wchar_t, 128> buffer{};
        GetLocaleInfoW(locale_, type | flags_, buffer.data(), static_cast<int>(buffer.size()));
        return textOf(buffer.data());
    }

    [[nodiscard]] UINT numericSetting(LCTYPE type) const
    {
        DWORD value = 0;
        GetLocaleInfoW(locale_, type | flags_ | LOCALE_RETURN_NUMBER, reinterpret_cast<wchar_t*>(&value),
            sizeof value / sizeof(wchar_t));
        return value;
    }

    LCID locale_;
    DWORD flags_;
};

// The digits are rounded before, in decimal: Windows gets as many as it shall show, in a form it knows.
Text AutomationRegional::formatFixed(double number, int decimals) const
{
    const int places = std::max(decimals, 0);
    const Text value = writeFixed(fifteenDigits(number), places, nlsDecimalSeparator);
    Text decimalSeparator = setting(LOCALE_SDECIMAL);
    Text groupSeparator = setting(LOCALE_STHOUSAND);
    NUMBERFMTW format{};
    format.NumDigits = static_cast<UINT>(places);
    format.LeadingZero = numericSetting(LOCALE_ILZERO);
    format.lpDecimalSep = reinterpret_cast<wchar_t*>(decimalSeparator.data());
    format.lpThousandSep = reinterpret_cast<wchar_t*>(groupSeparator.data());
    format.NegativeOrder = numericSetting(LOCALE_INEGNUMBER);
    // 309 digits before the separator at most, and the separator and sign beside the decimals.
    std::vector<wchar_t> text(static_cast<std::size_t>(places) + 330);
    if (GetNumberFormatW(locale_, 0, wide(value), &format, text.data(), static_cast<int>(text.size())) == 0) {
        throw RuntimeError{error_number::overflow};
    }
    return textOf(text.data());
}

Text AutomationRegional::formatMoney(Currency amount) const
{
    const auto places = static_cast<int>(numericSetting(LOCALE_ICURRDIGITS));
    const Text value = writeFixed(digitsOf(amount), places, nlsDecimalSeparator);
    std::array<wchar_t, 128> text{};
    if (GetCurrencyFormatW(locale_, flags_, wide(value), nullptr, text.data(), static_cast<int>(text.size())) == 0) {
        throw RuntimeError{error_number::overflow};
    }
    return textOf(text.data());
}

std::string AutomationRegional::toSystemCodePage(TextView text) const
{
    // Every text has its bytes there, and the conversion takes no replacement for that code page.
    if (GetACP() == CP_UTF8) {
        return toUtf8(text);
    }
    const auto* const units = reinterpret_cast<const wchar_t*>(text.data());
    const auto length = static_cast<int>(text.size());
    const auto convert = [units, length](char* bytes, int room) {
        return WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, units, length, bytes, room, "?", nullptr);
    };
    std::string bytes(text.empty() ? 0 : static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    if (!bytes.empty()) {
        convert(bytes.data(), static_cast<int>(bytes.size()));
    }
    return bytes;
}

Text AutomationRegional::fromSystemCodePage(std::string_view bytes) const
{
    if (GetACP() == CP_UTF8) {
        return fromUtf8(bytes);
    }
    const auto length = static_cast<int>(bytes.size());
    const auto convert = [&bytes, length](wchar_t* units, int room) {
        return MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, units, room);
    };
    Text text(bytes.empty() ? 0 : static_cast<std::size_t>(convert(nullptr, 0)), u'\0');
    if (!text.empty()) {
        convert(reinterpret_cast<wchar_t*>(text.data()), static_cast<int>(text.size()));
    }
    return text;
}

} // namespace

std::unique_ptr<Regional> makeRegional() { return std::make_unique<AutomationRegional>(LOCALE_USER_DEFAULT, 0); }

// What the user changed in the own settings is not part of the named locale.
std::unique_ptr<Regional> makeRegional(std::uint32_t localeId)
{
    return std::make_unique<AutomationRegional>(localeId, LOCALE_NOUSEROVERRIDE);
}

} // namespace rf::native
