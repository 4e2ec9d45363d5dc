#include "app/selection_watch.h"
#include "basic/pattern_regional.h"
#include "basic/runtime_error.h"
#include "orders/supply_list.h"
#include "orders/text_table.h"

#include "fuzz_input.h"

namespace rf::fuzz {
namespace {

/// The text that a table was read from, as far as the table holds it.
Text written(const TextTable& table)
{
    Text text;
    for (std::size_t row = 0; row < table.rows(); ++row) {
        for (std::size_t column = 0; column < table.columns(); ++column) {
            text += (column == 0 ? u"" : u"\t") + table.cell(row, column);
        }
        text += lineBreak;
    }
    return text;
}

/// An orders text is read, or refused with the one error for it; what was read is written and read alike.
void checkOrders(const Text& text, const Regional& regional)
{
    try {
        const TextTable table = fncTextToArray(text);
        const Text again = written(table);
        require(written(fncTextToArray(again)) == again);
        for (std::size_t row = 0; row < table.rows() && table.columns() > 1; ++row) {
            static_cast<void>(regional.parseNumber(table.cell(row, 1)));
        }
    } catch (const RuntimeError& error) {
        require(error.number() == error_number::subscriptOutOfRange);
    }
}

/// A supply list loses nothing when it is written and read again.
void checkSupplies(const Text& text, const Regional& regional)
{
    const auto supplies = readSupplyList(text, regional);
    Text list;
    for (const cSupplyItem& supply : supplies) {
        list += supplyLine(supply, regional);
    }
    const auto again = readSupplyList(list, regional);
    require(again.size() == supplies.size());
    for (std::size_t index = 0; index < again.size(); ++index) {
        require(again[index].ItemName == supplies[index].ItemName && again[index].Price == supplies[index].Price);
    }
}

/// The names of a selection file are lines, none of them empty, and name the same calendars when they are written
/// again.
void checkSelection(const Text& text)
{
    const auto names = fncSelectedNames(text);
    for (const Text& name : names) {
        require(!name.empty() && name.find(lineBreak) == Text::npos);
    }
    require(fncSelectedNames(join(names, lineBreak)) == names);
}

} // namespace
} // namespace rf::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static const rf::PatternRegional regional{rf::germanSettings()};
    const rf::Text text = rf::fuzz::unitsOf(bytes, size);
    rf::fuzz::checkOrders(text, regional);
    rf::fuzz::checkSupplies(text, regional);
    rf::fuzz::checkSelection(text);
    return 0;
}
