#include "orders/list_handler.h"

#include "app/session.h"
#include "automation/conversion.h"

#include <algorithm>

namespace rf::orders {

using automation::Array;
using automation::Variant;

namespace {

constexpr std::int32_t firstDataRow = 2;
constexpr std::int32_t lastDataRow = 1000;
constexpr TextView printFile = u"OWCPrint.htm";

Text dataAddress(TextView lastColumn, std::int32_t lastRow) { return u"a2:" + Text{lastColumn} + decimal(lastRow); }

/// The values of a range, which for a single cell come without an array around them.
Array asTable(const Variant& value)
{
    if (value.isArray())
        return *value.array();
    return {{{1, 1}, {1, 1}}, {value}};
}

/// One below the other.
Array asColumn(std::vector<Variant> values)
{
    return {{{1, static_cast<std::int32_t>(values.size())}, {1, 1}}, std::move(values)};
}

std::vector<std::vector<Variant>> rowsOf(const Array& table)
{
    std::vector<std::vector<Variant>> rows;
    const auto width = table.dimensions.empty() ? 0 : table.dimensions.back().size;
    for (auto value = table.values.begin(); width > 0 && value != table.values.end(); value += width)
        rows.emplace_back(value, value + width);
    return rows;
}

} // namespace

std::int32_t cListHandler::countedRows(TextView countCell) const
{
    sheet_.calculate();
    return toLong(session_.services.regional, range(countCell).value());
}

void cListHandler::sort(TextView address) const
{
    range(address).sort(1, constants_.ascending(), constants_.withoutHeading());
}

Array cListHandler::sortedRows(TextView countCell, TextView lastColumn) const
{
    const std::int32_t last = std::min(countedRows(countCell), lastDataRow);
    // The whole of it: rows that stand apart come together.
    sort(dataAddress(lastColumn, lastDataRow));
    if (last < firstDataRow)
        return {};
    return asTable(range(dataAddress(lastColumn, last)).value());
}

std::int32_t cListHandler::UsedRows(TextView countCell)
{
    session_.trace.subTrace(u"Trying to find number of used rows");
    return session_.reporter.handled(u"cListHandler.UsedRows", [&] { return countedRows(countCell); });
}

Array cListHandler::fncGetRangeArray(TextView countCell, TextView lastColumn)
{
    session_.trace.subTrace(u"Entering fncGetRangeArray");
    return session_.reporter.handled(
        u"cListHandler.fncGetRangeArray", [&] { return sortedRows(countCell, lastColumn); });
}

outlook::Dictionary cListHandler::fncGetRangeDic(TextView countCell, TextView lastColumn)
{
    session_.trace.subTrace(u"Entering fncGetRangeDic");
    return session_.reporter.handled(u"cListHandler.fncGetRangeDic", [&] {
        auto rows = session_.scripting.fncCreateDic();
        for (const auto& row : rowsOf(sortedRows(countCell, lastColumn)))
            if (const Text key = toText(session_.services.regional, row.front()); !rows.exists(key))
                rows.add(key, Array::list(row));
        return rows;
    });
}

void cListHandler::SortRange()
{
    session_.reporter.handled(u"cListHandler.SortRange", [&] { sort(u"A2:d1000"); });
}

void cListHandler::AutoFilter(bool on)
{
    session_.reporter.handled(u"cListHandler.AutoFilter", [&] {
        sheet_.setEnableAutoFilter(on);
        sheet_.usedRange().autoFilter();
    });
}

void cListHandler::SetDicList(const outlook::Dictionary& dictionary)
{
    session_.reporter.handled(u"cListHandler.SetDicList", [&] {
        range(u"A2:A200").clearContents();
        auto items = dictionary.items();
        if (items.empty())
            return;
        const auto last = static_cast<std::int32_t>(items.size()) + firstDataRow - 1;
        range(u"A2:A" + decimal(last)).setValue(asColumn(std::move(items)));
    });
}

void cListHandler::PrintSheet(const outlook::WebBrowser& browser)
{
    session_.reporter.handled(u"cListHandler.PrintSheet", [&] {
        const Text path = session_.files.fncSaveTextFile(sheet_.usedRange().htmlData(), Text{printFile});
        if (path.empty())
            throw RuntimeError{error_number::fileNotFound};
        if (!browser) {
            session_.files.subPrintFile(path);
            return;
        }
        browser.navigate2(path);
        browser.document().execCommand(u"print");
    });
}

} // namespace rf::orders
