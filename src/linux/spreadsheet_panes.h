#pragma once

#include <QTableView>
#include <array>
#include <functional>

namespace rf::native::spreadsheet {

/// The rows and columns that stay in place while the grid scrolls: up to three views over the edges of the grid's own,
/// with the same cells, selection and drawing.
class FrozenPanes {
public:
    /// Makes the drawing and editing of a pane's cells, which belongs to the parent.
    using MakeDelegate = std::function<QAbstractItemDelegate*(QObject* parent)>;

    FrozenPanes(QTableView& grid, MakeDelegate makeDelegate);
    FrozenPanes(const FrozenPanes&) = delete;
    FrozenPanes& operator=(const FrozenPanes&) = delete;
    ~FrozenPanes();

    /// How many rows and columns from the first on stay; 0 for none.
    void freeze(int rows, int columns);
    /// Takes over sizes and hidden rows and columns from the grid.
    void follow();
    void place();
    void update();
    /// Moves the grid so that a cell that is not frozen does not lie below the panes.
    void uncover(const QModelIndex& index);
    /// The view that shows a cell; null when that is the grid itself.
    [[nodiscard]] QTableView* paneOf(const QModelIndex& index) const;
    [[nodiscard]] bool keepsRow(int row) const { return row < rows_; }
    [[nodiscard]] bool keepsColumn(int column) const { return column < columns_; }
    /// Opens a cell's field in its pane.
    static bool edit(QTableView& pane, const QModelIndex& index, QAbstractItemView::EditTrigger trigger, QEvent* event);

private:
    class Pane;
    /// Over the upper edge, over the left one, over the corner.
    enum Position : std::size_t { Top, Left, Corner };

    [[nodiscard]] int height() const;
    [[nodiscard]] int width() const;

    QTableView& grid_;
    MakeDelegate makeDelegate_;
    std::array<Pane*, 3> panes_{};
    int rows_ = 0;
    int columns_ = 0;
};

} // namespace rf::native::spreadsheet
