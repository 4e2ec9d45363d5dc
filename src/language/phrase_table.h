#pragma once

#include "basic/regional.h"
#include "basic/runtime_error.h"
#include "basic/text.h"

#include <cstdint>
#include <unordered_map>

namespace rf {

/// One phrase in the chosen language.
struct cPhrase {
    Text LangKey;
    Text LangPhrase;
};

/// The phrases of one language by their key, which compares without regard to case.
class PhraseTable {
public:
    /// Error 457 when the key is there already.
    void add(cPhrase phrase);
    /// Error 5 when there is no such key.
    [[nodiscard]] const cPhrase& operator()(
        TextView key, std::source_location where = std::source_location::current()) const;
    [[nodiscard]] std::size_t count() const { return phrases_.size(); }

private:
    std::unordered_map<Text, cPhrase, HashIgnoringCase, EqualIgnoringCase> phrases_;
};

/// Reads the table's text: lines ended by CR LF, cells separated by TAB, the key in cell 0 and `language` the cell of
/// the phrase. A cell that is empty gives way to the German one. A line that lacks its CR LF is the remainder behind
/// the last one and is not read. Error 9 when a line has no such cell.
[[nodiscard]] PhraseTable parsePhraseTable(const Regional& regional, TextView text, std::int16_t language);

} // namespace rf
