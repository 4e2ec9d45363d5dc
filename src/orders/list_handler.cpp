#include "orders/list_handler.h"

#include "app/session.h"

namespace rf::orders {

namespace {

constexpr TextView headings = u"1:1";
constexpr TextView styledRows = u"1:1999";
constexpr double fontSize = 8;
/// Beside the last column that lists show.
constexpr TextView countCell = u"f1";

/// Often enough for an eye that follows the scrolling, seldom enough to cost nothing.
constexpr std::chrono::milliseconds lookInterval{250};

} // namespace

cListHandler::cListHandler(Session& session)
    : session_(session)
{
}

cListHandler::~cListHandler()
{
    if (made_.control != nullptr)
        made_.control->SelectionChange = nullptr;
}

void cListHandler::setWidth(std::int32_t width)
{
    width_ = width;
    place();
}

void cListHandler::setVisible(bool visible)
{
    visible_ = visible;
    if (made_.control != nullptr)
        made_.control->setVisible(visible);
}

void cListHandler::setRaiseEventsEnabled(bool enabled)
{
    raiseEvents_ = enabled;
    // Nobody has to be told of rows where nobody listens.
    if (objTimer_ != nullptr)
        objTimer_->setEnabled(enabled && Scrolled != nullptr);
}

void cListHandler::AddToForm(ui::FormWindow& form)
{
    session_.reporter.handled(u"cListHandler.AddToForm", [&] {
        made_ = makeSpreadsheetControl(form, controlName, preferNewest ? FirstClass::Skip : FirstClass::Try);
        if (made_.control == nullptr)
            endWithoutSpreadsheet(session_);
        spreadsheet_ = outlook::Spreadsheet{made_.control->object()};
        sheet_ = spreadsheet_.activeSheet();
        window_ = spreadsheet_.activeWindow();
        protection_ = sheet_.protection();
        constants_ = {spreadsheet_.constants(), made_.generation};
        made_.control->SelectionChange = [this](const Text& address) {
            // A copy, since the owner may take this object away.
            if (const auto heard = raiseEvents_ ? SelectionChange : nullptr)
                heard(address);
        };
        objTimer_ = session_.services.toolkit.makeTimer([this] { objTimer_Timer(); });
        objTimer_->setInterval(lookInterval);
    });
    subSetDefaults();
}

void cListHandler::place() const
{
    if (made_.control != nullptr)
        made_.control->setBounds({Left, Top, width_, Height});
}

void cListHandler::subSetDefaults()
{
    session_.reporter.handled(u"cListHandler.subSetDefaults", [&] {
        spreadsheet_.setAllowPropertyToolbox(false);
        spreadsheet_.setDisplayTitleBar(true);
        styleRows();
        range(countCell).setFormula(u"=Counta(A1:A10000)");
        spreadsheet_.setDisplayWorkbookTabs(false);
        window_.setEnableResize(false);
        range(u"A1:F2000").setLocked(false);
        range(u"A1:F1").setLocked(true);
        protect();
        place();
        setVisible(visible_);
    });
}

void cListHandler::styleRows() const
{
    const auto heads = range(headings);
    heads.interior().setColor(shade);
    heads.font().setBold(true);
    const auto font = range(styledRows).font();
    font.setName(u"Tahoma");
    font.setSize(fontSize);
}

void cListHandler::protect() const
{
    protection_.setAllowDeletingColumns(false);
    protection_.setAllowInsertingColumns(false);
    protection_.setAllowInsertingRows(false);
    protection_.setAllowFiltering(true);
    protection_.setAllowFormattingColumns(true);
    protection_.setAllowFormattingRows(true);
    protection_.setAllowSizingAllColumns(true);
    protection_.setAllowSizingAllRows(true);
    protection_.setAllowSorting(true);
    protection_.setEnabled(true);
}

void cListHandler::unprotected(const std::function<void()>& step) const
{
    const bool protectedBefore = protection_.enabled();
    if (protectedBefore)
        protection_.setEnabled(false);
    step();
    if (protectedBefore)
        protection_.setEnabled(true);
}

void cListHandler::setEditMode(bool on)
{
    session_.reporter.handled(u"cListHandler.EditMode", [&] {
        if (on)
            spreadsheet_.setScreenUpdating(false);
        protection_.setEnabled(!on);
        // Last, so that what was written is drawn once.
        if (!on)
            spreadsheet_.setScreenUpdating(true);
    });
}

void cListHandler::setMoveRight(bool on)
{
    if (!on)
        return;
    session_.reporter.handled(u"cListHandler.MoveRight", [&] {
        spreadsheet_.setMoveAfterReturn(true);
        spreadsheet_.setMoveAfterReturnDirection(constants_.toTheRight());
    });
}

void cListHandler::SelectCell(TextView address)
{
    session_.reporter.handled(u"cListHandler.SelectCell", [&] { range(address).select(); });
}

Text cListHandler::fncGetSel()
{
    return session_.reporter.handled(u"cListHandler.fncGetSel", [&] {
        const auto selected = spreadsheet_.selection();
        // One after the other: the order of arguments is the compiler's.
        const auto row = selected.row();
        return cellAddress(row, selected.column());
    });
}

void cListHandler::objTimer_Timer()
{
    session_.reporter.handled(u"cListHandler.objTimer_Timer", [&] {
        const auto rows = viewedRows(spreadsheet_.viewableRange());
        if (!rows || rows == viewed_)
            return;
        viewed_ = rows;
        if (const auto heard = raiseEvents_ ? Scrolled : nullptr)
            heard(*rows);
    });
}

} // namespace rf::orders
