#include "linux/dbus_server.h"

namespace rf::native::dbus {

Server::~Server()
{
    for (const QString& name : names_) {
        bridge_->connection().unregisterService(name);
        bridge_->withdraw(name);
    }
    bridge_->withdrawAll();
}

bool Server::exportClass(TextView className, Bridge::Root root)
{
    const QString name = busName(className);
    if (name.isEmpty())
        return false;
    // The first call may come as soon as the name is there.
    bridge_->offer(name, std::move(root));
    if (!bridge_->connection().registerService(name)) {
        bridge_->withdraw(name);
        return false;
    }
    names_.push_back(name);
    return true;
}

} // namespace rf::native::dbus
