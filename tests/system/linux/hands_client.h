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
#include <stdexcept>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

namespace rf::test {

/// The hands of a person for the windows of another process: one that has loaded the plugin of tests/hands and was told
/// this folder by RF_HANDS. What cannot be done yet, since a window is still to come, is tried for a while; what cannot
/// be done in the end is a `std::runtime_error`.
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
    /// Picks an entry of a box with a list. A program that is still filling the box takes the open list away.
    void choose(const QString& window, const QString& combo, const QString& text)
    {
        constexpr std::chrono::milliseconds aMoment{500};
        require(until([&] {
            insist("open", window, combo);
            return until([&] { return ask("click entry", window, combo, {{"text", text}}); }, aMoment) && rests();
        }),
            combo, " does not offer " + text.toStdString());
    }
    /// Writes over what stands in a field.
    void write(const QString& window, const QString& field, const QString& text)
    {
        click(window, field);
        require(sees(window, field, [](const QJsonObject& seen) { return seen["hasFocus"].toBool(); }), field,
            " does not take the keys");
        press("Ctrl+A");
        type(text);
        require(sees(window, field, [&](const QJsonObject& seen) { return seen["text"].toString() == text; }), field,
            " shows another text");
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

    /// Sets it going and does not wait until it is done.
    void beginClick(const QString& window, const QString& widget) { begin("click", window, widget); }
    void beginType(const QString& text) { begin("type", {}, {}, {{"text", text}}); }
    void beginPress(const QString& keys) { begin("press", {}, {}, {{"keys", keys}}); }

    /// Asks to be told when a widget has been drawn from now on, with this text when there is one, and the process
    /// takes input again. Nothing else may be asked for until `isTold` has answered.
    void awaitDrawn(const QString& window, const QString& widget, const QString& text = {})
    {
        tell(order("await", window, widget, {{"text", text}}));
    }
    /// Asks to be told when a window has gone.
    void awaitGone(const QString& window) { tell(order("await", window, {}, {{"isGone", true}})); }
    /// Waits for what was asked to be told; whether it came about.
    [[nodiscard]] bool isTold() { return reply()["done"].toBool(); }

    [[nodiscard]] std::vector<std::string> clippedTexts()
    {
        std::vector<std::string> texts;
        for (const auto& text : exchange(order("find clipped texts", {}, {}, {}))["texts"].toArray())
            texts.push_back(text.toString().toStdString());
        return texts;
    }
    /// In one line.
    [[nodiscard]] std::string everything()
    {
        return QJsonDocument{exchange(order("look around", {}, {}, {}))}.toJson(QJsonDocument::Compact).toStdString();
    }
    void darken() { insist("darken", {}, {}); }
    void grab(const QString& window, const std::filesystem::path& file)
    {
        insist("grab", window, {}, {{"file", QString::fromStdString(file.string())}});
    }
    [[nodiscard]] bool isThere() { return connection_ >= 0 || connect(); }
    /// Whether it still answers.
    [[nodiscard]] bool isAlive() { return !exchange(order("rest", {}, {}, {})).isEmpty(); }

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
    /// Whatever follows would wait in vain as well.
    void require(bool isDone, const QString& what, const std::string& problem)
    {
        if (!isDone)
            throw std::runtime_error{program_ + ": " + what.toStdString() + problem + "\n" + everything()};
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
    void begin(const char* what, const QString& window, const QString& widget, Details details = {})
    {
        require(until([&] { return ask(what, window, widget, details); }),
            QStringLiteral("cannot %1 \"%2\" \"%3\"").arg(QLatin1StringView{what}, window, widget), "");
    }
    void insist(const char* what, const QString& window, const QString& widget, Details details = {})
    {
        begin(what, window, widget, details);
        require(rests(), QLatin1StringView{what}, " ends nowhere: no input is taken");
    }

    /// An empty answer when the process is not there, or goes.
    [[nodiscard]] QJsonObject exchange(const QJsonObject& question)
    {
        tell(question);
        return reply();
    }
    void tell(const QJsonObject& question)
    {
        if (!isThere())
            return;
        const QByteArray line = QJsonDocument{question}.toJson(QJsonDocument::Compact) + '\n';
        if (send(connection_, line.data(), static_cast<std::size_t>(line.size()), MSG_NOSIGNAL) != line.size())
            letGo();
    }
    [[nodiscard]] QJsonObject reply()
    {
        QByteArray line;
        while (connection_ >= 0 && !line.endsWith('\n')) {
            std::array<char, 4096> part{};
            const auto length = recv(connection_, part.data(), part.size(), 0);
            if (length <= 0)
                letGo();
            else
                line.append(part.data(), length);
        }
        return QJsonDocument::fromJson(line).object();
    }
    [[nodiscard]] bool connect()
    {
        std::error_code error;
        for (const auto& entry : std::filesystem::directory_iterator{folder_, error}) {
            const std::string name = entry.path().filename();
            sockaddr_un address{};
            address.sun_family = AF_UNIX;
            const std::string path = entry.path();
            if (!name.starts_with(program_ + ".") || !name.ends_with(".hands")
                || path.size() >= sizeof address.sun_path)
                continue;
            std::ranges::copy(path, std::begin(address.sun_path));
            connection_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
            // Nobody waits for ever; a process that was told to do much may take its time.
            const timeval limit{.tv_sec = 6 * patience.count(), .tv_usec = 0};
            setsockopt(connection_, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
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
