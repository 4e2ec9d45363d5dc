#pragma once

#include "windows/com_variant.h"

#include <span>
#include <vector>

namespace rf::native::com {

/// The form in which an argument by reference travels: any as a VARIANT, or truth values as such, which is what
/// handlers of events declare (`Cancel As Boolean`).
enum class ReferenceForm { Variant, TypedBoolean };

/// The arguments of a call that this program makes, as Invoke takes them: in reverse order, references as cells that
/// the callee may assign.
class OutgoingArguments {
public:
    OutgoingArguments(std::span<automation::Variant> arguments, ReferenceForm form, ObjectMap& objects);
    OutgoingArguments(const OutgoingArguments&) = delete;
    OutgoingArguments& operator=(const OutgoingArguments&) = delete;

    /// The parameters of a call or a get.
    [[nodiscard]] DISPPARAMS parameters();
    /// The parameters of an assignment, whose last argument is the value.
    [[nodiscard]] DISPPARAMS assignment();
    /// Gives the references what the callee left in their cells.
    void writeBack();

private:
    std::span<automation::Variant> arguments_;
    ObjectMap& objects_;
    /// In the order of the arguments; a reference's cell is its own.
    std::vector<NativeVariant> values_;
    /// In reverse order, pointing into `values_` and owning nothing.
    std::vector<VARIANT> passed_;
    DISPID assigned_ = DISPID_PROPERTYPUT;
};

/// The arguments of a call that comes in, in the order of the call; what came by reference is a reference.
class IncomingArguments {
public:
    /// `parameters` outlives this.
    IncomingArguments(const DISPPARAMS& parameters, ObjectMap& objects);
    IncomingArguments(const IncomingArguments&) = delete;
    IncomingArguments& operator=(const IncomingArguments&) = delete;

    [[nodiscard]] std::span<automation::Variant> values() { return arguments_; }
    /// Gives the caller what was assigned to the references.
    void writeBack();

private:
    [[nodiscard]] const VARIANT& native(std::size_t index) const;

    const DISPPARAMS& parameters_;
    ObjectMap& objects_;
    std::vector<automation::Variant> targets_;
    std::vector<automation::Variant> arguments_;
};

} // namespace rf::native::com
