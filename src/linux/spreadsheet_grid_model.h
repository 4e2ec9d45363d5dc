#pragma once

#include "linux/spreadsheet_sheet.h"

#include <QAbstractTableModel>

namespace rf::native::spreadsheet {

/// The cells of a sheet that a person can reach, for Qt's views: row 0 is the first row of the viewable range.
class GridModel final : public QAbstractTableModel {
public:
    explicit GridModel(std::shared_ptr<Sheet> sheet);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// False, with nothing changed, for what the sheet refuses.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    [[nodiscard]] Cell cellOf(const QModelIndex& index) const;
    /// No index for a cell out of reach.
    [[nodiscard]] QModelIndex indexOf(Cell cell) const;
    [[nodiscard]] QFont fontOf(Cell cell) const;
    [[nodiscard]] const Area& viewable() const { return viewable_; }
    /// Takes over which cells can be reached; false when they are the same as before.
    bool follow();
    void refresh();

private:
    std::shared_ptr<Sheet> sheet_;
    Area viewable_;
};

} // namespace rf::native::spreadsheet
