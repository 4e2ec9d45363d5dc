#include "windows/com_variant.h"

#include "windows/com_error.h"

#include <cstring>
#include <limits>
#include <numeric>

namespace rf::native::com {

namespace {

using automation::Array;
using automation::Variant;

template <class T>
T load(const void* at)
{
    T value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

template <class Integer>
Variant wholeNumber(Integer number)
{
    if (std::in_range<std::int32_t>(number))
        return static_cast<std::int32_t>(number);
    return static_cast<double>(number);
}

double decimalNumber(DECIMAL decimal)
{
    double number = 0;
    check(VarR8FromDec(&decimal, &number));
    return number;
}

std::size_t countOf(const std::vector<Array::Dimension>& dimensions)
{
    return std::transform_reduce(dimensions.begin(), dimensions.end(), std::size_t{1}, std::multiplies<>{},
        [](const Array::Dimension& dimension) { return static_cast<std::size_t>(dimension.size); });
}

/// Where a safe array has the value that stands at `position` in row order: there the first index runs fastest.
std::size_t columnPosition(const std::vector<Array::Dimension>& dimensions, std::size_t position)
{
    std::size_t stride = countOf(dimensions);
    std::size_t result = 0;
    for (auto dimension = dimensions.rbegin(); dimension != dimensions.rend(); ++dimension) {
        const auto size = static_cast<std::size_t>(dimension->size);
        stride /= size;
        result += position % size * stride;
        position /= size;
    }
    return result;
}

Variant readValue(VARTYPE type, const void* at, ObjectMap& objects);

std::vector<Array::Dimension> dimensionsOf(SAFEARRAY* array)
{
    std::vector<Array::Dimension> dimensions(SafeArrayGetDim(array));
    for (UINT index = 0; index < dimensions.size(); ++index) {
        LONG lower = 0;
        LONG upper = -1;
        check(SafeArrayGetLBound(array, index + 1, &lower));
        check(SafeArrayGetUBound(array, index + 1, &upper));
        dimensions[index] = {lower, upper - lower + 1};
    }
    return dimensions;
}

Variant readArray(VARTYPE elementType, SAFEARRAY* array, ObjectMap& objects)
{
    // A dynamic array that was never given a size.
    if (array == nullptr)
        return Array{};
    Array result{dimensionsOf(array), {}};
    const SafeArrayData data{array};
    const std::size_t count = countOf(result.dimensions);
    result.values.reserve(count);
    for (std::size_t position = 0; position < count; ++position)
        result.values.push_back(readValue(elementType, data.at(columnPosition(result.dimensions, position)), objects));
    return result;
}

/// The value of a kind that lies in memory: within a VARIANT, behind a reference or in an array.
Variant readValue(VARTYPE type, const void* at, ObjectMap& objects)
{
    if ((type & VT_ARRAY) != 0)
        return readArray(type & VT_TYPEMASK, load<SAFEARRAY*>(at), objects);
    switch (type) {
    case VT_EMPTY:
        return {};
    case VT_NULL:
        return automation::Null{};
    case VT_ERROR:
        return automation::Missing{};
    case VT_BOOL:
        return load<VARIANT_BOOL>(at) != VARIANT_FALSE;
    case VT_UI1:
        return load<std::uint8_t>(at);
    case VT_I1:
        return wholeNumber(load<std::int8_t>(at));
    case VT_I2:
        return load<std::int16_t>(at);
    case VT_UI2:
        return wholeNumber(load<std::uint16_t>(at));
    case VT_I4:
    case VT_INT:
        return load<std::int32_t>(at);
    case VT_UI4:
    case VT_UINT:
        return wholeNumber(load<std::uint32_t>(at));
    case VT_I8:
        return wholeNumber(load<std::int64_t>(at));
    case VT_UI8:
        return wholeNumber(load<std::uint64_t>(at));
    case VT_R4:
        return load<float>(at);
    case VT_R8:
        return load<double>(at);
    case VT_CY:
        return Currency::fromTenThousandths(load<std::int64_t>(at));
    case VT_DATE:
        return Date{load<double>(at)};
    case VT_DECIMAL:
        return decimalNumber(load<DECIMAL>(at));
    case VT_BSTR:
        return textOfBstr(load<BSTR>(at));
    case VT_DISPATCH:
    case VT_UNKNOWN:
        return objects.importObject(load<IUnknown*>(at));
    case VT_VARIANT:
        return fromNative(load<VARIANT>(at), objects);
    default:
        throw errorOf(DISP_E_BADVARTYPE);
    }
}

/// The start of what a VARIANT holds by value.
const void* contentOf(const VARIANT& value)
{
    // A decimal takes up the whole VARIANT, its kind included.
    return value.vt == VT_DECIMAL ? static_cast<const void*>(&value.decVal) : &value.llVal;
}

std::size_t contentSize(VARTYPE type)
{
    switch (type) {
    case VT_I1:
    case VT_UI1:
        return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
        return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR:
        return 4;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
        return 8;
    case VT_DECIMAL:
        return sizeof(DECIMAL);
    case VT_BSTR:
    case VT_DISPATCH:
    case VT_UNKNOWN:
        return sizeof(void*);
    default:
        if ((type & VT_ARRAY) != 0)
            return sizeof(SAFEARRAY*);
        throw errorOf(DISP_E_BADVARTYPE);
    }
}

/// Puts a value of the given kind in the place of another one of that kind, which is released.
void replaceContent(VARTYPE type, void* at, NativeVariant value)
{
    const std::size_t size = contentSize(type);
    if (type == VT_DECIMAL) {
        std::memcpy(at, contentOf(*value), size);
        return;
    }
    // The old value leaves together with `value`, which owns it from here on.
    std::byte old[sizeof(LONGLONG)];
    std::memcpy(old, at, size);
    std::memcpy(at, &value->llVal, size);
    std::memcpy(&value->llVal, old, size);
}

SafeArrayPtr makeSafeArray(VARTYPE elementType, const Array& array, ObjectMap& objects);

NativeVariant arrayValue(VARTYPE elementType, const Array& array, ObjectMap& objects)
{
    NativeVariant value;
    value->parray = makeSafeArray(elementType, array, objects).release();
    value->vt = static_cast<VARTYPE>(VT_ARRAY | elementType);
    return value;
}

NativeVariant convertedTo(VARTYPE type, const Variant& value, ObjectMap& objects)
{
    const Variant& held = value.dereferenced();
    if ((type & VT_ARRAY) != 0) {
        const auto* array = held.getIf<std::shared_ptr<const Array>>();
        if (array == nullptr)
            throw errorOf(DISP_E_TYPEMISMATCH);
        return arrayValue(type & VT_TYPEMASK, **array, objects);
    }
    NativeVariant native = toNative(held, objects);
    if (native->vt != type)
        check(VariantChangeType(native.get(), native.get(), 0, type));
    return native;
}

/// Assigns the value of a kind that lies in memory: behind a reference or in an array.
void writeValue(VARTYPE type, void* at, const Variant& value, ObjectMap& objects)
{
    if (type != VT_VARIANT)
        return replaceContent(type, at, convertedTo(type, value, objects));
    auto& target = *static_cast<VARIANT*>(at);
    if ((target.vt & VT_BYREF) != 0)
        return assignNative(target, value, objects);
    NativeVariant native = toNative(value, objects);
    std::swap(target, *native);
}

SafeArrayPtr makeSafeArray(VARTYPE elementType, const Array& array, ObjectMap& objects)
{
    if (array.dimensions.empty() && array.values.empty())
        return nullptr;
    if (array.dimensions.empty() || countOf(array.dimensions) != array.values.size())
        throw errorOf(DISP_E_BADINDEX);
    std::vector<SAFEARRAYBOUND> bounds;
    for (const Array::Dimension& dimension : array.dimensions)
        bounds.push_back({static_cast<ULONG>(dimension.size), dimension.lowerBound});
    SafeArrayPtr result{SafeArrayCreate(elementType, static_cast<UINT>(bounds.size()), bounds.data())};
    if (!result)
        throw errorOf(E_OUTOFMEMORY);
    const SafeArrayData data{result.get()};
    for (std::size_t position = 0; position < array.values.size(); ++position)
        writeValue(elementType, data.at(columnPosition(array.dimensions, position)), array.values[position], objects);
    return result;
}

/// Puts a value of each kind into a VARIANT.
class NativeWriter {
public:
    explicit NativeWriter(ObjectMap& objects)
        : objects_(objects)
    {
    }

    void operator()(std::monostate) { }
    void operator()(automation::Null) { result_->vt = VT_NULL; }
    void operator()(automation::Missing) { set(VT_ERROR, result_->scode, DISP_E_PARAMNOTFOUND); }
    void operator()(bool value) { set(VT_BOOL, result_->boolVal, value ? VARIANT_TRUE : VARIANT_FALSE); }
    void operator()(std::uint8_t value) { set(VT_UI1, result_->bVal, value); }
    void operator()(std::int16_t value) { set(VT_I2, result_->iVal, value); }
    void operator()(std::int32_t value) { set(VT_I4, result_->lVal, value); }
    void operator()(float value) { set(VT_R4, result_->fltVal, value); }
    void operator()(double value) { set(VT_R8, result_->dblVal, value); }
    void operator()(Currency value) { set(VT_CY, result_->cyVal.int64, value.tenThousandths()); }
    void operator()(Date value) { set(VT_DATE, result_->date, value.days()); }
    void operator()(const Text& value) { set(VT_BSTR, result_->bstrVal, Bstr{value}.detach()); }
    void operator()(const std::shared_ptr<automation::Dispatch>& value)
    {
        const ComPtr<IUnknown> object = objects_.exportObject(value);
        ComPtr<IDispatch> dispatch = object.query<IDispatch>();
        if (dispatch || !object)
            set(VT_DISPATCH, result_->pdispVal, dispatch.detach());
        else
            set(VT_UNKNOWN, result_->punkVal, ComPtr{object}.detach());
    }
    void operator()(const std::shared_ptr<const Array>& value) { result_ = arrayValue(VT_VARIANT, *value, objects_); }
    void operator()(automation::Reference) { }

    [[nodiscard]] NativeVariant take() { return std::move(result_); }

private:
    template <class Field>
    void set(VARENUM type, Field& field, std::type_identity_t<Field> value)
    {
        field = value;
        result_->vt = static_cast<VARTYPE>(type);
    }

    ObjectMap& objects_;
    NativeVariant result_;
};

} // namespace

Variant fromNative(const VARIANT& value, ObjectMap& objects)
{
    const auto type = static_cast<VARTYPE>(value.vt & ~VT_BYREF);
    if (type == value.vt)
        return readValue(type, contentOf(value), objects);
    if (value.byref == nullptr)
        throw errorOf(DISP_E_BADVARTYPE);
    return readValue(type, value.byref, objects);
}

NativeVariant toNative(const Variant& value, ObjectMap& objects)
{
    NativeWriter writer{objects};
    std::visit(writer, value.dereferenced().value());
    return writer.take();
}

void assignNative(const VARIANT& reference, const Variant& value, ObjectMap& objects)
{
    if ((reference.vt & VT_BYREF) == 0 || reference.byref == nullptr)
        throw errorOf(DISP_E_BADVARTYPE);
    writeValue(static_cast<VARTYPE>(reference.vt & ~VT_BYREF), reference.byref, value, objects);
}

} // namespace rf::native::com
