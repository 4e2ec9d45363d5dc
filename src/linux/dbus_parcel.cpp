#include "linux/dbus_parcel.h"

#include "linux/dbus_bridge.h"
#include "linux/dbus_call.h"
#include "linux/dbus_dispatch.h"

namespace rf::native::dbus {

using automation::Dispatch;
using automation::Variant;

Parcel::Parcel(Bridge& bridge, QString receiver)
    : bridge_(bridge)
    , receiver_(std::move(receiver))
{
}

Parcel::~Parcel()
{
    for (const auto number : own_)
        bridge_.exports_.release(number, receiver_, 1);
}

QVariant Parcel::pack(std::span<const Variant> values) { return QVariant::fromValue(packer_.pack(values)); }

QVariant Parcel::pack(const Variant& value) { return QVariant::fromValue(packer_.pack(value)); }

void Parcel::seal()
{
    own_.clear();
    for (const auto& object : others_) {
        auto message = makeCall(object->process(), rootPath(), QStringLiteral("AddRef"));
        message << QVariant::fromValue(QDBusObjectPath{object->path()}) << receiver_;
        // Answered before the object goes out: the receiver may give it back at once, by another way than this call's.
        // Should the owner have gone, the receiver finds out as everybody does: by using the object.
        callAndWait(bridge_.connectionTo(object->process()), message, [](const QDBusMessage&) {});
    }
}

WireObject Parcel::exportObject(const std::shared_ptr<Dispatch>& object)
{
    if (!object)
        return {{}, QDBusObjectPath{rootPath()}};
    if (const auto proxy = std::dynamic_pointer_cast<const DbusDispatch>(object); proxy && proxy->isOf(bridge_)) {
        if (proxy->process() != receiver_)
            others_.push_back(proxy);
        return {proxy->process(), QDBusObjectPath{proxy->path()}};
    }
    const auto number = bridge_.exports_.hold(object, receiver_);
    own_.push_back(number);
    bridge_.watch(receiver_);
    return {bridge_.ownName(), QDBusObjectPath{objectPath(number)}};
}

} // namespace rf::native::dbus
