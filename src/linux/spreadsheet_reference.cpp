#include "linux/spreadsheet_reference.h"

namespace rf::native::spreadsheet {

namespace {

bool isLetter(char16_t unit) { return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z'); }
bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }
bool isWordPart(char16_t unit) { return isLetter(unit) || isDigit(unit) || unit == u'_' || unit == u'.'; }

std::size_t runEnd(TextView text, std::size_t start, bool (*belongs)(char16_t unit))
{
    while (start < text.size() && belongs(text[start]))
        ++start;
    return start;
}

/// A reference to one cell, in the parts that it is written in.
struct Reference {
    std::size_t end = 0;
    bool fixedColumn = false;
    bool fixedRow = false;
    Cell cell;
};

/// The reference that starts at a place; nothing where a name, a number or a function starts.
std::optional<Reference> referenceAt(TextView text, std::size_t start)
{
    Reference found;
    std::size_t next = start;
    found.fixedColumn = text[next] == u'$';
    next += found.fixedColumn ? 1 : 0;
    const std::size_t letters = next;
    next = runEnd(text, next, isLetter);
    const TextView column = text.substr(letters, next - letters);
    found.fixedRow = next < text.size() && text[next] == u'$';
    next += found.fixedRow ? 1 : 0;
    const std::size_t digits = next;
    next = runEnd(text, next, isDigit);
    const TextView row = text.substr(digits, next - digits);
    const bool goesOn = next < text.size() && (isWordPart(text[next]) || text[next] == u'(');
    const auto area = goesOn || column.empty() || row.empty() ? std::nullopt : parseAddress(Text{column} + Text{row});
    if (!area)
        return std::nullopt;
    found.end = next;
    found.cell = area->first;
    return found;
}

Text moved(TextView written, const Reference& reference, Move move)
{
    const Cell cell{reference.cell.row + (reference.fixedRow ? 0 : move.rows),
        reference.cell.column + (reference.fixedColumn ? 0 : move.columns)};
    if (!Area::whole().contains(cell))
        return Text{written};
    return (reference.fixedColumn ? u"$" : u"") + columnName(cell.column) + (reference.fixedRow ? u"$" : u"")
        + decimal(cell.row);
}

} // namespace

Text movedBy(TextView formula, Move move)
{
    Text text;
    bool quoted = false;
    for (std::size_t place = 0; place < formula.size();) {
        const char16_t unit = formula[place];
        quoted = quoted != (unit == u'"');
        const bool startsWord = place == 0 || !isWordPart(formula[place - 1]);
        const bool mayRefer = !quoted && startsWord && (isLetter(unit) || unit == u'$');
        if (const auto reference = mayRefer ? referenceAt(formula, place) : std::nullopt) {
            text += moved(formula.substr(place, reference->end - place), *reference, move);
            place = reference->end;
            continue;
        }
        text += unit;
        ++place;
    }
    return text;
}

} // namespace rf::native::spreadsheet
