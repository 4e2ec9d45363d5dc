#include "basic/date_scanner.h"

#include "basic/date_words.h"
#include "basic/number_parser.h"

#include <algorithm>

namespace rf {
namespace {

constexpr std::size_t mostDigits = 4;
constexpr std::size_t mostNumbers = 3;

class DateScanner {
public:
    DateScanner(const RegionalSettings& settings, TextView text)
        : settings_(settings)
        , words_(settings)
        , rest_(text)
    {
    }

    std::optional<DateText> scan();

private:
    bool scanItem();
    bool scanNumber();
    bool scanClock(DateNumber hour);
    bool scanWord();
    bool scanDesignator(bool afternoon);
    bool takeComma();

    std::optional<DateNumber> takeNumber();
    void skipBlanks();
    bool skipDateSeparator();
    [[nodiscard]] std::size_t dateSeparatorLength() const;
    [[nodiscard]] std::size_t timeSeparatorLength() const;
    [[nodiscard]] bool dateIsComplete() const;

    const RegionalSettings& settings_;
    DateWords words_;
    TextView rest_;
    DateText date_;
    bool afterComma_ = false;
    bool afterSeparator_ = false;
    bool loneNumber_ = false; ///< The last item was a number without a separator beside it.
};

std::optional<DateText> DateScanner::scan()
{
    for (skipBlanks(); !rest_.empty(); skipBlanks()) {
        if (!scanItem()) {
            return std::nullopt;
        }
    }
    return date_;
}

bool DateScanner::scanItem()
{
    if (isDigit(rest_.front())) {
        return scanNumber();
    }
    return takeComma() || scanWord();
}

bool DateScanner::takeComma()
{
    if (rest_.front() != u',') {
        return false;
    }
    rest_.remove_prefix(1);
    return afterComma_ = true;
}

bool DateScanner::scanNumber()
{
    auto number = takeNumber();
    if (!number) {
        return false;
    }
    if (timeSeparatorLength() != 0) {
        return scanClock(*number);
    }
    number->afterComma = afterComma_ && !date_.numbers.empty();
    date_.numbers.push_back(*number);
    const bool behindSeparator = afterSeparator_;
    afterSeparator_ = skipDateSeparator();
    loneNumber_ = !behindSeparator && !afterSeparator_;
    afterComma_ = false;
    return date_.numbers.size() <= mostNumbers + 1;
}

bool DateScanner::scanClock(DateNumber hour)
{
    if (!date_.clock.empty()) {
        return false;
    }
    date_.clock.push_back(hour.value);
    while (const std::size_t separator = timeSeparatorLength()) {
        rest_.remove_prefix(separator);
        const auto number = takeNumber();
        if (!number || date_.clock.size() == 3) {
            return false;
        }
        date_.clock.push_back(number->value);
    }
    return true;
}

bool DateScanner::scanWord()
{
    const auto word = words_.find(rest_);
    if (!word) {
        return false;
    }
    rest_.remove_prefix(word->length);
    switch (word->kind) {
    case DateWord::Kind::Month:
        if (date_.month) {
            return false;
        }
        date_.month = word->value;
        afterSeparator_ = skipDateSeparator();
        return true;
    case DateWord::Kind::Designator:
        return scanDesignator(word->value != 0);
    default:
        return true;
    }
}

// "2 PM" makes an hour of a number that seemed to belong to the date. Some languages put the designator in front;
// then the number behind it is the hour.
bool DateScanner::scanDesignator(bool afternoon)
{
    if (date_.afternoon) {
        return false;
    }
    date_.afternoon = afternoon;
    skipBlanks();
    const bool inFront = !rest_.empty() && isDigit(rest_.front());
    if (date_.clock.empty() && !inFront && loneNumber_ && !date_.numbers.empty()) {
        date_.clock.push_back(date_.numbers.back().value);
        date_.numbers.pop_back();
    }
    return true;
}

std::optional<DateNumber> DateScanner::takeNumber()
{
    DateNumber number;
    while (number.digits < rest_.size() && isDigit(rest_[number.digits])) {
        if (number.digits == mostDigits) {
            return std::nullopt;
        }
        number.value = number.value * 10 + (rest_[number.digits] - u'0');
        ++number.digits;
    }
    rest_.remove_prefix(number.digits);
    return number.digits == 0 ? std::nullopt : std::optional{number};
}

void DateScanner::skipBlanks()
{
    while (!rest_.empty() && isBlank(rest_.front())) {
        rest_.remove_prefix(1);
    }
}

bool DateScanner::skipDateSeparator()
{
    const TextView before = rest_;
    skipBlanks();
    const std::size_t length = dateSeparatorLength();
    rest_ = length == 0 ? before : rest_.substr(length);
    return length != 0;
}

std::size_t DateScanner::dateSeparatorLength() const
{
    if (!rest_.empty() && TextView{u"/-."}.find(rest_.front()) != TextView::npos) {
        return 1;
    }
    const TextView separator = settings_.dateSeparator;
    return rest_.starts_with(separator) ? separator.size() : 0;
}

// Where times are written with the separator of dates, "14.05" is a time only behind a complete date.
std::size_t DateScanner::timeSeparatorLength() const
{
    if (rest_.starts_with(u':')) {
        return 1;
    }
    const TextView separator = settings_.timeSeparator;
    if (separator.empty() || !rest_.starts_with(separator)) {
        return 0;
    }
    return dateSeparatorLength() == 0 || dateIsComplete() ? separator.size() : 0;
}

bool DateScanner::dateIsComplete() const { return date_.numbers.size() + (date_.month ? 1 : 0) >= mostNumbers; }

} // namespace

std::optional<DateText> scanDate(const RegionalSettings& settings, TextView text)
{
    return DateScanner{settings, text}.scan();
}

} // namespace rf
