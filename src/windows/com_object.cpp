#include "windows/com_object.h"

#include "windows/com_arguments.h"
#include "windows/com_connection_point.h"
#include "windows/com_error.h"

namespace rf::native::com {

using automation::Invocation;
using automation::Variant;

namespace {

Invocation invocationOf(WORD flags)
{
    if ((flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0)
        return Invocation::Put;
    return (flags & DISPATCH_METHOD) != 0 ? Invocation::Call : Invocation::Get;
}

/// Whether every named argument is the value of an assignment; the program's members know no other names.
bool hasPlainArguments(const DISPPARAMS& parameters, Invocation kind)
{
    if (kind == Invocation::Put && parameters.cNamedArgs == 1)
        return parameters.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
    return parameters.cNamedArgs == 0;
}

} // namespace

ComObject::ComObject(std::shared_ptr<Bridge> bridge, std::shared_ptr<automation::Dispatch> object)
    : bridge_(std::move(bridge))
    , object_(std::move(object))
{
}

ComObject::~ComObject() { bridge_->forget(object_->identity()); }

HRESULT ComObject::QueryInterface(REFIID id, void** result)
{
    if (result == nullptr)
        return E_POINTER;
    if (IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch))
        *result = static_cast<IDispatch*>(this);
    else if (IsEqualIID(id, IID_IConnectionPointContainer))
        *result = static_cast<IConnectionPointContainer*>(this);
    else if (IsEqualIID(id, exportedObjectId))
        *result = static_cast<ExportedObject*>(this);
    else
        *result = nullptr;
    if (*result == nullptr)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

HRESULT ComObject::GetTypeInfoCount(UINT* count)
{
    if (count == nullptr)
        return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT ComObject::GetTypeInfo(UINT, LCID, ITypeInfo**) { return E_NOTIMPL; }

DISPID ComObject::idOf(TextView name)
{
    if (const auto known = ids_.find(name); known != ids_.end())
        return known->second;
    names_.emplace_back(name);
    const auto id = static_cast<DISPID>(names_.size());
    ids_.emplace(names_.back(), id);
    return id;
}

const Text* ComObject::nameOf(DISPID id) const
{
    const auto position = static_cast<std::size_t>(id);
    return id >= 1 && position <= names_.size() ? &names_[position - 1] : nullptr;
}

HRESULT ComObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids)
try {
    if (names == nullptr || ids == nullptr || count == 0)
        return E_INVALIDARG;
    ids[0] = idOf(textOf(names[0]));
    // The further names are those of arguments, which have none here.
    for (UINT index = 1; index < count; ++index)
        ids[index] = DISPID_UNKNOWN;
    return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
} catch (...) {
    return reportException(nullptr);
}

HRESULT ComObject::Invoke(
    DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* told, UINT*)
try {
    // The call may make its caller drop the last reference.
    const ComPtr<ComObject> self{this};
    const Text* known = nameOf(id);
    if (known == nullptr)
        return DISP_E_MEMBERNOTFOUND;
    if (parameters == nullptr)
        return E_INVALIDARG;
    const Invocation kind = invocationOf(flags);
    if (!hasPlainArguments(*parameters, kind))
        return DISP_E_NONAMEDARGS;
    // A nested call may make new names move.
    const Text name = *known;
    IncomingArguments arguments{*parameters, *bridge_};
    const Variant answer = object_->invoke(name, kind, arguments.values());
    arguments.writeBack();
    if (result != nullptr)
        *result = toNative(answer, *bridge_).detach();
    return S_OK;
} catch (...) {
    return reportException(told);
}

/// Clients ask for the set of events that they know, so there is nothing to enumerate.
HRESULT ComObject::EnumConnectionPoints(IEnumConnectionPoints**) { return E_NOTIMPL; }

HRESULT ComObject::FindConnectionPoint(REFIID id, IConnectionPoint** point)
try {
    if (point == nullptr)
        return E_POINTER;
    *point = nullptr;
    const automation::EventInterface* events = bridge_->findEvents(id);
    if (events == nullptr)
        return CONNECT_E_NOCONNECTION;
    auto& kept = points_[events];
    if (!kept)
        kept = std::make_unique<ConnectionPoint>(*this, *events);
    kept->AddRef();
    *point = kept.get();
    return S_OK;
} catch (...) {
    return reportException(nullptr);
}

} // namespace rf::native::com
