#include "basic/date_picture.h"

#include <algorithm>

namespace rf {
namespace {

Text padded(int number, std::size_t width)
{
    const Text digits = decimal(number);
    return Text(width - std::min(width, digits.size()), u'0') + digits;
}

constexpr std::size_t positionOf(int oneBased) { return static_cast<std::size_t>(oneBased - 1); }

/// A run of one letter in a picture, such as MMM.
struct Field {
    char16_t letter;
    std::size_t length;
};

class PictureWriter {
public:
    PictureWriter(const RegionalSettings& settings, Date date)
        : settings_(settings)
        , fields_(date.fields())
        , weekday_(positionOf(date.weekday()))
    {
    }

    [[nodiscard]] Text write(Field field) const
    {
        switch (field.letter) {
        case u'd':
            return writeDay(field.length);
        case u'M':
            return writeMonth(field.length);
        case u'y':
            return field.length > 2 ? padded(fields_.year, 4) : padded(fields_.year % 100, field.length);
        case u't':
            return designator().substr(0, field.length == 1 ? 1 : Text::npos);
        default:
            return padded(timeField(field.letter), std::min<std::size_t>(field.length, 2));
        }
    }

private:
    [[nodiscard]] Text writeDay(std::size_t length) const
    {
        if (length <= 2) {
            return padded(fields_.day, length);
        }
        return length == 3 ? settings_.shortWeekdayNames[weekday_] : settings_.weekdayNames[weekday_];
    }

    [[nodiscard]] Text writeMonth(std::size_t length) const
    {
        if (length <= 2) {
            return padded(fields_.month, length);
        }
        return length == 3 ? settings_.shortMonthNames[positionOf(fields_.month)]
                           : settings_.monthNames[positionOf(fields_.month)];
    }

    [[nodiscard]] int timeField(char16_t letter) const
    {
        switch (letter) {
        case u'h':
            return fields_.hour % 12 == 0 ? 12 : fields_.hour % 12;
        case u'H':
            return fields_.hour;
        case u'm':
            return fields_.minute;
        default:
            return fields_.second;
        }
    }

    [[nodiscard]] const Text& designator() const
    {
        return fields_.hour < 12 ? settings_.amDesignator : settings_.pmDesignator;
    }

    const RegionalSettings& settings_;
    DateFields fields_;
    std::size_t weekday_;
};

/// Takes quoted text from the front of a picture; a quote in quotes is doubled.
Text takeQuoted(TextView& picture)
{
    Text quoted;
    picture.remove_prefix(1);
    while (!picture.empty()) {
        const char16_t unit = picture.front();
        picture.remove_prefix(1);
        if (unit == u'\'') {
            if (!picture.starts_with(u'\'')) {
                return quoted;
            }
            picture.remove_prefix(1);
        }
        quoted += unit;
    }
    return quoted;
}

Field takeField(TextView& picture)
{
    const char16_t letter = picture.front();
    const std::size_t length = std::min(picture.find_first_not_of(letter), picture.size());
    picture.remove_prefix(length);
    return {letter, length};
}

constexpr TextView fieldLetters = u"dMyhHmst";

} // namespace

Text writeDate(const RegionalSettings& settings, TextView picture, Date date)
{
    const PictureWriter writer{settings, date};
    Text text;
    while (!picture.empty()) {
        if (picture.front() == u'\'') {
            text += takeQuoted(picture);
        } else if (fieldLetters.find(picture.front()) != TextView::npos) {
            text += writer.write(takeField(picture));
        } else {
            text += picture.front();
            picture.remove_prefix(1);
        }
    }
    return text;
}

std::vector<Text> quotedWords(TextView picture)
{
    std::vector<Text> words;
    for (std::size_t quote = 0; (quote = picture.find(u'\'')) != TextView::npos;) {
        picture.remove_prefix(quote);
        words.push_back(takeQuoted(picture));
    }
    return words;
}

} // namespace rf
