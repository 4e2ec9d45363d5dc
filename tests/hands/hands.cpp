#include "hands/hands.h"

#include "hands/eyes.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QJsonDocument>
#include <QPalette>
#include <QPointer>

namespace rf::test {

namespace {

Place placeIn(const QJsonObject& question)
{
    return {question[QStringLiteral("window")].toString(), question[QStringLiteral("widget")].toString()};
}

QPoint pointIn(const QJsonObject& details, const char* x, const char* y, QPoint otherwise)
{
    return {details[QLatin1StringView{x}].toInt(otherwise.x()), details[QLatin1StringView{y}].toInt(otherwise.y())};
}

/// What takes the clicks that are meant for a widget.
QWidget& surfaceOf(QWidget& widget)
{
    auto* const area = dynamic_cast<QAbstractScrollArea*>(&widget);
    return area == nullptr ? widget : *area->viewport();
}

/// The entry of a list or a tree that shows a text.
QModelIndex entryOf(const QAbstractItemView& view, const QString& text)
{
    const QModelIndex first = view.model()->index(0, 0);
    const auto found = view.model()->match(first, Qt::DisplayRole, text, 1, Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? QModelIndex{} : found.front();
}

void send(QLocalSocket& test, const QJsonObject& answer)
{
    test.write(QJsonDocument{answer}.toJson(QJsonDocument::Compact) + '\n');
    test.flush();
}

void darken()
{
    constexpr QColor window{53, 53, 53};
    constexpr QColor base{35, 35, 35};
    QPalette palette{window};
    palette.setColor(QPalette::Base, base);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, Qt::darkGray);
    QApplication::setPalette(palette);
}

} // namespace

Hands::Hands(const QString& socket)
{
    connect(&server_, &QLocalServer::newConnection, this, [this] { accept(); });
    if (!server_.listen(socket))
        qWarning("no hands at %ls: %ls", qUtf16Printable(socket), qUtf16Printable(server_.errorString()));
}

void Hands::accept()
{
    auto* const test = server_.nextPendingConnection();
    connect(test, &QLocalSocket::readyRead, this, [this, test] { hear(*test); });
    connect(test, &QLocalSocket::disconnected, test, &QObject::deleteLater);
}

void Hands::hear(QLocalSocket& test)
{
    while (test.canReadLine()) {
        const QJsonObject question = QJsonDocument::fromJson(test.readLine()).object();
        if (question[QStringLiteral("do")].toString() == u"await")
            await(test, question);
        else
            send(test, answer(question));
    }
}

void Hands::await(QLocalSocket& test, const QJsonObject& question)
{
    lookout_.await(
        {placeIn(question), question[QStringLiteral("text")].toString(), question[QStringLiteral("isGone")].toBool()},
        [heard = QPointer{&test}] {
            if (heard != nullptr)
                send(*heard, {{QStringLiteral("done"), true}});
        });
}

QJsonObject Hands::answer(const QJsonObject& question)
{
    const QString order = question[QStringLiteral("do")].toString();
    if (order == u"look around")
        return {{QStringLiteral("done"), true}, {QStringLiteral("windows"), lookAround()}};
    if (order == u"find clipped texts")
        return {{QStringLiteral("done"), true}, {QStringLiteral("texts"), clippedTexts()}};
    if (order == u"rest")
        return {{QStringLiteral("done"), fingers_.areIdle()}};
    if (order == u"look") {
        const QWidget* const widget = find(placeIn(question));
        return {{QStringLiteral("done"), widget != nullptr},
            {QStringLiteral("seen"), widget == nullptr ? QJsonObject{} : look(*widget)}};
    }
    return {{QStringLiteral("done"), obey(order, question)}};
}

bool Hands::obey(const QString& order, const QJsonObject& details)
{
    if (order == u"type") {
        fingers_.type(details[QStringLiteral("text")].toString());
        return true;
    }
    if (order == u"press") {
        const QKeySequence keys{details[QStringLiteral("keys")].toString()};
        if (keys.isEmpty())
            return false;
        fingers_.press(keys[0].key(), keys[0].keyboardModifiers());
        return true;
    }
    if (order == u"darken") {
        darken();
        return true;
    }
    QWidget* const widget = find(placeIn(details));
    return widget != nullptr && onWidget(order, *widget, details);
}

void Hands::open(QWidget& combo)
{
    // The button of a box ignores clicks for a while behind the one that opens the list; the keyboard does not wait.
    fingers_.click(combo, {combo.height() / 2, combo.height() / 2});
    fingers_.press(Qt::Key_F4, Qt::NoModifier);
}

bool Hands::clickEntry(QWidget& widget, const QString& text)
{
    const auto* const combo = dynamic_cast<QComboBox*>(&widget);
    auto* const view = combo == nullptr ? dynamic_cast<QAbstractItemView*>(&widget) : combo->view();
    if (view == nullptr || !view->isVisible())
        return false;
    const QModelIndex entry = entryOf(*view, text);
    if (!entry.isValid())
        return false;
    view->scrollTo(entry);
    fingers_.click(*view->viewport(), view->visualRect(entry).center());
    return true;
}

bool Hands::clickCell(QWidget& widget, int row, int column)
{
    // A control of a form may have its table inside.
    auto* const self = dynamic_cast<QAbstractItemView*>(&widget);
    auto* const view = self != nullptr ? self : widget.findChild<QAbstractItemView*>();
    if (view == nullptr)
        return false;
    const QModelIndex cell = view->model()->index(row, column);
    if (cell.isValid())
        fingers_.click(*view->viewport(), view->visualRect(cell).center());
    return cell.isValid();
}

bool Hands::onWidget(const QString& order, QWidget& widget, const QJsonObject& details)
{
    QWidget& surface = surfaceOf(widget);
    const QPoint from = pointIn(details, "x", "y", surface.rect().center());
    if (order == u"click")
        fingers_.click(surface, from);
    else if (order == u"double click")
        fingers_.doubleClick(surface, from);
    else if (order == u"drag")
        fingers_.drag(surface, from, pointIn(details, "toX", "toY", from));
    else if (order == u"grab")
        return widget.grab().save(details[QStringLiteral("file")].toString());
    else if (order == u"close")
        fingers_.close(*widget.window());
    else if (order == u"open")
        open(widget);
    else if (order == u"click entry")
        return clickEntry(widget, details[QStringLiteral("text")].toString());
    else if (order == u"click cell")
        return clickCell(widget, details[QStringLiteral("row")].toInt(), details[QStringLiteral("column")].toInt());
    else
        return false;
    return true;
}

} // namespace rf::test
