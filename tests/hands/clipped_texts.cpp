#include "hands/eyes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTableView>
#include <QToolButton>

namespace rf::test {

namespace {

int widthOf(const QWidget& widget, const QString& text)
{
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

int roomFor(const QWidget& widget, QStyle::SubElement contents)
{
    QStyleOptionButton option;
    option.initFrom(&widget);
    return widget.style()->subElementRect(contents, &option, &widget).width();
}

bool fits(const QLabel& label)
{
    if (label.text().isEmpty())
        return true;
    if (label.wordWrap())
        return label.heightForWidth(label.width()) <= label.height();
    return widthOf(label, label.text()) <= label.contentsRect().width() - 2 * label.margin();
}

bool fits(const QAbstractButton& button)
{
    const int needed = widthOf(button, button.text());
    if (button.text().isEmpty())
        return true;
    if (button.inherits("QRadioButton"))
        return needed <= roomFor(button, QStyle::SE_RadioButtonContents);
    if (button.inherits("QCheckBox"))
        return needed <= roomFor(button, QStyle::SE_CheckBoxContents);
    if (button.inherits("QPushButton"))
        return needed <= roomFor(button, QStyle::SE_PushButtonContents);
    const auto* const tool = dynamic_cast<const QToolButton*>(&button);
    return tool == nullptr || tool->toolButtonStyle() == Qt::ToolButtonIconOnly
        || tool->sizeHint().width() <= tool->width();
}

bool fits(const QComboBox& combo)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = combo.isEditable();
    const QRect field
        = combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
    return widthOf(combo, combo.currentText()) <= field.width();
}

bool fits(const QWidget& widget)
{
    if (const auto* const label = dynamic_cast<const QLabel*>(&widget))
        return fits(*label);
    if (const auto* const button = dynamic_cast<const QAbstractButton*>(&widget))
        return fits(*button);
    if (const auto* const combo = dynamic_cast<const QComboBox*>(&widget))
        return fits(*combo);
    if (const auto* const tabs = dynamic_cast<const QTabBar*>(&widget))
        return tabs->sizeHint().width() <= tabs->width() || tabs->usesScrollButtons();
    return true;
}

/// The cells of a table that show less than their whole text.
void addCells(QJsonArray& found, const QTableView& table)
{
    constexpr int margins = 4;
    for (int row = 0; row < table.model()->rowCount(); ++row)
        for (int column = 0; column < table.model()->columnCount(); ++column) {
            const QModelIndex index = table.model()->index(row, column);
            const QVariant font = index.data(Qt::FontRole);
            const QFontMetrics metrics{font.isValid() ? font.value<QFont>() : table.font()};
            const QString text = index.data().toString();
            const QRect cell = table.visualRect(index);
            if (!cell.isEmpty() && metrics.horizontalAdvance(text) + margins > cell.width())
                found.append(QStringLiteral("%1: %2").arg(table.window()->windowTitle(), text));
        }
}

} // namespace

QJsonArray clippedTexts()
{
    QJsonArray found;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible())
            continue;
        for (const QWidget* widget : window->findChildren<QWidget*>()) {
            if (widget->window() != window || !widget->isVisible())
                continue;
            if (!fits(*widget))
                found.append(QStringLiteral("%1: %2").arg(
                    window->windowTitle(), look(*widget).value(QStringLiteral("text")).toString()));
            if (const auto* const table = dynamic_cast<const QTableView*>(widget);
                table != nullptr && table->model() != nullptr)
                addCells(found, *table);
        }
    }
    return found;
}

} // namespace rf::test
