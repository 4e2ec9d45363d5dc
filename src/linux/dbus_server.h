#pragma once

#include "linux/dbus_bridge.h"

#include <QStringList>

namespace rf::native::dbus {

/// The classes that this process offers to others, each under its bus name, until this object goes. Whatever others
/// still hold then is taken back.
class Server {
public:
    explicit Server(std::shared_ptr<Bridge> bridge)
        : bridge_(std::move(bridge))
    {
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    ~Server();

    /// Offers the object that `root` gives as that of a class. False when another process offers the class already, or
    /// the class can have no bus name.
    [[nodiscard]] bool exportClass(TextView className, Bridge::Root root);

private:
    std::shared_ptr<Bridge> bridge_;
    QStringList names_;
};

} // namespace rf::native::dbus
