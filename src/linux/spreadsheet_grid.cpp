#include "linux/spreadsheet_grid.h"

#include "linux/qt_event.h"
#include "linux/qt_text.h"
#include "linux/spreadsheet_filter_menu.h"

#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>

namespace rf::native::spreadsheet {

namespace {

/// What a character of the standard font and the edges of a cell take, in pixels of a plain screen.
constexpr int characterWidth = 7;
constexpr int columnEdges = 5;
constexpr int plainDotsPerInch = 96;
constexpr int rowEdges = 5;

} // namespace

GridView::GridView(std::shared_ptr<Sheet> sheet, QWidget* parent)
    : QTableView(parent)
    , sheet_(std::move(sheet))
    , model_(sheet_)
    , panes_(*this, [this](QObject* pane) {
        CellDelegate* delegate = makeDelegate(pane);
        connect(
            delegate, &CellDelegate::closeEditor, this,
            [this](QWidget*, QAbstractItemDelegate::EndEditHint hint) { afterEditing(hint); }, Qt::QueuedConnection);
        return delegate;
    })
{
    setModel(&model_);
    setItemDelegate(makeDelegate(this));
    setShowGrid(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setEditTriggers(AnyKeyPressed | DoubleClicked | EditKeyPressed);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    horizontalHeader()->setMinimumSectionSize(0);
    horizontalHeader()->setHighlightSections(true);
    verticalHeader()->setMinimumSectionSize(0);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    sheet_->measure = [this](Cell cell) {
        const int pixels = QFontMetrics{model_.fontOf(cell)}.horizontalAdvance(qtText(sheet_->shown(cell))) + 8;
        return (pixels * static_cast<double>(plainDotsPerInch) / logicalDpiX() - columnEdges) / characterWidth;
    };
    QObject::connect(
        horizontalHeader(), &QHeaderView::sectionResized, this, [this](int, int, int) { measureColumns(); });
    arrange();
    showSelection();
}

CellDelegate* GridView::makeDelegate(QObject* parent)
{
    auto* delegate = new CellDelegate{sheet_, model_, parent};
    delegate->leave = [this](Qt::Key key) {
        step(key == Qt::Key_Down    ? 1
                : key == Qt::Key_Up ? -1
                                    : 0,
            key == Qt::Key_Right      ? 1
                : key == Qt::Key_Left ? -1
                                      : 0);
    };
    delegate->openFilter = [this](Cell heading, const QPoint& below) { openFilter(heading, below); };
    delegate->refused = [] { refuse(); };
    delegate->changed = [this] { afterPersonsChange(); };
    return delegate;
}

GridView::~GridView() { sheet_->measure = nullptr; }

int GridView::pixelsOf(double characters) const
{
    const double plain = characters <= 0 ? 0 : characters * characterWidth + columnEdges;
    return static_cast<int>(std::lround(plain * logicalDpiX() / plainDotsPerInch));
}

void GridView::follow(Change change)
{
    following_ = true;
    switch (change) {
    case Change::Contents:
    case Change::Looks:
        model_.refresh();
        break;
    case Change::Layout:
        if (state() == EditingState && model_.viewable() != sheet_->appearance().viewable)
            setCurrentIndex({});
        model_.follow();
        model_.refresh();
        break;
    case Change::Selection:
        break;
    }
    if (change == Change::Looks || change == Change::Layout)
        arrange();
    if (change == Change::Layout || change == Change::Selection)
        showSelection();
    viewport()->update();
    panes_.update();
    following_ = false;
}

void GridView::arrange()
{
    const bool nested = std::exchange(following_, true);
    const Appearance& appearance = sheet_->appearance();
    const Area& viewable = model_.viewable();
    horizontalHeader()->setVisible(appearance.columnHeadings);
    verticalHeader()->setVisible(appearance.rowHeadings);
    const bool sizable = !sheet_->protection().enabled || sheet_->protection().allowSizingAllColumns;
    horizontalHeader()->setSectionResizeMode(sizable ? QHeaderView::Interactive : QHeaderView::Fixed);
    setHorizontalScrollBarPolicy(appearance.horizontalScrollBar ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(appearance.verticalScrollBar ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    for (int column = 0; column < model_.columnCount(); ++column) {
        const int pixels = pixelsOf(sheet_->columnWidth(viewable.first.column + column));
        if (isColumnHidden(column) != (pixels == 0))
            setColumnHidden(column, pixels == 0);
        if (pixels != 0 && columnWidth(column) != pixels)
            setColumnWidth(column, pixels);
    }
    const QFontMetrics metrics{model_.fontOf(viewable.first)};
    verticalHeader()->setDefaultSectionSize(metrics.height() + rowEdges);
    for (int row = 0; row < model_.rowCount(); ++row) {
        const bool hidden = sheet_->isRowHidden(viewable.first.row + row);
        if (isRowHidden(row) != hidden)
            setRowHidden(row, hidden);
        // Without a filter no row is hidden, and a sheet may have many.
        if (!sheet_->filter() && !verticalHeader()->sectionsHidden())
            break;
    }
    const auto frozen = [](std::int32_t at, std::int32_t first, int count) { return std::clamp(at - first, 0, count); };
    const auto at = appearance.frozenAt;
    panes_.freeze(at ? frozen(at->row, viewable.first.row, model_.rowCount()) : 0,
        at ? frozen(at->column, viewable.first.column, model_.columnCount()) : 0);
    panes_.follow();
    following_ = nested;
}

void GridView::measureColumns()
{
    if (following_)
        return;
    // The person has drawn a column wider or narrower.
    for (int column = 0; column < model_.columnCount(); ++column) {
        const double plain = columnWidth(column) * static_cast<double>(plainDotsPerInch) / logicalDpiX();
        const std::int32_t number = model_.viewable().first.column + column;
        if (pixelsOf(sheet_->columnWidth(number)) != columnWidth(column) && !isColumnHidden(column))
            sheet_->setColumnWidth({{1, number}, {1, number}}, (plain - columnEdges) / characterWidth);
    }
}

void GridView::showSelection()
{
    const bool nested = std::exchange(following_, true);
    const auto shared = sheet_->selection().common(model_.viewable());
    if (shared && selectedArea() != *shared) {
        const QModelIndex first = model_.indexOf(shared->first);
        const QItemSelection cells{first, model_.indexOf(shared->last)};
        selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        selectionModel()->select(cells, QItemSelectionModel::ClearAndSelect);
    }
    following_ = nested;
}

Area GridView::selectedArea() const
{
    const auto ranges = selectionModel() == nullptr ? QItemSelection{} : selectionModel()->selection();
    for (const QItemSelectionRange& range : ranges)
        if (range.contains(currentIndex()))
            return {model_.cellOf(range.topLeft()), model_.cellOf(range.bottomRight())};
    return Area::of(currentIndex().isValid() ? model_.cellOf(currentIndex()) : Cell{0, 0});
}

void GridView::tellSelection()
{
    const Area area = selectedArea();
    if (!following_ && currentIndex().isValid())
        sheet_->select(area);
}

void GridView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTableView::selectionChanged(selected, deselected);
    tellSelection();
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    viewport()->update();
    panes_.update();
}

void GridView::afterPersonsChange() const { sheet_->tellOfPersonsChange(); }

void GridView::refuse() { QApplication::beep(); }

void GridView::updateGeometries()
{
    QTableView::updateGeometries();
    panes_.place();
}

void GridView::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    const int vertical = verticalScrollBar()->value();
    const int horizontal = horizontalScrollBar()->value();
    QTableView::scrollTo(index, hint);
    if (panes_.keepsRow(index.row()))
        verticalScrollBar()->setValue(vertical);
    if (panes_.keepsColumn(index.column()))
        horizontalScrollBar()->setValue(horizontal);
    panes_.uncover(index);
}

bool GridView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    QTableView* pane = index.isValid() ? panes_.paneOf(index) : nullptr;
    auto* drawing = pane == nullptr ? itemDelegate() : pane->itemDelegate();
    if (auto* cells = dynamic_cast<CellDelegate*>(drawing))
        cells->arrowsLeave = trigger == AnyKeyPressed;
    return pane == nullptr ? QTableView::edit(index, trigger, event) : FrozenPanes::edit(*pane, index, trigger, event);
}

void GridView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    afterEditing(hint);
}

void GridView::afterEditing(QAbstractItemDelegate::EndEditHint hint)
{
    switch (hint) {
    case QAbstractItemDelegate::SubmitModelCache:
        moveAfterReturn((QApplication::keyboardModifiers() & Qt::ShiftModifier) != 0);
        break;
    case QAbstractItemDelegate::EditNextItem:
    case QAbstractItemDelegate::EditPreviousItem:
        if (!stepByTab(hint == QAbstractItemDelegate::EditNextItem))
            QTableView::focusNextPrevChild(hint == QAbstractItemDelegate::EditNextItem);
        break;
    case QAbstractItemDelegate::RevertModelCache:
    case QAbstractItemDelegate::NoHint:
        break;
    }
}

bool GridView::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QTableView::viewportEvent(event);
    const auto& help = eventAs<QHelpEvent>(*event);
    const QModelIndex index = indexAt(help.pos());
    const QString text = index.data().toString();
    const int width = index.isValid() ? QFontMetrics{model_.fontOf(model_.cellOf(index))}.horizontalAdvance(text) : 0;
    const bool whole = width + columnEdges < visualRect(index).width();
    QToolTip::showText(help.globalPos(), whole ? QString{} : text.toHtmlEscaped(), viewport());
    return true;
}

void GridView::openFilter(Cell heading, const QPoint& below) { runFilterMenu(*sheet_, heading, below, this); }

} // namespace rf::native::spreadsheet
