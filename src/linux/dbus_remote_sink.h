#pragma once

#include "automation/events.h"

#include <QString>
#include <memory>
#include <span>

namespace rf::native::dbus {

class Bridge;

/// The source's side of a handler in another process: calls it and waits for its answer. Whether it fails is no
/// concern of the source; one whose process has gone, or does not speak the protocol, is disconnected.
class RemoteSink {
public:
    RemoteSink(std::weak_ptr<Bridge> bridge, QString process, quint64 number);

    void operator()(TextView event, std::span<automation::Variant> arguments) const;

private:
    std::weak_ptr<Bridge> bridge_;
    QString process_;
    quint64 number_;
};

} // namespace rf::native::dbus
