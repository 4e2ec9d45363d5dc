#pragma once

#include "automation/object.h"
#include "linux/dbus_protocol.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QList>
#include <exception>

namespace rf::native::dbus {

/// A value as it travels, (yv).
struct WireValue {
    uchar tag = 0;
    QDBusVariant payload;
};

/// An argument by reference that the callee assigned, (u(yv)).
struct WireAssignment {
    uint position = 0;
    WireValue value;
};

/// An object by the process that has it and its path there, (so). Nothing is an object of no process.
struct WireObject {
    QString owner;
    QDBusObjectPath path;
};

/// References that are given up, (ot).
struct WireRelease {
    QDBusObjectPath path;
    qulonglong count = 0;
};

/// Makes D-Bus know the types above; whoever connects does it first.
void registerWireTypes();

/// A message that the other end cannot have meant: a tag that says something else than its payload, or arguments of
/// other types than the protocol's.
class BadMessage : public std::exception {
public:
    [[nodiscard]] const char* what() const noexcept override { return "not a message of this protocol"; }
};

/// Finds the address under which the receiver of a message reaches an object.
class ObjectExporter {
public:
    virtual ~ObjectExporter() = default;
    [[nodiscard]] virtual WireObject exportObject(const std::shared_ptr<automation::Dispatch>& object) = 0;
};

/// Finds the object behind an address that came with a message. An address that means nothing is a `BadMessage`.
class ObjectImporter {
public:
    virtual ~ObjectImporter() = default;
    [[nodiscard]] virtual std::shared_ptr<automation::Dispatch> importObject(const WireObject& object) = 0;
};

/// Turns the values of one message into what travels. D-Bus bounds the size of a message and how deep its values may
/// nest, and a process that oversteps is thrown off the bus, so what is too large is error 7 and what nests too deep
/// error 13 before anything is sent.
class Packer {
public:
    explicit Packer(ObjectExporter& objects)
        : objects_(objects)
    {
    }
    [[nodiscard]] WireValue pack(const automation::Variant& value);
    [[nodiscard]] QList<WireValue> pack(std::span<const automation::Variant> values);

private:
    void spend(std::size_t bytes);
    [[nodiscard]] WireValue packText(TextView text);
    [[nodiscard]] WireValue packArray(const automation::Array& array);
    [[nodiscard]] WireValue packReference(const automation::Reference& reference);

    ObjectExporter& objects_;
    std::size_t bytes_ = 0;
    int depth_ = 0;
};

/// The value that travelled. A reference gives what it refers to. `BadMessage` when it is none.
[[nodiscard]] automation::Variant unpack(const WireValue& value, ObjectImporter& objects);

[[nodiscard]] inline bool isReference(const WireValue& value) { return value.tag == uchar(Tag::Reference); }

/// Text as D-Bus carries it: as the bytes of its units, since half of a surrogate pair and NUL are no D-Bus string.
[[nodiscard]] QByteArray bytesOf(TextView text);
/// An odd byte at the end belongs to no unit and is left out.
[[nodiscard]] Text textOfBytes(const QByteArray& bytes);

/// An argument of a message whose signature has been checked.
template <class T>
[[nodiscard]] T argumentOf(const QList<QVariant>& arguments, qsizetype position)
{
    return qdbus_cast<T>(arguments.at(position));
}

QDBusArgument& operator<<(QDBusArgument& out, const WireValue& value);
const QDBusArgument& operator>>(const QDBusArgument& in, WireValue& value);
QDBusArgument& operator<<(QDBusArgument& out, const WireAssignment& assignment);
const QDBusArgument& operator>>(const QDBusArgument& in, WireAssignment& assignment);
QDBusArgument& operator<<(QDBusArgument& out, const WireObject& object);
const QDBusArgument& operator>>(const QDBusArgument& in, WireObject& object);
QDBusArgument& operator<<(QDBusArgument& out, const WireRelease& release);
const QDBusArgument& operator>>(const QDBusArgument& in, WireRelease& release);

} // namespace rf::native::dbus
