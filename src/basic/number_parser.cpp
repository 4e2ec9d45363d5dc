#include "basic/number_parser.h"

#include <algorithm>
#include <charconv>

namespace rf {
namespace {

constexpr long long largestExponent = 100000; ///< Far beyond every double; keeps sums of exponents in range.

struct Separators {
    TextView decimal;
    TextView group;
};

/// Reads a number from left to right; each `read…` takes what it names and answers whether it stood there.
class NumberReader {
public:
    NumberReader(const RegionalSettings& settings, TextView text)
        : settings_(settings)
        , rest_(text)
    {
        // An amount is written with the separators for money, which differ from those for numbers in few places.
        const bool money = !settings.currencySymbol.empty() && text.find(settings.currencySymbol) != TextView::npos;
        separators_[money ? 1 : 0] = {settings.decimalSeparator, settings.groupSeparator};
        separators_[money ? 0 : 1] = {settings.currencyDecimalSeparator, settings.currencyGroupSeparator};
    }

    std::optional<DecimalNumber> read();

private:
    bool readOne(char16_t unit);
    bool readAll(TextView what);
    bool readBlank();
    bool readSign();
    bool readCurrency();
    bool readOpening();
    bool readClosing();
    bool readDigit();
    bool readDecimalSeparator(const Separators& separators);
    bool readGroupSeparator(const Separators& separators);
    void readDigits();
    void readExponent();

    const RegionalSettings& settings_;
    TextView rest_;
    std::array<Separators, 2> separators_;
    DecimalNumber number_;
    bool signed_ = false;
    bool opened_ = false;
    bool closed_ = false;
    bool currency_ = false;
    bool digits_ = false;
    bool decimals_ = false;
};

std::optional<DecimalNumber> NumberReader::read()
{
    while (readBlank() || readSign() || readCurrency() || readOpening()) { }
    readDigits();
    if (!digits_) {
        return std::nullopt;
    }
    readExponent();
    while (readBlank() || readSign() || readCurrency() || readClosing()) { }
    if (!rest_.empty() || opened_ != closed_) {
        return std::nullopt;
    }
    return number_;
}

bool NumberReader::readOne(char16_t unit)
{
    if (rest_.empty() || rest_.front() != unit) {
        return false;
    }
    rest_.remove_prefix(1);
    return true;
}

bool NumberReader::readAll(TextView what)
{
    if (what.empty() || !rest_.starts_with(what)) {
        return false;
    }
    rest_.remove_prefix(what.size());
    return true;
}

bool NumberReader::readBlank()
{
    if (rest_.empty() || !isBlank(rest_.front())) {
        return false;
    }
    rest_.remove_prefix(1);
    return true;
}

bool NumberReader::readSign()
{
    const bool minus = !signed_ && readOne(u'-');
    if (!minus && (signed_ || !readOne(u'+'))) {
        return false;
    }
    signed_ = true;
    number_.negative = number_.negative || minus;
    return true;
}

bool NumberReader::readCurrency()
{
    if (currency_ || !readAll(settings_.currencySymbol)) {
        return false;
    }
    return currency_ = true;
}

bool NumberReader::readOpening()
{
    if (opened_ || !readOne(u'(')) {
        return false;
    }
    return opened_ = number_.negative = true;
}

bool NumberReader::readClosing()
{
    if (!opened_ || closed_ || !readOne(u')')) {
        return false;
    }
    return closed_ = true;
}

bool NumberReader::readDigit()
{
    if (rest_.empty() || !isDigit(rest_.front())) {
        return false;
    }
    const char16_t digit = rest_.front();
    if (digit != u'0' || !number_.digits.empty()) {
        number_.digits += static_cast<char>(digit);
    }
    number_.exponent -= decimals_ ? 1 : 0;
    rest_.remove_prefix(1);
    return digits_ = true;
}

bool NumberReader::readDecimalSeparator(const Separators& separators)
{
    if (decimals_ || !readAll(separators.decimal)) {
        return false;
    }
    return decimals_ = true;
}

// All blanks are the same separator, since people type the one on their keyboard; one that no digit follows is not
// meant as a separator but stands before a currency symbol or at the end.
bool NumberReader::readGroupSeparator(const Separators& separators)
{
    if (!digits_ || decimals_) {
        return false;
    }
    if (separators.group.size() == 1 && isBlank(separators.group.front())) {
        return rest_.size() > 1 && rest_.front() >= u' ' && isDigit(rest_[1]) && readBlank();
    }
    return readAll(separators.group);
}

void NumberReader::readDigits()
{
    const auto readSeparator = [this](const Separators& separators) {
        return readDecimalSeparator(separators) || readGroupSeparator(separators);
    };
    while (readDigit() || std::any_of(separators_.begin(), separators_.end(), readSeparator)) { }
}

void NumberReader::readExponent()
{
    if (rest_.empty() || TextView{u"EeDd"}.find(rest_.front()) == TextView::npos) {
        return;
    }
    const TextView letter = rest_;
    rest_.remove_prefix(1);
    const bool negative = readOne(u'-');
    if (!negative) {
        readOne(u'+');
    }
    if (rest_.empty() || !isDigit(rest_.front())) {
        rest_ = letter;
        return;
    }
    long long exponent = 0;
    for (; !rest_.empty() && isDigit(rest_.front()); rest_.remove_prefix(1)) {
        exponent = std::min(exponent * 10 + (rest_.front() - u'0'), largestExponent);
    }
    number_.exponent += negative ? -exponent : exponent;
}

TextView withoutBlanks(TextView text)
{
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

/// "&H1F" and "&O17", without a sign: their digits are the bits of the number.
std::optional<DecimalNumber> readBits(TextView text)
{
    const std::string digits = toUtf8(text.substr(2));
    const char16_t letter = upper(text[1]);
    if (digits.empty() || (letter != u'H' && letter != u'O')) {
        return std::nullopt;
    }
    std::uint64_t bits = 0;
    const char* const end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, bits, letter == u'H' ? 16 : 8);
    if (read.ec != std::errc{} || read.ptr != end) {
        return std::nullopt;
    }
    return DecimalNumber{false, bits == 0 ? "" : std::to_string(bits), 0};
}

} // namespace

std::optional<DecimalNumber> readNumber(const RegionalSettings& settings, TextView text)
{
    const TextView core = withoutBlanks(text);
    if (core.size() > 1 && core.front() == u'&') {
        return readBits(core);
    }
    return NumberReader{settings, core}.read();
}

} // namespace rf
