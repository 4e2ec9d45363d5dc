#pragma once

#include "linux/dbus_exports.h"
#include "linux/dbus_value.h"

namespace rf::native::dbus {

class Bridge;
class DbusDispatch;

/// The objects of one message to one process. They count as held by that process from the time they are packed; when
/// the message is not sent after all, they are taken back.
class Parcel final : public ObjectExporter {
public:
    Parcel(Bridge& bridge, QString receiver);
    Parcel(const Parcel&) = delete;
    Parcel& operator=(const Parcel&) = delete;
    ~Parcel() override;

    [[nodiscard]] Packer& packer() { return packer_; }
    /// Values as an argument of the message.
    [[nodiscard]] QVariant pack(std::span<const automation::Variant> values);
    [[nodiscard]] QVariant pack(const automation::Variant& value);
    /// To be said right before the message goes out.
    void seal();

    [[nodiscard]] WireObject exportObject(const std::shared_ptr<automation::Dispatch>& object) override;

private:
    Bridge& bridge_;
    QString receiver_;
    Packer packer_{*this};
    std::vector<Exports::Number> own_;
    std::vector<std::shared_ptr<const DbusDispatch>> others_;
};

} // namespace rf::native::dbus
