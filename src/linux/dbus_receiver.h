#pragma once

#include <QDBusMessage>
#include <QDBusVirtualObject>

namespace rf::native::dbus {

class Bridge;

/// Answers the calls of other processes. No exception leaves it.
///
/// A call that comes while another one waits for its reply is answered nested in it. How deep that goes is limited,
/// so that two processes that call each other without end, or many sinks that never answer, cost an error and not
/// the process.
class Receiver final : public QDBusVirtualObject {
public:
    explicit Receiver(Bridge& bridge)
        : bridge_(bridge)
    {
    }

    /// The members differ from object to object and are found by trying, so there is nothing to tell.
    [[nodiscard]] QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    [[nodiscard]] QDBusMessage answer(const QDBusMessage& message, const QDBusConnection& connection);

    Bridge& bridge_;
    int depth_ = 0;
};

} // namespace rf::native::dbus
