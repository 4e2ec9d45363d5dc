#include "hands/eyes.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextBrowser>
#include <algorithm>

namespace rf::test {

namespace {

/// A caption without the mark of its key.
QString plain(QString caption)
{
    const QString kept{QChar{1}};
    return caption.replace(QStringLiteral("&&"), kept).remove(u'&').replace(kept, QStringLiteral("&"));
}

QString textOf(const QWidget& widget)
{
    if (const auto* combo = dynamic_cast<const QComboBox*>(&widget))
        return combo->currentText();
    if (const auto* lines = dynamic_cast<const QPlainTextEdit*>(&widget))
        return lines->toPlainText();
    if (const auto* page = dynamic_cast<const QTextEdit*>(&widget))
        return page->toPlainText();
    if (widget.isWindow() && !widget.property("text").isValid())
        return widget.windowTitle();
    const QString text = widget.property("text").toString();
    return dynamic_cast<const QLineEdit*>(&widget) != nullptr ? text : plain(text);
}

QWidgetList shownWindows()
{
    QWidgetList windows;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible())
            windows.push_back(window);
    // A dialog hides what is behind it, and the window in front comes before the others.
    const auto rank = [](const QWidget* window) {
        if (window == QApplication::activePopupWidget())
            return 0;
        if (window == QApplication::activeModalWidget())
            return 1;
        return window == QApplication::activeWindow() ? 2 : 3;
    };
    std::ranges::stable_sort(windows, {}, rank);
    return windows;
}

bool isMeant(const QWidget& widget, const QString& name)
{
    return widget.objectName() == name || widget.accessibleName() == name
        || (dynamic_cast<const QAbstractButton*>(&widget) != nullptr && textOf(widget) == name);
}

QJsonArray rowsOf(const QAbstractItemModel& model, const QModelIndex& parent)
{
    QJsonArray rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        rows.append(QJsonObject{{QStringLiteral("text"), index.data().toString()},
            {QStringLiteral("isTicked"), index.data(Qt::CheckStateRole).toInt() == Qt::Checked}});
        for (const auto& below : rowsOf(model, index))
            rows.append(below);
    }
    return rows;
}

} // namespace

QWidget* find(const Place& place)
{
    for (QWidget* window : shownWindows()) {
        if (!place.window.isEmpty() && window->objectName() != place.window && window->windowTitle() != place.window)
            continue;
        if (place.widget.isEmpty())
            return window;
        for (QWidget* widget : window->findChildren<QWidget*>())
            if (widget->window() == window && widget->isVisible() && isMeant(*widget, place.widget))
                return widget;
    }
    return nullptr;
}

QJsonObject look(const QWidget& widget)
{
    QJsonObject seen{{QStringLiteral("name"), widget.objectName()}, {QStringLiteral("spoken"), widget.accessibleName()},
        {QStringLiteral("told"), widget.accessibleDescription()}, {QStringLiteral("text"), textOf(widget)},
        {QStringLiteral("isEnabled"), widget.isEnabled()}, {QStringLiteral("hasFocus"), widget.hasFocus()},
        {QStringLiteral("width"), widget.width()}, {QStringLiteral("height"), widget.height()},
        {QStringLiteral("kind"), QLatin1StringView{widget.metaObject()->className()}}};
    if (const auto* button = dynamic_cast<const QAbstractButton*>(&widget))
        seen.insert(QStringLiteral("isChosen"), button->isChecked());
    if (const auto* view = dynamic_cast<const QAbstractItemView*>(&widget); view != nullptr && view->model() != nullptr)
        seen.insert(QStringLiteral("rows"), rowsOf(*view->model(), {}));
    return seen;
}

QJsonArray lookAround()
{
    QJsonArray windows;
    for (const QWidget* window : shownWindows()) {
        QJsonArray widgets;
        for (const QWidget* widget : window->findChildren<QWidget*>())
            if (widget->window() == window && widget->isVisible()
                && !(widget->objectName() + widget->accessibleName()).isEmpty())
                widgets.append(look(*widget));
        QJsonObject seen = look(*window);
        seen.insert(QStringLiteral("title"), window->windowTitle());
        seen.insert(QStringLiteral("widgets"), widgets);
        windows.append(seen);
    }
    return windows;
}

} // namespace rf::test
