#pragma once

#include "linux/spreadsheet_grid_model.h"

#include <QStyledItemDelegate>

namespace rf::native::spreadsheet {

/// Draws a cell and opens the field in which it is edited.
class CellDelegate final : public QStyledItemDelegate {
public:
    CellDelegate(std::shared_ptr<Sheet> sheet, const GridModel& model, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QWidget* createEditor(
        QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Whether the arrows leave the field, as they do after typing into a cell, or move within its text.
    bool arrowsLeave = true;
    /// An arrow key that leaves the field, when the field has gone.
    std::function<void(Qt::Key key)> leave;
    /// Opens the filter of a column below its heading.
    std::function<void(Cell heading, const QPoint& below)> openFilter;
    std::function<void()> refused;
    std::function<void()> changed;

private:
    void drawText(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void drawLines(QPainter& painter, const QRect& rect, Cell cell, const QPalette& palette) const;
    [[nodiscard]] bool isFilterHeading(Cell cell) const;

    std::shared_ptr<Sheet> sheet_;
    const GridModel& model_;
};

} // namespace rf::native::spreadsheet
