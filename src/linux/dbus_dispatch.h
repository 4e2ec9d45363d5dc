#pragma once

#include "automation/object.h"
#include "linux/dbus_bridge.h"

namespace rf::native::dbus {

/// An object of another process. Its references there end with it.
class DbusDispatch final : public automation::Dispatch, public std::enable_shared_from_this<DbusDispatch> {
public:
    DbusDispatch(std::shared_ptr<Bridge> bridge, QString process, QString path);
    DbusDispatch(const DbusDispatch&) = delete;
    DbusDispatch& operator=(const DbusDispatch&) = delete;
    ~DbusDispatch() override;

    automation::Variant invoke(
        TextView member, automation::Invocation kind, std::span<automation::Variant> arguments) override;
    /// The source lives as long as the connection.
    [[nodiscard]] automation::Connection advise(
        const automation::EventInterface& events, automation::EventHandler handler) override;

    [[nodiscard]] const QString& process() const { return process_; }
    [[nodiscard]] const QString& path() const { return path_; }
    [[nodiscard]] bool isOf(const Bridge& bridge) const { return bridge_.get() == &bridge; }
    /// The references that its process has given to this one.
    [[nodiscard]] qulonglong references() const { return references_; }
    void addReference() { ++references_; }

private:
    std::shared_ptr<Bridge> bridge_;
    QString process_;
    QString path_;
    qulonglong references_ = 0;
};

} // namespace rf::native::dbus
