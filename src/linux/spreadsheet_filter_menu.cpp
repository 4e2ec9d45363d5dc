#include "linux/spreadsheet_filter_menu.h"

#include "linux/qt_text.h"

#include <QMenu>

namespace rf::native::spreadsheet {

namespace {

std::set<Text> textsBelow(const Sheet& sheet, Cell heading)
{
    std::set<Text> texts;
    const std::int32_t last = std::min(sheet.filter()->last.row, sheet.usedArea().last.row);
    for (std::int32_t row = heading.row + 1; row <= last; ++row)
        texts.insert(sheet.shown({row, heading.column}));
    return texts;
}

void addSorting(QMenu& menu, Sheet& sheet, Cell heading, const QString& caption, Order order)
{
    QObject::connect(menu.addAction(caption), &QAction::triggered, &menu, [&sheet, heading, order] {
        const Area& list = *sheet.filter();
        if (sheet.sort(list, heading.column - list.first.column + 1, order, true))
            sheet.tellOfPersonsChange();
    });
}

} // namespace

void runFilterMenu(Sheet& sheet, Cell heading, const QPoint& below, QWidget* parent)
{
    if (!sheet.filter() || !sheet.filter()->contains(heading))
        return;
    QMenu menu{parent};
    menu.setObjectName(QStringLiteral("filter"));
    addSorting(menu, sheet, heading, QStringLiteral("A \u2192 Z"), Order::Ascending);
    addSorting(menu, sheet, heading, QStringLiteral("Z \u2192 A"), Order::Descending);
    menu.addSeparator();
    QObject::connect(menu.addAction(QStringLiteral("(\u2731)")), &QAction::triggered, &menu,
        [&] { sheet.setHiddenTexts(heading.column, {}); });
    for (const Text& text : textsBelow(sheet, heading)) {
        QAction* action = menu.addAction(qtText(replaceAll(text, u"&", u"&&")));
        action->setCheckable(true);
        action->setChecked(!sheet.hiddenTexts(heading.column).contains(text));
        QObject::connect(action, &QAction::toggled, &menu, [&sheet, heading, text](bool shown) {
            std::set<Text> hidden = sheet.hiddenTexts(heading.column);
            if (shown)
                hidden.erase(text);
            else
                hidden.insert(text);
            sheet.setHiddenTexts(heading.column, std::move(hidden));
        });
    }
    menu.exec(below);
}

} // namespace rf::native::spreadsheet
