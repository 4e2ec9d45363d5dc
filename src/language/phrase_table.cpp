#include "language/phrase_table.h"

#include <vector>

namespace rf {

namespace {

constexpr std::int16_t germanColumn = 7;

/// The byte-order mark is recognised by what the system code page makes of it, a question mark: the text may
/// have passed through that code page before. A code page of all characters keeps it as it is.
TextView withoutByteOrderMark(const Regional& regional, TextView text)
{
    if (text.empty())
        return text;
    const TextView first = text.substr(0, 1);
    const bool mark = first == u"\uFEFF" || regional.toSystemCodePage(first) == "?";
    return mark ? text.substr(1) : text;
}

TextView cell(const std::vector<TextView>& cells, std::int16_t column)
{
    if (column < 0 || static_cast<std::size_t>(column) >= cells.size())
        throw RuntimeError{error_number::subscriptOutOfRange};
    return cells[static_cast<std::size_t>(column)];
}

cPhrase parseLine(const Regional& regional, TextView line, std::int16_t language)
{
    const auto cells = splitViews(line, u"\t");
    TextView phrase = cell(cells, language);
    if (phrase.empty())
        phrase = cell(cells, germanColumn);
    // Phrases are put between apostrophes in scripts and HTML.
    return {Text{withoutByteOrderMark(regional, cell(cells, 0))}, replaceAll(phrase, u"'", u"")};
}

} // namespace

void PhraseTable::add(cPhrase phrase)
{
    Text key = phrase.LangKey;
    if (!phrases_.emplace(std::move(key), std::move(phrase)).second)
        throw RuntimeError{error_number::keyAlreadyExists};
}

const cPhrase& PhraseTable::operator()(TextView key, std::source_location where) const
{
    const auto found = phrases_.find(key);
    if (found == phrases_.end())
        throw RuntimeError{error_number::invalidCall, where};
    return found->second;
}

PhraseTable parsePhraseTable(const Regional& regional, TextView text, std::int16_t language)
{
    PhraseTable table;
    auto lines = splitViews(withoutByteOrderMark(regional, text), lineBreak);
    if (!lines.empty())
        lines.pop_back();
    for (const TextView line : lines)
        table.add(parseLine(regional, line, language));
    return table;
}

} // namespace rf
