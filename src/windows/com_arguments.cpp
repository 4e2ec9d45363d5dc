#include "windows/com_arguments.h"

namespace rf::native::com {

namespace {

using automation::Reference;
using automation::Variant;

/// An argument as it is passed, pointing to the value that stays with the caller.
VARIANT passed(const Variant& argument, NativeVariant& value, ReferenceForm form)
{
    if (!argument.is<Reference>())
        return *value;
    VARIANT reference;
    VariantInit(&reference);
    if (form == ReferenceForm::TypedBoolean && value->vt == VT_BOOL) {
        reference.vt = VT_BYREF | VT_BOOL;
        reference.pboolVal = &value->boolVal;
    } else {
        reference.vt = VT_BYREF | VT_VARIANT;
        reference.pvarVal = value.get();
    }
    return reference;
}

} // namespace

OutgoingArguments::OutgoingArguments(std::span<Variant> arguments, ReferenceForm form, ObjectMap& objects)
    : arguments_(arguments)
    , objects_(objects)
    , passed_(arguments.size())
{
    values_.reserve(arguments.size());
    for (const Variant& argument : arguments)
        values_.push_back(toNative(argument, objects));
    for (std::size_t index = 0; index < arguments.size(); ++index)
        passed_[arguments.size() - 1 - index] = passed(arguments[index], values_[index], form);
}

DISPPARAMS OutgoingArguments::parameters() { return {passed_.data(), nullptr, static_cast<UINT>(passed_.size()), 0}; }

DISPPARAMS OutgoingArguments::assignment()
{
    return {passed_.data(), &assigned_, static_cast<UINT>(passed_.size()), 1};
}

void OutgoingArguments::writeBack()
{
    for (std::size_t index = 0; index < arguments_.size(); ++index) {
        if (!arguments_[index].is<Reference>())
            continue;
        Variant left = fromNative(*values_[index], objects_);
        if (left != arguments_[index].dereferenced())
            arguments_[index].assignThrough(std::move(left));
    }
}

IncomingArguments::IncomingArguments(const DISPPARAMS& parameters, ObjectMap& objects)
    : parameters_(parameters)
    , objects_(objects)
    , targets_(parameters.cArgs)
    , arguments_(parameters.cArgs)
{
    for (std::size_t index = 0; index < arguments_.size(); ++index) {
        targets_[index] = fromNative(native(index), objects);
        if ((native(index).vt & VT_BYREF) != 0)
            arguments_[index] = Reference{&targets_[index]};
        else
            arguments_[index] = targets_[index];
    }
}

const VARIANT& IncomingArguments::native(std::size_t index) const
{
    return parameters_.rgvarg[parameters_.cArgs - 1 - index];
}

void IncomingArguments::writeBack()
{
    for (std::size_t index = 0; index < arguments_.size(); ++index)
        // What was not assigned stays as it is, also where the caller's kind says more than the program's.
        if (arguments_[index].is<Reference>() && targets_[index] != fromNative(native(index), objects_))
            assignNative(native(index), targets_[index], objects_);
}

} // namespace rf::native::com
