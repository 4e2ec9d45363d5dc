#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServer>
#include <QDBusVirtualObject>
#include <map>
#include <memory>

namespace rf::native::dbus {

/// The connections that this process has with others past the bus. The bus carries every message twice and is a process
/// that has to wake for it; on a line of its own a call takes about half the time. On the bus processes find each
/// other, and hear of each other's end: a line is open only to a process that was invited there, and is used only while
/// this process is on the bus itself.
class Lines {
public:
    /// How a process is told to come: where to, and the word that proves that it was told.
    struct Invitation {
        QString address;
        qulonglong word = 0;
    };

    /// What comes over a line goes to the receiver, which outlives the lines.
    Lines(QDBusConnection bus, QDBusVirtualObject& receiver);
    Lines(const Lines&) = delete;
    Lines& operator=(const Lines&) = delete;
    ~Lines();

    /// An invitation for a process of the bus, good for one line. Without an address where none can be had.
    [[nodiscard]] Invitation invite(const QString& process);
    /// Takes a connection, which said the word, for the line of the process that was invited with it. False when nobody
    /// was.
    [[nodiscard]] bool accept(const QDBusConnection& line, qulonglong word);

    /// Follows an invitation. False when there is nobody, or when the process has a line already; whatever is said goes
    /// over the bus as before.
    [[nodiscard]] bool follow(const QString& process, const Invitation& invitation);
    /// Ends the line of a process; nothing happens without one.
    void close(const QString& process);

    [[nodiscard]] bool leadTo(const QString& process) const { return lines_.contains(process); }
    /// The connection for messages to a process: the line, else the bus.
    [[nodiscard]] QDBusConnection to(const QString& process) const;
    /// The process that sent a message. Empty for a connection that nobody was accepted on.
    [[nodiscard]] QString senderOf(const QDBusMessage& message, const QDBusConnection& connection) const;

private:
    void listen();
    void take(const QDBusConnection& connection);
    void forgetBrokenGuests();

    QDBusConnection bus_;
    QDBusVirtualObject& receiver_;
    std::unique_ptr<QDBusServer> server_;
    /// Who was invited, by the word.
    std::map<qulonglong, QString> invited_;
    /// Connections that have not said a word yet, by name.
    std::map<QString, QDBusConnection> guests_;
    std::map<QString, QDBusConnection> lines_;
};

/// Lets a connection read however much comes at once; the bus bounds it, and the processes of a line know each other.
/// libdbus stops reading while more than a set size of messages is in use, and starts again as the last of them goes.
/// They go on this thread, where Qt cannot start the reading that another one does, and the connection would be deaf
/// from then on.
void readWithoutLimit(const QDBusConnection& connection);

} // namespace rf::native::dbus
