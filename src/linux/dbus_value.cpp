#include "linux/dbus_value.h"

#include "linux/dbus_error.h"

#include <QDBusMetaType>
#include <QtEndian>

namespace rf::native::dbus {

using automation::Array;
using automation::Dispatch;
using automation::Missing;
using automation::Null;
using automation::Reference;
using automation::Variant;

/// An array as it travels, (a(ii)a(yv)).
struct WireDimension {
    int lowerBound = 0;
    int size = 0;
};
struct WireArray {
    QList<WireDimension> dimensions;
    QList<WireValue> values;
};

namespace {

/// The longest array of D-Bus, and the arguments of a call are one. What is counted for a value is at least what its
/// tag, its signature and its padding take.
constexpr std::size_t largestMessage = 64U << 20U;
constexpr std::size_t frameOfValue = 32;
constexpr std::size_t frameOfStructure = 64;
/// Each array inside another one takes four of the 64 levels that D-Bus allows.
constexpr int deepestNesting = 8;

template <class T>
WireValue tagged(Tag tag, const T& payload)
{
    return {static_cast<uchar>(tag), QDBusVariant{QVariant::fromValue(payload)}};
}

/// D-Bus has no value without content, so a kind that has none carries a zero.
WireValue tagged(Tag tag) { return tagged(tag, uchar{0}); }

template <class T>
T simple(const QVariant& payload)
{
    if (payload.metaType() != QMetaType::fromType<T>())
        throw BadMessage{};
    return payload.value<T>();
}

/// Reading an argument of another shape would make libdbus end the process, hence the look at its signature.
template <class T>
T structured(const QVariant& payload, QLatin1StringView signature)
{
    const auto argument = simple<QDBusArgument>(payload);
    if (argument.currentSignature() != signature)
        throw BadMessage{};
    return qdbus_cast<T>(argument);
}

Text unpackText(const QByteArray& bytes)
{
    if (bytes.size() % 2 != 0)
        throw BadMessage{};
    return textOfBytes(bytes);
}

Array::Dimension unpackDimension(const WireDimension& dimension)
{
    if (dimension.size < 0)
        throw BadMessage{};
    return {dimension.lowerBound, dimension.size};
}

/// Whether the dimensions span exactly the values that came; their product may not even fit a number.
bool span(const std::vector<Array::Dimension>& dimensions, std::size_t count)
{
    if (dimensions.empty())
        return count == 0;
    std::size_t product = 1;
    for (const auto& dimension : dimensions)
        if (__builtin_mul_overflow(product, static_cast<std::size_t>(dimension.size), &product))
            return false;
    return product == count;
}

Variant unpackArray(const WireArray& wire, ObjectImporter& objects)
{
    Array array;
    for (const auto& dimension : wire.dimensions)
        array.dimensions.push_back(unpackDimension(dimension));
    if (!span(array.dimensions, static_cast<std::size_t>(wire.values.size())))
        throw BadMessage{};
    array.values.reserve(static_cast<std::size_t>(wire.values.size()));
    for (const auto& value : wire.values)
        array.values.push_back(unpack(value, objects));
    return array;
}

} // namespace

// Read and written by D-Bus itself, which finds them by the namespace of their types.
QDBusArgument& operator<<(QDBusArgument& out, const WireDimension& dimension);
const QDBusArgument& operator>>(const QDBusArgument& in, WireDimension& dimension);
QDBusArgument& operator<<(QDBusArgument& out, const WireArray& array);
const QDBusArgument& operator>>(const QDBusArgument& in, WireArray& array);

QDBusArgument& operator<<(QDBusArgument& out, const WireDimension& dimension)
{
    out.beginStructure();
    out << dimension.lowerBound << dimension.size;
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, WireDimension& dimension)
{
    in.beginStructure();
    in >> dimension.lowerBound >> dimension.size;
    in.endStructure();
    return in;
}

QDBusArgument& operator<<(QDBusArgument& out, const WireArray& array)
{
    out.beginStructure();
    out << array.dimensions << array.values;
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, WireArray& array)
{
    in.beginStructure();
    in >> array.dimensions >> array.values;
    in.endStructure();
    return in;
}

QDBusArgument& operator<<(QDBusArgument& out, const WireValue& value)
{
    out.beginStructure();
    out << value.tag << value.payload;
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, WireValue& value)
{
    in.beginStructure();
    in >> value.tag >> value.payload;
    in.endStructure();
    return in;
}

QDBusArgument& operator<<(QDBusArgument& out, const WireAssignment& assignment)
{
    out.beginStructure();
    out << assignment.position << assignment.value;
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, WireAssignment& assignment)
{
    in.beginStructure();
    in >> assignment.position >> assignment.value;
    in.endStructure();
    return in;
}

QDBusArgument& operator<<(QDBusArgument& out, const WireObject& object)
{
    out.beginStructure();
    out << object.owner << object.path;
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, WireObject& object)
{
    in.beginStructure();
    in >> object.owner >> object.path;
    in.endStructure();
    return in;
}

QDBusArgument& operator<<(QDBusArgument& out, const WireRelease& release)
{
    out.beginStructure();
    out << release.path << release.count;
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, WireRelease& release)
{
    in.beginStructure();
    in >> release.path >> release.count;
    in.endStructure();
    return in;
}

QByteArray bytesOf(TextView text)
{
    QByteArray bytes(static_cast<qsizetype>(text.size() * sizeof(char16_t)), Qt::Uninitialized);
    if (!text.empty())
        qToLittleEndian<quint16>(text.data(), static_cast<qsizetype>(text.size()), bytes.data());
    return bytes;
}

Text textOfBytes(const QByteArray& bytes)
{
    Text text(static_cast<std::size_t>(bytes.size()) / sizeof(char16_t), u'\0');
    if (!text.empty())
        qFromLittleEndian<quint16>(bytes.constData(), static_cast<qsizetype>(text.size()), text.data());
    return text;
}

void registerWireTypes()
{
    qDBusRegisterMetaType<WireDimension>();
    qDBusRegisterMetaType<QList<WireDimension>>();
    qDBusRegisterMetaType<WireValue>();
    qDBusRegisterMetaType<QList<WireValue>>();
    qDBusRegisterMetaType<WireArray>();
    qDBusRegisterMetaType<WireObject>();
    qDBusRegisterMetaType<WireAssignment>();
    qDBusRegisterMetaType<QList<WireAssignment>>();
    qDBusRegisterMetaType<WireRelease>();
    qDBusRegisterMetaType<QList<WireRelease>>();
}

void Packer::spend(std::size_t bytes)
{
    if (bytes > largestMessage - bytes_)
        throw errorOf(error_number::outOfMemory);
    bytes_ += bytes;
}

WireValue Packer::packText(TextView text)
{
    spend(text.size() * sizeof(char16_t));
    return tagged(Tag::Text, bytesOf(text));
}

WireValue Packer::packArray(const Array& array)
{
    if (depth_ == deepestNesting)
        throw RuntimeError{error_number::typeMismatch};
    ++depth_;
    spend(frameOfStructure + array.dimensions.size() * sizeof(WireDimension));
    WireArray wire;
    for (const auto& dimension : array.dimensions)
        wire.dimensions.push_back({dimension.lowerBound, dimension.size});
    wire.values = pack(array.values);
    --depth_;
    return tagged(Tag::Array, wire);
}

WireValue Packer::packReference(const Reference& reference)
{
    return tagged(
        Tag::Reference, reference.target == nullptr ? tagged(Tag::Empty) : pack(reference.target->dereferenced()));
}

QList<WireValue> Packer::pack(std::span<const Variant> values)
{
    QList<WireValue> packed;
    packed.reserve(static_cast<qsizetype>(values.size()));
    for (const auto& value : values)
        packed.push_back(pack(value));
    return packed;
}

WireValue Packer::pack(const Variant& value)
{
    spend(frameOfValue);
    struct {
        Packer& packer;
        WireValue operator()(std::monostate) const { return tagged(Tag::Empty); }
        WireValue operator()(Null) const { return tagged(Tag::Null); }
        WireValue operator()(Missing) const { return tagged(Tag::Missing); }
        WireValue operator()(bool held) const { return tagged(Tag::Boolean, held); }
        WireValue operator()(std::uint8_t held) const { return tagged(Tag::Byte, uchar{held}); }
        WireValue operator()(std::int16_t held) const { return tagged(Tag::Int16, short{held}); }
        WireValue operator()(std::int32_t held) const { return tagged(Tag::Int32, int{held}); }
        WireValue operator()(float held) const { return tagged(Tag::Single, double{held}); }
        WireValue operator()(double held) const { return tagged(Tag::Double, held); }
        WireValue operator()(Currency held) const
        {
            return tagged(Tag::Currency, static_cast<qlonglong>(held.tenThousandths()));
        }
        WireValue operator()(Date held) const { return tagged(Tag::Date, held.days()); }
        WireValue operator()(const Text& held) const { return packer.packText(held); }
        WireValue operator()(const std::shared_ptr<Dispatch>& held) const
        {
            packer.spend(frameOfStructure);
            return tagged(Tag::Object, packer.objects_.exportObject(held));
        }
        WireValue operator()(const std::shared_ptr<const Array>& held) const { return packer.packArray(*held); }
        WireValue operator()(const Reference& held) const { return packer.packReference(held); }
    } const packEach{*this};
    return std::visit(packEach, value.value());
}

Variant unpack(const WireValue& value, ObjectImporter& objects)
{
    const QVariant payload = value.payload.variant();
    switch (static_cast<Tag>(value.tag)) {
    case Tag::Empty:
        return {};
    case Tag::Null:
        return Null{};
    case Tag::Missing:
        return Missing{};
    case Tag::Boolean:
        return simple<bool>(payload);
    case Tag::Byte:
        return std::uint8_t{simple<uchar>(payload)};
    case Tag::Int16:
        return std::int16_t{simple<short>(payload)};
    case Tag::Int32:
        return std::int32_t{simple<int>(payload)};
    case Tag::Single:
        return static_cast<float>(simple<double>(payload));
    case Tag::Double:
        return simple<double>(payload);
    case Tag::Currency:
        return Currency::fromTenThousandths(simple<qlonglong>(payload));
    case Tag::Date:
        return Date{simple<double>(payload)};
    case Tag::Text:
        return unpackText(simple<QByteArray>(payload));
    case Tag::Object:
        return objects.importObject(structured<WireObject>(payload, QLatin1StringView{"(so)"}));
    case Tag::Array:
        return unpackArray(structured<WireArray>(payload, QLatin1StringView{"(a(ii)a(yv))"}), objects);
    case Tag::Reference:
        return unpack(structured<WireValue>(payload, QLatin1StringView{"(yv)"}), objects);
    }
    throw BadMessage{};
}

} // namespace rf::native::dbus
