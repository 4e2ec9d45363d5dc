#pragma once

#include "hands/fingers.h"
#include "hands/lookout.h"

#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>

namespace rf::test {

/// The person in front of this process: does with its windows what a test asks for on a local socket. A question and an
/// answer are a line of JSON each. An order is answered before it is carried out, since it may begin a dialog: whoever
/// gives it looks for its effect, or has asked before to be told of it ("await", which is answered when it is there).
class Hands final : public QObject {
public:
    explicit Hands(const QString& socket);

private:
    void accept();
    void hear(QLocalSocket& test);
    void await(QLocalSocket& test, const QJsonObject& question);
    [[nodiscard]] QJsonObject answer(const QJsonObject& question);
    [[nodiscard]] bool obey(const QString& order, const QJsonObject& details);
    [[nodiscard]] bool onWidget(const QString& order, QWidget& widget, const QJsonObject& details);
    void open(QWidget& combo);
    [[nodiscard]] bool clickEntry(QWidget& widget, const QString& text);
    [[nodiscard]] bool clickCell(QWidget& widget, int row, int column);

    QLocalServer server_;
    Fingers fingers_;
    Lookout lookout_;
};

} // namespace rf::test
