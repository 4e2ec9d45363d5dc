#include "linux/spreadsheet_delegate.h"

#include "linux/qt_event.h"
#include "linux/qt_text.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace rf::native::spreadsheet {

namespace {

/// How much of its colour a tint lays over the cell, of 255.
constexpr int selectionTint = 70;
constexpr int gridlineTint = 45;

constexpr int margin = 3;

QRect filterArrow(const QRect& cell)
{
    const int side = std::min(cell.height() - 2, 16);
    return {cell.right() - side, cell.top() + (cell.height() - side) / 2, side, side};
}

Qt::PenStyle penStyle(LineStyle style)
{
    switch (style) {
    case LineStyle::Dash:
        return Qt::DashLine;
    case LineStyle::Dot:
        return Qt::DotLine;
    case LineStyle::Solid:
        return Qt::SolidLine;
    case LineStyle::None:
        break;
    }
    return Qt::NoPen;
}

/// The lines stand where those of the cells meet: on the last pixel of a cell, and on that of the one before.
QLine lineOn(Edge edge, const QRect& rect)
{
    switch (edge) {
    case Edge::Left:
        return {std::max(rect.left() - 1, 0), rect.top(), std::max(rect.left() - 1, 0), rect.bottom()};
    case Edge::Top:
        return {rect.left(), std::max(rect.top() - 1, 0), rect.right(), std::max(rect.top() - 1, 0)};
    case Edge::Bottom:
        return {rect.left(), rect.bottom(), rect.right(), rect.bottom()};
    case Edge::Right:
        break;
    }
    return {rect.right(), rect.top(), rect.right(), rect.bottom()};
}

QColor colorOf(const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const QVariant own = index.data(Qt::ForegroundRole);
    return own.isValid() ? own.value<QColor>() : option.palette.color(QPalette::Text);
}

/// A box in the colour of the cell's text, so that it is seen on every background; a style's own box is not.
void drawBox(QPainter& painter, const QRect& room, const QColor& color, bool ticked)
{
    const int side = std::min(room.height() - 2, 12);
    QRectF box{0, 0, static_cast<qreal>(side), static_cast<qreal>(side)};
    box.moveCenter(QRectF{room}.center());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen{color, 1});
    painter.drawRoundedRect(box, 2, 2);
    if (ticked) {
        const auto at = [&](const QPointF& share) { return box.topLeft() + share * side; };
        const std::array tick{at({0.2, 0.5}), at({0.42, 0.75}), at({0.82, 0.25})};
        painter.setPen(QPen{color, 2});
        painter.drawPolyline(tick.data(), static_cast<int>(tick.size()));
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

} // namespace

CellDelegate::CellDelegate(std::shared_ptr<Sheet> sheet, const GridModel& model, QObject* parent)
    : QStyledItemDelegate(parent)
    , sheet_(std::move(sheet))
    , model_(model)
{
}

bool CellDelegate::isFilterHeading(Cell cell) const
{
    const auto& filter = sheet_->filter();
    return filter && cell.row == filter->first.row && filter->contains(cell);
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const Cell cell = model_.cellOf(index);
    const QVariant background = index.data(Qt::BackgroundRole);
    painter->save();
    painter->fillRect(
        option.rect, background.isValid() ? background.value<QColor>() : option.palette.color(QPalette::Base));
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    const bool current = view != nullptr && view->currentIndex() == index;
    if ((option.state & QStyle::State_Selected) != 0 && !current) {
        QColor tint = option.palette.color(QPalette::Highlight);
        tint.setAlpha(selectionTint);
        painter->fillRect(option.rect, tint);
    }
    drawText(*painter, option, index);
    drawLines(*painter, option.rect, cell, option.palette);
    if (view != nullptr && isFilterHeading(cell)) {
        QStyleOption arrow;
        arrow.rect = filterArrow(option.rect);
        arrow.palette = option.palette;
        arrow.state = QStyle::State_Enabled;
        view->style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, painter, view);
    }
    if (current) {
        painter->setPen(QPen{option.palette.color(QPalette::Highlight), 2});
        painter->drawRect(option.rect.adjusted(1, 1, -1, -1));
    }
    painter->restore();
}

void CellDelegate::drawText(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const Cell cell = model_.cellOf(index);
    QRect room = option.rect.adjusted(margin, 0, -margin - 1, -1);
    if (const auto ticked = sheet_->tick(cell)) {
        drawBox(painter, room, colorOf(option, index), *ticked);
        return;
    }
    if (isFilterHeading(cell))
        room.setRight(filterArrow(option.rect).left());
    painter.setFont(model_.fontOf(cell));
    painter.setPen(colorOf(option, index));
    // A cell is one line; what is longer ends in dots and is told whole by a tip.
    const QString line = index.data().toString().replace(u'\n', u' ').remove(u'\r');
    painter.setClipRect(option.rect);
    painter.drawText(room, index.data(Qt::TextAlignmentRole).toInt() | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(line, Qt::ElideRight, room.width()));
    painter.setClipping(false);
}

void CellDelegate::drawLines(QPainter& painter, const QRect& rect, Cell cell, const QPalette& palette) const
{
    if (sheet_->appearance().gridlines) {
        QColor faint = palette.color(QPalette::Text);
        faint.setAlpha(gridlineTint);
        painter.setPen(faint);
        painter.drawLine(lineOn(Edge::Right, rect));
        painter.drawLine(lineOn(Edge::Bottom, rect));
    }
    for (const Edge edge : {Edge::Left, Edge::Top, Edge::Bottom, Edge::Right}) {
        const Borders& borders = sheet_->formats().borders.at(static_cast<std::size_t>(edge));
        const Qt::PenStyle style = penStyle(borders.style.at(cell));
        if (style == Qt::NoPen)
            continue;
        const std::int32_t color = borders.color.at(cell);
        const QColor shown{color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
        const int width = lineWidthOf(sheet_->generation(), borders.weight.at(cell));
        painter.setPen(QPen{shown, static_cast<qreal>(width), style, Qt::FlatCap});
        painter.drawLine(lineOn(edge, rect));
    }
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const
{
    auto* field = new QLineEdit{parent};
    field->setFrame(false);
    field->setMaxLength(std::numeric_limits<int>::max());
    field->setFont(model_.fontOf(model_.cellOf(index)));
    field->setAccessibleName(
        qtText(columnName(model_.cellOf(index).column)) + QString::number(model_.cellOf(index).row));
    return field;
}

void CellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    // A change elsewhere in the sheet must not take away what is being typed.
    auto* field = qobject_cast<QLineEdit*>(editor);
    if (field != nullptr && !field->isModified())
        field->setText(index.data(Qt::EditRole).toString());
}

void CellDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    const auto* field = qobject_cast<QLineEdit*>(editor);
    if (field == nullptr || !field->isModified())
        return;
    if (!model->setData(index, field->text()))
        refused();
    else
        changed();
}

bool CellDelegate::editorEvent(
    QEvent* event, QAbstractItemModel*, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const Cell cell = model_.cellOf(index);
    if (event->type() != QEvent::MouseButtonPress || !isFilterHeading(cell))
        return false;
    const auto& press = eventAs<QMouseEvent>(*event);
    if (!filterArrow(option.rect).contains(press.position().toPoint()))
        return false;
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    openFilter(cell, view->viewport()->mapToGlobal(option.rect.bottomLeft()));
    return true;
}

bool CellDelegate::eventFilter(QObject* watched, QEvent* event)
{
    auto* editor = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::KeyPress || editor == nullptr)
        return QStyledItemDelegate::eventFilter(watched, event);
    const int key = eventAs<QKeyEvent>(*event).key();
    const bool sideways = key == Qt::Key_Left || key == Qt::Key_Right;
    if (!isArrow(key) || (sideways && !arrowsLeave))
        return QStyledItemDelegate::eventFilter(watched, event);
    emit commitData(editor);
    emit closeEditor(editor, NoHint);
    leave(static_cast<Qt::Key>(key));
    return true;
}

} // namespace rf::native::spreadsheet
