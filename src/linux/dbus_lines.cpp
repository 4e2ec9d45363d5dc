#include "linux/dbus_lines.h"

#include "linux/dbus_call.h"
#include "linux/dbus_protocol.h"

#include <QLibrary>
#include <QRandomGenerator>
#include <algorithm>
#include <atomic>
#include <limits>

namespace rf::native::dbus {

namespace {

/// Qt tells connections apart by names of the program's choice.
QString freshLineName()
{
    static std::atomic<int> last{0};
    return QStringLiteral("line-%1").arg(++last);
}

/// Without a file: a process that is killed would leave it behind. Who is not this user is turned away all the same.
QString freshAddress()
{
    return QStringLiteral("unix:abstract=rf-automation-%1").arg(QRandomGenerator::system()->generate64(), 0, 16);
}

bool isAccepted(const QDBusConnection& line, const QString& process, qulonglong word)
{
    auto greeting = makeCall(process, rootPath(), QStringLiteral("Hello"));
    greeting << word;
    bool isWelcome = false;
    callAndWait(
        line, greeting, [&](const QDBusMessage& reply) { isWelcome = reply.type() == QDBusMessage::ReplyMessage; });
    return isWelcome;
}

} // namespace

void readWithoutLimit(const QDBusConnection& connection)
{
    constexpr int libdbusVersion = 3;
    using SetSize = void (*)(void* connection, long size);
    QLibrary libdbus{QStringLiteral("dbus-1"), libdbusVersion};
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): a resolved name has no type of its own.
    const auto setSize = reinterpret_cast<SetSize>(libdbus.resolve("dbus_connection_set_max_received_size"));
    if (setSize != nullptr)
        setSize(connection.internalPointer(), std::numeric_limits<long>::max());
}

Lines::Lines(QDBusConnection bus, QDBusVirtualObject& receiver)
    : bus_(std::move(bus))
    , receiver_(receiver)
{
}

Lines::~Lines()
{
    for (const auto& [name, connection] : guests_)
        QDBusConnection::disconnectFromPeer(connection.name());
    for (const auto& [process, connection] : lines_)
        QDBusConnection::disconnectFromPeer(connection.name());
}

void Lines::listen()
{
    server_ = std::make_unique<QDBusServer>(freshAddress());
    QObject::connect(server_.get(), &QDBusServer::newConnection, server_.get(),
        [this](const QDBusConnection& connection) { take(connection); });
}

void Lines::take(const QDBusConnection& connection)
{
    forgetBrokenGuests();
    readWithoutLimit(connection);
    QDBusConnection guest{connection};
    guest.registerVirtualObject(rootPath(), &receiver_, QDBusConnection::SubPath);
    guests_.emplace(guest.name(), guest);
}

void Lines::forgetBrokenGuests()
{
    std::erase_if(guests_, [](const auto& entry) {
        if (entry.second.isConnected())
            return false;
        QDBusConnection::disconnectFromPeer(entry.first);
        return true;
    });
}

Lines::Invitation Lines::invite(const QString& process)
{
    if (!server_)
        listen();
    if (!server_->isConnected())
        return {};
    Invitation invitation{server_->address(), QRandomGenerator::system()->generate64()};
    std::erase_if(invited_, [&](const auto& entry) { return entry.second == process; });
    invited_.emplace(invitation.word, process);
    return invitation;
}

bool Lines::accept(const QDBusConnection& line, qulonglong word)
{
    const auto guest = guests_.find(line.name());
    const auto told = invited_.extract(word);
    if (guest == guests_.end() || told.empty())
        return false;
    const auto known = lines_.find(told.mapped());
    if (known != lines_.end() && known->second.isConnected())
        return false;
    close(told.mapped());
    lines_.emplace(told.mapped(), guest->second);
    guests_.erase(guest);
    return true;
}

bool Lines::follow(const QString& process, const Invitation& invitation)
{
    if (invitation.address.isEmpty())
        return false;
    auto line = QDBusConnection::connectToPeer(invitation.address, freshLineName());
    if (line.isConnected()) {
        readWithoutLimit(line);
        line.registerVirtualObject(rootPath(), &receiver_, QDBusConnection::SubPath);
        // While the greeting waits for its answer the process may have come to this one by a line of its own.
        if (isAccepted(line, process, invitation.word) && lines_.emplace(process, line).second)
            return true;
    }
    QDBusConnection::disconnectFromPeer(line.name());
    return false;
}

void Lines::close(const QString& process)
{
    std::erase_if(invited_, [&](const auto& entry) { return entry.second == process; });
    if (const auto line = lines_.extract(process); !line.empty())
        QDBusConnection::disconnectFromPeer(line.mapped().name());
}

QDBusConnection Lines::to(const QString& process) const
{
    const auto line = lines_.find(process);
    return line != lines_.end() && line->second.isConnected() && bus_.isConnected() ? line->second : bus_;
}

QString Lines::senderOf(const QDBusMessage& message, const QDBusConnection& connection) const
{
    if (connection.name() == bus_.name())
        return message.service();
    const auto line
        = std::ranges::find_if(lines_, [&](const auto& entry) { return entry.second.name() == connection.name(); });
    return line == lines_.end() ? QString{} : line->first;
}

} // namespace rf::native::dbus
