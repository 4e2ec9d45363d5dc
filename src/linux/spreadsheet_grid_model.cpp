#include "linux/spreadsheet_grid_model.h"

#include "linux/qt_text.h"

#include <QColor>
#include <QFont>

namespace rf::native::spreadsheet {

namespace {

Qt::Alignment alignmentOf(const Sheet& sheet, Cell cell)
{
    switch (sheet.formats().alignment.at(cell)) {
    case Alignment::Left:
        return Qt::AlignLeft | Qt::AlignVCenter;
    case Alignment::Center:
        return Qt::AlignCenter;
    case Alignment::Right:
        return Qt::AlignRight | Qt::AlignVCenter;
    case Alignment::General:
        break;
    }
    const auto value = sheet.value(cell);
    if (value.is<bool>())
        return Qt::AlignCenter;
    // A text stands at the side where its script begins.
    if (value.is<Text>())
        return (qtText(value.text()).isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
    return Qt::AlignRight | Qt::AlignVCenter;
}

QColor colorOf(std::int32_t color) { return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF}; }

/// Black or white, whichever can be read on the cell's own background.
QColor readableOn(const QColor& background)
{
    constexpr int middle = 127;
    return background.lightness() > middle ? Qt::black : Qt::white;
}

} // namespace

GridModel::GridModel(std::shared_ptr<Sheet> sheet)
    : sheet_(std::move(sheet))
    , viewable_(sheet_->appearance().viewable)
{
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : viewable_.rows(); }

int GridModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : viewable_.columns(); }

Cell GridModel::cellOf(const QModelIndex& index) const
{
    return {viewable_.first.row + index.row(), viewable_.first.column + index.column()};
}

QModelIndex GridModel::indexOf(Cell cell) const
{
    if (!viewable_.contains(cell))
        return {};
    return index(cell.row - viewable_.first.row, cell.column - viewable_.first.column);
}

QFont GridModel::fontOf(Cell cell) const
{
    const Formats& formats = sheet_->formats();
    QFont font{qtText(formats.fontName.at(cell))};
    font.setPointSizeF(std::max(formats.fontSize.at(cell), 1.0));
    font.setBold(formats.bold.at(cell));
    return font;
}

QVariant GridModel::data(const QModelIndex& index, int role) const
{
    const Cell cell = cellOf(index);
    switch (role) {
    case Qt::DisplayRole:
        return qtText(sheet_->shown(cell));
    case Qt::AccessibleTextRole:
        if (const auto ticked = sheet_->tick(cell))
            return QString{QChar{*ticked ? u'\u2611' : u'\u2610'}};
        return qtText(sheet_->shown(cell));
    case Qt::EditRole:
        return qtText(sheet_->input(cell));
    case Qt::TextAlignmentRole:
        return static_cast<int>(alignmentOf(*sheet_, cell));
    case Qt::FontRole:
        return fontOf(cell);
    case Qt::BackgroundRole:
        if (const auto color = sheet_->formats().interior.at(cell))
            return colorOf(*color);
        return {};
    case Qt::ForegroundRole:
        if (const auto color = sheet_->formats().interior.at(cell))
            return readableOn(colorOf(*color));
        return {};
    default:
        return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    return orientation == Qt::Horizontal ? QVariant{qtText(columnName(viewable_.first.column + section))}
                                         : QVariant{viewable_.first.row + section};
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags reachable = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return sheet_->refuses(Area::of(cellOf(index))) ? reachable : reachable | Qt::ItemIsEditable;
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole)
        return false;
    const Text typed = textOf(value.toString());
    // What was only looked at is not typed anew: an amount of money would become a plain number.
    if (typed == sheet_->input(cellOf(index)))
        return true;
    return sheet_->enter(cellOf(index), typed) == Sheet::Outcome::Done;
}

bool GridModel::follow()
{
    if (viewable_ == sheet_->appearance().viewable)
        return false;
    beginResetModel();
    viewable_ = sheet_->appearance().viewable;
    endResetModel();
    return true;
}

void GridModel::refresh() { emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1)); }

} // namespace rf::native::spreadsheet
