#include "linux/spreadsheet_panes.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

namespace rf::native::spreadsheet {

class FrozenPanes::Pane final : public QTableView {
public:
    explicit Pane(QTableView& grid)
        : QTableView(&grid)
        , grid_(grid)
    {
        setFocusPolicy(Qt::NoFocus);
        setFocusProxy(&grid);
        setFrameShape(NoFrame);
        setShowGrid(false);
        horizontalHeader()->hide();
        verticalHeader()->hide();
        horizontalHeader()->setMinimumSectionSize(0);
        verticalHeader()->setMinimumSectionSize(0);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setHorizontalScrollMode(ScrollPerPixel);
        setVerticalScrollMode(ScrollPerPixel);
    }
    using QTableView::edit;

    /// The grid scrolls, and the pane follows it.
    void scrollTo(const QModelIndex&, ScrollHint) override { }

protected:
    /// Only what its open field has no use for comes here.
    void keyPressEvent(QKeyEvent* event) override { event->accept(); }
    void wheelEvent(QWheelEvent* event) override { QCoreApplication::sendEvent(grid_.viewport(), event); }

private:
    QTableView& grid_;
};

FrozenPanes::FrozenPanes(QTableView& grid, MakeDelegate makeDelegate)
    : grid_(grid)
    , makeDelegate_(std::move(makeDelegate))
{
}

FrozenPanes::~FrozenPanes() { freeze(0, 0); }

void FrozenPanes::freeze(int rows, int columns)
{
    if (rows == rows_ && columns == columns_)
        return;
    rows_ = rows;
    columns_ = columns;
    for (Pane*& pane : panes_) {
        delete pane;
        pane = nullptr;
    }
    const auto add = [&](Position position) {
        auto* pane = new Pane{grid_};
        panes_[position] = pane;
        pane->setModel(grid_.model());
        pane->setSelectionModel(grid_.selectionModel());
        pane->setItemDelegate(makeDelegate_(pane));
        if (position == Top)
            QObject::connect(grid_.horizontalScrollBar(), &QScrollBar::valueChanged, pane,
                [pane](int value) { pane->horizontalScrollBar()->setValue(value); });
        if (position == Left)
            QObject::connect(grid_.verticalScrollBar(), &QScrollBar::valueChanged, pane,
                [pane](int value) { pane->verticalScrollBar()->setValue(value); });
        pane->show();
    };
    if (rows_ > 0)
        add(Top);
    if (columns_ > 0)
        add(Left);
    if (rows_ > 0 && columns_ > 0)
        add(Corner);
    follow();
}

void FrozenPanes::follow()
{
    for (Pane* pane : panes_) {
        if (pane == nullptr)
            continue;
        pane->verticalHeader()->setDefaultSectionSize(grid_.verticalHeader()->defaultSectionSize());
        for (int column = 0; column < grid_.model()->columnCount(); ++column) {
            if (pane->columnWidth(column) != grid_.columnWidth(column))
                pane->setColumnWidth(column, grid_.columnWidth(column));
            if (pane->isColumnHidden(column) != grid_.isColumnHidden(column))
                pane->setColumnHidden(column, grid_.isColumnHidden(column));
        }
        for (int row = 0; row < grid_.model()->rowCount(); ++row)
            if (pane->isRowHidden(row) != grid_.isRowHidden(row))
                pane->setRowHidden(row, grid_.isRowHidden(row));
    }
    place();
}

int FrozenPanes::height() const
{
    int total = 0;
    for (int row = 0; row < rows_; ++row)
        total += grid_.rowHeight(row);
    return total;
}

int FrozenPanes::width() const
{
    int total = 0;
    for (int column = 0; column < columns_; ++column)
        total += grid_.columnWidth(column);
    return total;
}

void FrozenPanes::place()
{
    const QRect room = grid_.viewport()->geometry();
    const int high = std::min(height(), room.height());
    const int wide = std::min(width(), room.width());
    if (panes_[Top] != nullptr)
        panes_[Top]->setGeometry(room.left(), room.top(), room.width(), high);
    if (panes_[Left] != nullptr)
        panes_[Left]->setGeometry(room.left(), room.top(), wide, room.height());
    if (panes_[Corner] != nullptr)
        panes_[Corner]->setGeometry(room.left(), room.top(), wide, high);
}

void FrozenPanes::update()
{
    for (Pane* pane : panes_)
        if (pane != nullptr)
            pane->viewport()->update();
}

void FrozenPanes::uncover(const QModelIndex& index)
{
    const QRect cell = grid_.visualRect(index);
    const auto reveal = [](QScrollBar& bar, int covered) {
        if (covered > 0)
            bar.setValue(bar.value() - covered);
    };
    if (!keepsRow(index.row()))
        reveal(*grid_.verticalScrollBar(), height() - cell.top());
    if (!keepsColumn(index.column()))
        reveal(*grid_.horizontalScrollBar(), width() - cell.left());
}

QTableView* FrozenPanes::paneOf(const QModelIndex& index) const
{
    const bool row = keepsRow(index.row());
    const bool column = keepsColumn(index.column());
    if (row && column)
        return panes_[Corner];
    if (row)
        return panes_[Top];
    return column ? panes_[Left] : nullptr;
}

bool FrozenPanes::edit(
    QTableView& pane, const QModelIndex& index, QAbstractItemView::EditTrigger trigger, QEvent* event)
{
    return dynamic_cast<Pane&>(pane).edit(index, trigger, event);
}

} // namespace rf::native::spreadsheet
