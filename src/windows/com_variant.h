#pragma once

#include "automation/object.h"
#include "windows/com_pointer.h"
#include "windows/com_values.h"

namespace rf::native::com {

/// Finds the one object for the other when values pass between the program and COM.
class ObjectMap {
public:
    virtual ~ObjectMap() = default;

    /// The object behind a COM object; nothing for none.
    [[nodiscard]] virtual std::shared_ptr<automation::Dispatch> importObject(IUnknown* object) = 0;
    /// The COM object that stands for an object; none for nothing.
    [[nodiscard]] virtual ComPtr<IUnknown> exportObject(const std::shared_ptr<automation::Dispatch>& object) = 0;
};

/// The value in a VARIANT. A reference gives what it refers to. Kinds that the program does not have become the
/// nearest one: whole numbers a 32-bit one where they fit, else a double, and so do decimals; an error value
/// becomes `Missing`, which like it neither reads as a number nor as a text. Records are error 458.
[[nodiscard]] automation::Variant fromNative(const VARIANT& value, ObjectMap& objects);

/// The value as a VARIANT of its kind, arrays as arrays of VARIANT. A reference gives what it refers to.
[[nodiscard]] NativeVariant toNative(const automation::Variant& value, ObjectMap& objects);

/// Gives what a VT_BYREF VARIANT refers to a new value, converted to the kind that it has there. Error 13 when it
/// does not convert, 6 outside the range.
void assignNative(const VARIANT& reference, const automation::Variant& value, ObjectMap& objects);

} // namespace rf::native::com
