#include "orders/list_handler.h"

#include "app/session.h"

namespace rf::orders {

namespace {

/// Characters of the standard font to a pixel.
constexpr double charactersPerPixel = 0.1384;

constexpr TextView wholeSheet = u"1:65536";
constexpr TextView symbolFont = u"Wingdings";

} // namespace

void cListHandler::SetBold(TextView address, bool bold)
{
    session_.reporter.handled(u"cListHandler.SetBold", [&] { range(address).font().setBold(bold); });
}

void cListHandler::LockRange(TextView address, bool OpenLock)
{
    session_.reporter.handled(u"cListHandler.LockRange", [&] { range(address).setLocked(!OpenLock); });
}

void cListHandler::SetExcelVisible(bool visible)
{
    session_.reporter.handled(u"cListHandler.SetExcelVisible", [&] {
        spreadsheet_.setDisplayToolbar(visible);
        window_.setDisplayHorizontalScrollBar(visible);
    });
}

void cListHandler::ColHeaders(bool visible)
{
    session_.reporter.handled(u"cListHandler.ColHeaders", [&] {
        if (made_.generation == Generation::Oldest)
            spreadsheet_.setDisplayColHeaders(visible);
        else
            window_.setDisplayColumnHeadings(visible);
    });
}

void cListHandler::RowHeaders(bool visible)
{
    session_.reporter.handled(u"cListHandler.RowHeaders", [&] {
        if (made_.generation == Generation::Oldest)
            spreadsheet_.setDisplayRowHeaders(visible);
        else
            window_.setDisplayRowHeadings(visible);
    });
}

void cListHandler::SetVisibleRange(TextView address)
{
    session_.reporter.handled(
        u"cListHandler.SetVisibleRange", [&] { unprotected([&] { spreadsheet_.setViewableRange(address); }); });
}

void cListHandler::FreezePanes(TextView address)
{
    session_.reporter.handled(u"cListHandler.FreezePanes", [&] {
        range(address).select();
        window_.setFreezePanes(true);
        range(u"A1").select();
    });
}

void cListHandler::FixHorizontalAlign(TextView address, std::int32_t alignment)
{
    session_.reporter.handled(
        u"cListHandler.FixHorizontalAlign", [&] { range(address).setHorizontalAlignment(alignment); });
}

void cListHandler::CenterAlign(TextView address)
{
    session_.reporter.handled(
        u"cListHandler.CenterAlign", [&] { range(address).setHorizontalAlignment(constants_.centered()); });
}

void cListHandler::AutoFitCols(TextView address)
{
    session_.reporter.handled(u"cListHandler.AutoFitCols", [&] {
        const auto columns = range(address).entireColumn();
        if (made_.generation == Generation::Oldest)
            columns.autoFitColumns();
        else
            columns.autoFit();
    });
}

void cListHandler::SetFont(TextView address, TextView fontName)
{
    session_.reporter.handled(u"cListHandler.SetFont", [&] { range(address).font().setName(fontName); });
}

void cListHandler::SetCheckedColumn(TextView address, std::optional<std::int32_t> fromRow)
{
    session_.reporter.handled(
        u"cListHandler.SetCheckedColumn", [&] { range(columnOf(address, fromRow)).font().setName(symbolFont); });
}

void cListHandler::RightEdgeColDash(TextView address)
{
    session_.reporter.handled(u"cListHandler.RightEdgeColDash",
        [&] { range(address).entireColumn().borders(constants_.rightEdge()).setLineStyle(constants_.dashedLine()); });
}

void cListHandler::TopEdgeRowDash(TextView address)
{
    session_.reporter.handled(u"cListHandler.TopEdgeRowDash",
        [&] { range(address).entireRow().borders(constants_.topEdge()).setLineStyle(constants_.dashedLine()); });
}

void cListHandler::DisplayVerticalScroll(bool visible)
{
    session_.reporter.handled(
        u"cListHandler.DisplayVerticalScroll", [&] { window_.setDisplayVerticalScrollBar(visible); });
}

void cListHandler::DisplayHorizontalScroll(bool visible)
{
    session_.reporter.handled(
        u"cListHandler.DisplayHorizontalScroll", [&] { window_.setDisplayHorizontalScrollBar(visible); });
}

void cListHandler::SetColumnWidth(TextView columnName, double width)
{
    session_.reporter.handled(u"cListHandler.SetColumnWidth", [&] {
        const auto columns = range(columnAddress(columnName)).entireColumn();
        columns.setColumnWidth(convertWidths ? width * charactersPerPixel : width);
    });
}

void cListHandler::SetDateFormat(TextView address)
{
    session_.reporter.handled(u"cListHandler.SetDateFormat", [&] { range(address).setNumberFormat(u"General Date"); });
}

void cListHandler::SetTextFormat(TextView address)
{
    session_.reporter.handled(u"cListHandler.SetTextFormat", [&] { range(address).setNumberFormat(u"Text"); });
}

void cListHandler::SetNumberFormat(TextView address)
{
    session_.reporter.handled(u"cListHandler.SetNumberFormat", [&] { range(address).setNumberFormat(u"General"); });
}

void cListHandler::SetInteriorColor(TextView address, std::int32_t color, bool blnClearBorders)
{
    session_.reporter.handled(u"cListHandler.SetInteriorColor", [&] {
        unprotected([&] {
            const auto cells = range(address);
            cells.interior().setColor(color);
            if (blnClearBorders)
                return;
            const auto borders = cells.borders();
            borders.setColor(silver);
            borders.setWeight(constants_.thinLine());
        });
    });
}

std::int32_t cListHandler::GetInteriorColor(TextView address)
{
    session_.trace.subTrace(u"Trying to determine interior color of cell " + Text{address});
    return session_.reporter.handled(
        u"cListHandler.GetInteriorColor", [&] { return range(address).interior().color(); });
}

void cListHandler::setTitle(TextView caption)
{
    session_.reporter.handled(u"cListHandler.SetTitle", [&] { spreadsheet_.titleBar().setCaption(caption); });
}

void cListHandler::ClearAll()
{
    session_.reporter.handled(u"cListHandler.ClearAll", [&] {
        const auto cells = range(wholeSheet);
        cells.clearContents();
        cells.clearFormats();
        window_.setFreezePanes(false);
        cells.font().setName(u"Tahoma");
        window_.setDisplayGridlines(false);
        range(u"a1").select();
    });
}

} // namespace rf::orders
