#include "windows/com_connection_point.h"

#include "windows/com_arguments.h"
#include "windows/com_error.h"

namespace rf::native::com {

using automation::EventInterface;
using automation::Variant;

namespace {

HRESULT raise(IDispatch& sink, DISPID id, std::span<Variant> arguments, ObjectMap& objects)
{
    OutgoingArguments passed{arguments, ReferenceForm::TypedBoolean, objects};
    DISPPARAMS parameters = passed.parameters();
    NativeVariant result;
    ExceptionInfo told;
    const HRESULT status
        = sink.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, result.get(), &told, nullptr);
    if (SUCCEEDED(status))
        passed.writeBack();
    return status;
}

/// Whether the process that a sink lived in has gone.
bool isGone(HRESULT status)
{
    return status == RPC_E_DISCONNECTED || status == RPC_E_SERVER_DIED || status == RPC_E_SERVER_DIED_DNE
        || status == CO_E_OBJNOTCONNECTED || status == HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE)
        || status == HRESULT_FROM_WIN32(RPC_S_CALL_FAILED) || status == HRESULT_FROM_WIN32(RPC_S_CALL_FAILED_DNE);
}

} // namespace

ConnectionPoint::ConnectionPoint(ComObject& owner, const EventInterface& events)
    : owner_(owner)
    , events_(events)
{
}

HRESULT ConnectionPoint::QueryInterface(REFIID id, void** result)
{
    if (result == nullptr)
        return E_POINTER;
    const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IConnectionPoint);
    *result = known ? this : nullptr;
    if (!known)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

HRESULT ConnectionPoint::GetConnectionInterface(IID* id)
{
    if (id == nullptr)
        return E_POINTER;
    *id = interfaceId(events_);
    return S_OK;
}

HRESULT ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container)
{
    if (container == nullptr)
        return E_POINTER;
    return owner_.QueryInterface(IID_IConnectionPointContainer, reinterpret_cast<void**>(container));
}

HRESULT ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie)
try {
    if (sink == nullptr || cookie == nullptr)
        return E_POINTER;
    // Events go out by Invoke, so the sink need not have the interface of the set itself, which another process
    // could only reach where that interface is registered.
    const auto receiver = ComPtr<IUnknown>{sink}.query<IDispatch>();
    if (!receiver)
        return CONNECT_E_CANNOTCONNECT;
    const DWORD number = ++lastCookie_;
    connections_.emplace(number,
        owner_.original()->advise(events_, [this, number, receiver](TextView event, std::span<Variant> arguments) {
            const automation::EventMember* member = events_.find(event);
            if (member == nullptr)
                return;
            // The sink may disconnect in the middle of the call, and its client drop the source.
            const ComPtr<ConnectionPoint> self{this};
            const ComPtr<IDispatch> held = receiver;
            // Whether a sink fails is no concern of the source, unless there is nobody any more to hear.
            if (isGone(raise(*held.get(), member->id, arguments, owner_.bridge())))
                connections_.erase(number);
        }));
    *cookie = number;
    return S_OK;
} catch (const RuntimeError& error) {
    return error.number() == error_number::eventsNotSupported ? CONNECT_E_CANNOTCONNECT : reportException(nullptr);
} catch (...) {
    return reportException(nullptr);
}

HRESULT ConnectionPoint::Unadvise(DWORD cookie)
try {
    // Taken out first: what goes with the connection may come back here.
    const auto left = connections_.extract(cookie);
    return left.empty() ? CONNECT_E_NOCONNECTION : S_OK;
} catch (...) {
    return reportException(nullptr);
}

HRESULT ConnectionPoint::EnumConnections(IEnumConnections**) { return E_NOTIMPL; }

} // namespace rf::native::com
