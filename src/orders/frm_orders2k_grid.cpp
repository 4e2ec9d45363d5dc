#include "app/session.h"
#include "orders/frm_orders2k.h"
#include "orders/order_total.h"

namespace rf::orders {

namespace {

// In pixels.
constexpr double nameWidth = 400;
constexpr double rateWidth = 58;
constexpr double quantityWidth = 75;

/// The rows of the supplies between two columns, such as "A2:C7".
Text rowsOf(TextView firstColumn, TextView lastColumn, const Supplies& supplies)
{
    return Text{firstColumn} + decimal(grid::firstRow) + u":" + Text{lastColumn} + decimal(lastRow(supplies));
}

} // namespace

void frmOrders2K::subSetupList()
{
    session_.reporter.handled(u"subSetupList", [&] {
        list_ = std::make_unique<cListHandler>(session_);
        list_->setWidth(OrdersControls::gridWidth);
        list_->Top = OrdersControls::gridTop;
        list_->Left = OrdersControls::gridLeft;
        list_->Height = OrdersControls::gridHeight;
        list_->controlName = u"exsOrders";
        list_->convertWidths = true;
        list_->setVisible(true);
        list_->SelectionChange = handler(&frmOrders2K::exsOrders_SelectionChange);
        list_->AddToForm(*window_);
        list_->SetColumnWidth(u"A", nameWidth);
        list_->SetColumnWidth(u"B", rateWidth);
        list_->SetColumnWidth(u"C", quantityWidth);
        list_->SetInteriorColor(grid::fixedCells, shade);
        list_->LockRange(grid::fixedCells);
        list_->SetFormula(grid::totalCell, grid::totalFormula);
        list_->DisplayVerticalScroll(false);
    });
}

/// A row for each supply, all rows at once.
void frmOrders2K::fillGrid()
{
    list_->setEditMode(true);
    // A name stays what it is, even where it reads as a number or as a formula.
    list_->SetTextFormat(rowsOf(u"A", u"A", supplies_));
    list_->SetValue(rowsOf(u"A", u"B", supplies_), supplyCells(supplies_));
    list_->SetFormula(rowsOf(u"D", u"D", supplies_), grid::costFormula);
    // The hundredth supply's row is the one with the total, which stays.
    if (lastRow(supplies_) >= grid::totalRow)
        list_->SetFormula(grid::totalCell, grid::totalFormula);
    list_->SetVisibleRange(u"A1:C" + decimal(lastRow(supplies_)));
    list_->setEditMode(false);
}

void frmOrders2K::subFillOrders(TextView strOrdersList)
{
    session_.reporter.handled(u"subFillOrders", [&] {
        if (strOrdersList.empty() || !hasSupplies())
            return;
        list_->setEditMode(true);
        for (const auto& [cell, quantity] : gridQuantities(session_.services.regional, supplies_, strOrdersList))
            list_->SetValue(cell, quantity);
        list_->setEditMode(false);
    });
}

void frmOrders2K::subCountOrders()
{
    session_.reporter.handled(u"subCountOrders", [&] {
        if (list_ == nullptr)
            return;
        list_->calculate();
        controls_->lblSum.setCaption(totalText(session_.services.regional, list_->GetValue(grid::totalCell)));
    });
}

Text frmOrders2K::fncBuildOrderList()
{
    return session_.reporter.handled(u"fncBuildOrderList", [&] {
        if (!hasSupplies())
            return Text{};
        const auto rows = list_->GetValue(rowsOf(u"A", u"C", supplies_)).array();
        return orderLines(session_.services.regional, *rows);
    });
}

} // namespace rf::orders
