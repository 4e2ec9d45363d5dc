#pragma once

#include "linux/qt_text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPoint>
#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

namespace rf::test {

/// The hands of a person for the windows of another process: one that has loaded the plugin of tests/hands and was told
/// this folder by RF_HANDS. What cannot be done yet, since a window is still to come, is tried for a while.
class HandsOn {
public:
    HandsOn(std::filesystem::path folder, std::string program)
        : folder_(std::move(folder))
        , program_(std::move(program))
    {
    }
    HandsOn(const HandsOn&) = delete;
    HandsOn& operator=(const HandsOn&) = delete;
    ~HandsOn() { letGo(); }

    static constexpr std::chrono::seconds patience{10};

    void click(const QString& window, const QString& widget) { insist("click", window, widget); }
    void clickAt(const QString& window, const QString& widget, QPoint place)
    {
        insist("click", window, widget, {{"x", place.x()}, {"y", place.y()}});
    }
    void doubleClickAt(const QString& window, const QString& widget, QPoint place)
    {
        insist("double click", window, widget, {{"x", place.x()}, {"y", place.y()}});
    }
    void drag(const QString& window, const QString& widget, QPoint from, QPoint to)
    {
        insist("drag", window, widget, {{"x", from.x()}, {"y", from.y()}, {"toX", to.x()}, {"toY", to.y()}});
    }
    void clickEntry(const QString& window, const QString& list, const QString& text)
    {
        insist("click entry", window, list, {{"text", text}});
    }
    void clickCell(const QString& window, const QString& table, int row, int column)
    {
        insist("click cell", window, table, {{"row", row}, {"column", column}});
    }
    void close(const QString& window) { insist("close", window, {}); }
    void type(const QString& text) { insist("type", {}, {}, {{"text", text}}); }
    void press(const QString& keys) { insist("press", {}, {}, {{"keys", keys}}); }
    /// Picks an entry of a box with a list.
    void choose(const QString& window, const QString& combo, const QString& text)
    {
        insist("open", window, combo);
        insist("click entry", window, combo, {{"text", text}});
    }
    /// Writes over what stands in a field.
    void write(const QString& window, const QString& field, const QString& text)
    {
        click(window, field);
        EXPECT_TRUE(sees(window, field, [](const QJsonObject& seen) { return seen["hasFocus"].toBool(); }));
        press("Ctrl+A");
        type(text);
        EXPECT_TRUE(sees(window, field, [&](const QJsonObject& seen) { return seen["text"].toString() == text; }))
            << field.toStdString() << " shows " << look(window, field)["text"].toString().toStdString();
    }

    /// What a widget is like now; nothing when it is not to be seen.
    [[nodiscard]] QJsonObject look(const QString& window, const QString& widget = {})
    {
        return exchange(order("look", window, widget, {}))["seen"].toObject();
    }
    [[nodiscard]] QString textOf(const QString& window, const QString& widget = {})
    {
        return look(window, widget)["text"].toString();
    }
    /// Whether a widget is there before long, and as it is asked for.
    template <class Condition>
    [[nodiscard]] bool sees(
        const QString& window, const QString& widget, Condition condition, std::chrono::milliseconds limit = patience)
    {
        return until(
            [&] {
                const QJsonObject seen = look(window, widget);
                return !seen.isEmpty() && condition(seen);
            },
            limit);
    }
    [[nodiscard]] bool sees(
        const QString& window, const QString& widget = {}, std::chrono::milliseconds limit = patience)
    {
        return sees(
            window, widget, [](const QJsonObject&) { return true; }, limit);
    }
    /// Whether a widget is gone before long.
    [[nodiscard]] bool misses(const QString& window, const QString& widget = {})
    {
        return until([&] { return look(window, widget).isEmpty(); });
    }
    /// Whether all that was asked for is done; also when it has ended the process.
    [[nodiscard]] bool rests()
    {
        return until([&] { return !isThere() || ask("rest", {}, {}); });
    }
    [[nodiscard]] std::vector<std::string> clippedTexts()
    {
        std::vector<std::string> texts;
        for (const auto& text : exchange(order("find clipped texts", {}, {}, {}))["texts"].toArray())
            texts.push_back(text.toString().toStdString());
        return texts;
    }
    [[nodiscard]] std::string everything()
    {
        return QJsonDocument{exchange(order("look around", {}, {}, {}))}.toJson().toStdString();
    }
    void darken() { insist("darken", {}, {}); }
    void grab(const QString& window, const std::filesystem::path& file)
    {
        insist("grab", window, {}, {{"file", QString::fromStdString(file.string())}});
    }
    [[nodiscard]] bool isThere() { return connection_ >= 0 || connect(); }

private:
    using Details = std::initializer_list<std::pair<QString, QJsonValue>>;

    template <class Condition>
    [[nodiscard]] static bool until(Condition&& condition, std::chrono::milliseconds limit = patience)
    {
        constexpr std::chrono::milliseconds step{5};
        const auto end = std::chrono::steady_clock::now() + limit;
        while (!condition()) {
            if (std::chrono::steady_clock::now() > end)
                return false;
            std::this_thread::sleep_for(step);
        }
        return true;
    }
    [[nodiscard]] static QJsonObject order(
        const char* what, const QString& window, const QString& widget, Details details)
    {
        QJsonObject question{{"do", QLatin1StringView{what}}, {"window", window}, {"widget", widget}};
        for (const auto& [name, value] : details)
            question.insert(name, value);
        return question;
    }
    [[nodiscard]] bool ask(const char* what, const QString& window, const QString& widget, Details details = {})
    {
        return exchange(order(what, window, widget, details))["done"].toBool();
    }
    void insist(const char* what, const QString& window, const QString& widget, Details details = {})
    {
        // Whatever follows would wait in vain as well.
        if (!until([&] { return ask(what, window, widget, details); }))
            throw std::runtime_error{program_ + ": cannot " + what + " \"" + window.toStdString() + "\" \""
                + widget.toStdString() + "\"\n" + everything()};
        EXPECT_TRUE(rests()) << program_ << " takes no input";
    }

    /// An empty answer when the process is not there, or goes.
    [[nodiscard]] QJsonObject exchange(const QJsonObject& question)
    {
        if (!isThere())
            return {};
        const QByteArray line = QJsonDocument{question}.toJson(QJsonDocument::Compact) + '\n';
        if (send(connection_, line.data(), static_cast<std::size_t>(line.size()), MSG_NOSIGNAL) != line.size()) {
            letGo();
            return {};
        }
        QByteArray reply;
        while (!reply.endsWith('\n')) {
            std::array<char, 4096> part{};
            const auto length = recv(connection_, part.data(), part.size(), 0);
            if (length <= 0) {
                letGo();
                return {};
            }
            reply.append(part.data(), length);
        }
        return QJsonDocument::fromJson(reply).object();
    }
    [[nodiscard]] bool connect()
    {
        std::error_code error;
        for (const auto& entry : std::filesystem::directory_iterator{folder_, error}) {
            const std::string name = entry.path().filename();
            if (!name.starts_with(program_ + ".") || !name.ends_with(".hands"))
                continue;
            sockaddr_un address{};
            address.sun_family = AF_UNIX;
            std::ranges::copy(entry.path().string(), std::begin(address.sun_path));
            connection_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
            // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the address of every family is passed so.
            if (::connect(connection_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
                return true;
            letGo();
        }
        return false;
    }
    void letGo()
    {
        if (connection_ >= 0)
            ::close(connection_);
        connection_ = -1;
    }

    std::filesystem::path folder_;
    std::string program_;
    int connection_ = -1;
};

} // namespace rf::test
