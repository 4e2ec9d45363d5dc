#include "basic/date_words.h"

#include "basic/date_picture.h"

#include <algorithm>

namespace rf {
namespace {

bool isLetter(char16_t unit) { return upper(unit) != lower(unit) || unit == u'ß'; }

bool beginsWith(TextView text, TextView word)
{
    if (!equalIgnoringCase(text.substr(0, word.size()), word)) {
        return false;
    }
    // "Mar" is no month in "Market"; scripts without cases write words and numbers without a gap.
    return text.size() == word.size() || !isLetter(text[word.size()]);
}

} // namespace

// Months come first: where a weekday has the same abbreviation, the month is what the date needs.
DateWords::DateWords(const RegionalSettings& settings)
{
    addNames(settings);
    addNames(englishSettings());
    for (const Text& word : quotedWords(settings.shortDatePattern)) {
        add(word, DateWord::Kind::Filler);
    }
}

void DateWords::addNames(const RegionalSettings& settings)
{
    for (std::size_t month = 0; month < settings.monthNames.size(); ++month) {
        add(settings.monthNames[month], DateWord::Kind::Month, static_cast<int>(month) + 1);
        add(settings.shortMonthNames[month], DateWord::Kind::Month, static_cast<int>(month) + 1);
    }
    add(settings.amDesignator, DateWord::Kind::Designator, 0);
    add(settings.pmDesignator, DateWord::Kind::Designator, 1);
    for (std::size_t weekday = 0; weekday < settings.weekdayNames.size(); ++weekday) {
        add(settings.weekdayNames[weekday], DateWord::Kind::Filler);
        add(settings.shortWeekdayNames[weekday], DateWord::Kind::Filler);
    }
}

void DateWords::add(TextView text, DateWord::Kind kind, int value)
{
    while (text.ends_with(u'.') || text.ends_with(u' ')) {
        text.remove_suffix(1);
    }
    text.remove_prefix(std::min(text.find_first_not_of(u' '), text.size()));
    if (!text.empty()) {
        words_.push_back({Text{text}, kind, value});
    }
}

std::optional<FoundWord> DateWords::find(TextView text) const
{
    const DateWord* found = nullptr;
    for (const DateWord& word : words_) {
        if ((found == nullptr || word.text.size() > found->text.size()) && beginsWith(text, word.text)) {
            found = &word;
        }
    }
    if (found == nullptr) {
        return std::nullopt;
    }
    const std::size_t length = found->text.size();
    return FoundWord{found->kind, found->value, length + (text.substr(length).starts_with(u'.') ? 1 : 0)};
}

} // namespace rf
