#include "linux/qt_text.h"
#include "linux/spreadsheet_grid.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>

namespace rf::native::spreadsheet {

namespace {

std::vector<std::vector<Text>> tableOf(const QString& text)
{
    std::vector<std::vector<Text>> rows;
    QStringList lines = QString{text}.remove(u'\r').split(u'\n');
    // The line end behind the last line begins no further one.
    if (lines.size() > 1 && lines.back().isEmpty())
        lines.removeLast();
    for (const QString& line : lines) {
        rows.emplace_back();
        for (const QString& field : line.split(u'\t'))
            rows.back().push_back(textOf(field));
    }
    return rows;
}

bool isEnter(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }

} // namespace

void GridView::keyPressEvent(QKeyEvent* event)
{
    // While a cell is edited only what its field has no use for comes here, such as the Enter key that ends it.
    if (state() == EditingState || command(*event)) {
        event->accept();
        return;
    }
    const bool types = !event->text().isEmpty() && event->text().at(0).isPrint()
        && (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
    if (types && currentIndex().isValid() && (model_.flags(currentIndex()) & Qt::ItemIsEditable) == 0) {
        refuse();
        return;
    }
    QTableView::keyPressEvent(event);
}

bool GridView::command(const QKeyEvent& event)
{
    if (event.matches(QKeySequence::Copy))
        copy();
    else if (event.matches(QKeySequence::Cut))
        cut();
    else if (event.matches(QKeySequence::Paste))
        paste();
    else if (isEnter(event.key()))
        moveAfterReturn((event.modifiers() & Qt::ShiftModifier) != 0);
    else if (event.key() == Qt::Key_Delete || event.key() == Qt::Key_Backspace)
        clearSelected();
    else if (event.key() == Qt::Key_F2)
        editInPlace();
    else if (event.key() == Qt::Key_Down && event.modifiers() == Qt::AltModifier && sheet_->filter())
        openFilter({sheet_->filter()->first.row, model_.cellOf(currentIndex()).column},
            viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
    else
        return event.key() == Qt::Key_Space && toggleTick();
    return true;
}

void GridView::editInPlace()
{
    if (!edit(currentIndex(), EditKeyPressed, nullptr)) {
        refuse();
        return;
    }
    if (auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget()))
        field->end(false);
}

void GridView::clearSelected()
{
    if (!sheet_->clearContents(selectedArea()))
        refuse();
    else
        afterPersonsChange();
}

bool GridView::toggleTick()
{
    const Cell cell = model_.cellOf(currentIndex());
    const auto ticked = sheet_->tick(cell);
    if (!ticked)
        return false;
    if (!sheet_->setValue(Area::of(cell), automation::Variant{*ticked ? emptyBox : tickedBox}))
        refuse();
    else
        afterPersonsChange();
    return true;
}

void GridView::step(int rows, int columns)
{
    int row = currentIndex().row() + rows;
    int column = currentIndex().column() + columns;
    while (row >= 0 && row < model_.rowCount() && isRowHidden(row) && rows != 0)
        row += rows;
    while (column >= 0 && column < model_.columnCount() && isColumnHidden(column) && columns != 0)
        column += columns;
    const QModelIndex target = model_.index(row, column);
    if (target.isValid())
        setCurrentIndex(target);
}

void GridView::moveAfterReturn(bool back)
{
    if (!sheet_->appearance().moveAfterReturn)
        return;
    const int by = back ? -1 : 1;
    switch (sheet_->appearance().moveDirection) {
    case Direction::Down:
        step(by, 0);
        break;
    case Direction::Up:
        step(-by, 0);
        break;
    case Direction::Right:
        step(0, by);
        break;
    case Direction::Left:
        step(0, -by);
        break;
    }
}

bool GridView::stepByTab(bool forward)
{
    const int columns = model_.columnCount();
    // Beyond what is used there is nothing to go to but empty cells without end.
    const Cell used = sheet_->usedArea().last;
    const int rows = std::min(model_.rowCount(), std::max(used.row - model_.viewable().first.row + 1, 1));
    int place = currentIndex().row() * columns + currentIndex().column();
    for (place += forward ? 1 : -1; place >= 0 && place < rows * columns; place += forward ? 1 : -1) {
        const QModelIndex target = model_.index(place / columns, place % columns);
        const bool hidden = isRowHidden(target.row()) || isColumnHidden(target.column());
        if (hidden || (model_.flags(target) & Qt::ItemIsEditable) == 0)
            continue;
        setCurrentIndex(target);
        return true;
    }
    return false;
}

bool GridView::focusNextPrevChild(bool next) { return stepByTab(next) || QTableView::focusNextPrevChild(next); }

void GridView::copy() const
{
    const Area area = selectedArea();
    QStringList lines;
    for (std::int32_t row = area.first.row; row <= area.last.row; ++row) {
        QStringList fields;
        for (std::int32_t column = area.first.column; column <= area.last.column; ++column)
            fields.append(qtText(sheet_->shown({row, column})));
        lines.append(fields.join(u'\t'));
    }
    QApplication::clipboard()->setText(lines.join(u'\n'));
}

void GridView::cut()
{
    copy();
    clearSelected();
}

void GridView::paste()
{
    const QString text = QApplication::clipboard()->text();
    if (text.isEmpty() || !currentIndex().isValid())
        return;
    const auto table = tableOf(text);
    Area target = selectedArea();
    // One value fills everything that is selected; a table takes the place that it needs, up to the end of the sheet.
    const bool fills = table.size() == 1 && table[0].size() == 1;
    if (!fills) {
        const auto widest = std::ranges::max_element(table, {}, &std::vector<Text>::size);
        target.last
            = {std::min(target.first.row + static_cast<std::int32_t>(table.size()) - 1, model_.viewable().last.row),
                std::min(target.first.column + static_cast<std::int32_t>(widest->size()) - 1,
                    model_.viewable().last.column)};
    }
    if (sheet_->refuses(target)) {
        refuse();
        return;
    }
    for (std::int32_t row = target.first.row; row <= target.last.row; ++row)
        for (std::int32_t column = target.first.column; column <= target.last.column; ++column) {
            const auto& fields = table[fills ? 0 : static_cast<std::size_t>(row - target.first.row)];
            const auto field = fills ? 0 : static_cast<std::size_t>(column - target.first.column);
            if (field < fields.size() && sheet_->enter({row, column}, fields[field]) != Sheet::Outcome::Done)
                refuse();
        }
    afterPersonsChange();
}

void GridView::sortSelected(Order order)
{
    const Area used = sheet_->usedArea();
    Area list = selectedArea();
    // One cell stands for its whole list below the headings.
    const std::int32_t column = list.first.column;
    if (list.isOneCell())
        list = {{2, 1}, used.last};
    if (list.rows() < 1 || !sheet_->sort(list, column - list.first.column + 1, order, false))
        refuse();
    else
        afterPersonsChange();
}

} // namespace rf::native::spreadsheet
