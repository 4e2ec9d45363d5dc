#pragma once

#include "linux/spreadsheet_delegate.h"
#include "linux/spreadsheet_panes.h"

#include <QTableView>

namespace rf::native::spreadsheet {

/// The cells on the screen, with the keyboard that people know from spreadsheets.
class GridView final : public QTableView {
public:
    GridView(std::shared_ptr<Sheet> sheet, QWidget* parent);
    GridView(const GridView&) = delete;
    GridView& operator=(const GridView&) = delete;
    ~GridView() override;

    /// Takes over what has changed in the sheet.
    void follow(Change change);
    /// The pixels that a column of so many characters takes.
    [[nodiscard]] int pixelsOf(double characters) const;

    void copy() const;
    void cut();
    /// Puts the clipboard's lines and columns into the cells from the selection's first one on; into none of them when
    /// one is locked.
    void paste();
    void sortSelected(Order order);

    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyboardSearch(const QString&) override { }
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    bool focusNextPrevChild(bool next) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void updateGeometries() override;
    bool viewportEvent(QEvent* event) override;

private:
    [[nodiscard]] CellDelegate* makeDelegate(QObject* parent);
    void afterEditing(QAbstractItemDelegate::EndEditHint hint);
    void arrange();
    void showSelection();
    void tellSelection();
    void measureColumns();
    void afterPersonsChange() const;
    static void refuse();
    /// What the keys do; false for a key that the grid has no use for.
    bool command(const QKeyEvent& event);
    void editInPlace();
    void clearSelected();
    bool toggleTick();
    void moveAfterReturn(bool back);
    void step(int rows, int columns);
    /// To the next cell that takes input; false when there is none, so that the focus goes to the next control.
    bool stepByTab(bool forward);
    [[nodiscard]] Area selectedArea() const;
    void openFilter(Cell heading, const QPoint& below);

    std::shared_ptr<Sheet> sheet_;
    GridModel model_;
    FrozenPanes panes_;
    bool following_ = false;
};

} // namespace rf::native::spreadsheet
