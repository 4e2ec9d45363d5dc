#pragma once

#include "basic/pattern_regional.h"

namespace rf {

/// A word that may stand in the text of a date.
struct DateWord {
    enum class Kind { Month, Designator, Filler };

    Text text; ///< Without a full stop at its end.
    Kind kind = Kind::Filler;
    int value = 0; ///< The month from 1 on; 1 for afternoon.
};

struct FoundWord {
    DateWord::Kind kind = DateWord::Kind::Filler;
    int value = 0;
    std::size_t length = 0; ///< In the text, with the full stop of an abbreviation.
};

/// The words of the settings and those of English, which are understood everywhere.
class DateWords {
public:
    explicit DateWords(const RegionalSettings& settings);
    /// The longest word that a text begins with, in any case; nothing when no whole word stands there.
    [[nodiscard]] std::optional<FoundWord> find(TextView text) const;

private:
    void add(TextView text, DateWord::Kind kind, int value = 0);
    void addNames(const RegionalSettings& settings);

    std::vector<DateWord> words_;
};

} // namespace rf
