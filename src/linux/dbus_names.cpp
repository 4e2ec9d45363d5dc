#include "linux/dbus_names.h"

#include <algorithm>

namespace rf::native::dbus {

namespace {

/// What the bus itself answers; nothing when it refuses.
template <class Result>
std::optional<Result> askBus(Bridge& bridge, const QString& method, const QList<QVariant>& arguments = {})
{
    auto call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"), method);
    call.setArguments(arguments);
    std::optional<Result> result;
    callAndWait(bridge.connection(), call, [&](const QDBusMessage& reply) {
        if (reply.type() == QDBusMessage::ReplyMessage && reply.arguments().size() == 1)
            result = qdbus_cast<Result>(reply.arguments().front());
    });
    return result;
}

/// The spelling of a name in one of the bus's lists.
std::optional<QString> otherSpelling(Bridge& bridge, const QString& name, const QString& list)
{
    const auto names = askBus<QStringList>(bridge, list).value_or(QStringList{});
    const auto found = std::ranges::find_if(
        names, [&](const QString& known) { return known != name && known.compare(name, Qt::CaseInsensitive) == 0; });
    return found == names.end() ? std::nullopt : std::optional{*found};
}

std::optional<QString> ownerOf(Bridge& bridge, const QString& name)
{
    return askBus<QString>(bridge, QStringLiteral("GetNameOwner"), {name});
}

bool start(Bridge& bridge, const QString& name)
{
    return askBus<uint>(bridge, QStringLiteral("StartServiceByName"), {name, uint{0}}).has_value();
}

} // namespace

QString findOwner(Bridge& bridge, const QString& name)
{
    auto owner = ownerOf(bridge, name);
    if (!owner)
        if (const auto other = otherSpelling(bridge, name, QStringLiteral("ListNames")))
            owner = ownerOf(bridge, *other);
    return owner.value_or(QString{});
}

QString startOwner(Bridge& bridge, const QString& name)
{
    if (QString owner = findOwner(bridge, name); !owner.isEmpty())
        return owner;
    if (start(bridge, name))
        return findOwner(bridge, name);
    const auto other = otherSpelling(bridge, name, QStringLiteral("ListActivatableNames"));
    return other && start(bridge, *other) ? findOwner(bridge, *other) : QString{};
}

} // namespace rf::native::dbus
