#include "windows/com_dispatch.h"

#include "windows/com_arguments.h"
#include "windows/com_error.h"
#include "windows/com_event_sink.h"

namespace rf::native::com {

using automation::Connection;
using automation::Error;
using automation::EventHandler;
using automation::EventInterface;
using automation::Invocation;
using automation::Variant;

namespace {

ComPtr<IUnknown> canonical(const ComPtr<IUnknown>& object)
{
    ComPtr<IUnknown> identity = object.query<IUnknown>();
    return identity ? identity : object;
}

bool isWithoutEvents(HRESULT status)
{
    return status == E_NOINTERFACE || status == CONNECT_E_NOCONNECTION || status == CONNECT_E_CANNOTCONNECT;
}

void checkAdvise(HRESULT status, const EventInterface& events)
{
    if (isWithoutEvents(status))
        throw Error{error_number::eventsNotSupported,
            {Text{errorDescription(error_number::eventsNotSupported)}, {}, Text{events.name}}};
    if (FAILED(status))
        throw errorOf(status, events.name);
}

} // namespace

ComDispatch::ComDispatch(std::shared_ptr<Bridge> bridge, const ComPtr<IUnknown>& object)
    : bridge_(std::move(bridge))
    , object_(canonical(object))
    , dispatch_(object.query<IDispatch>())
{
}

DISPID ComDispatch::idOf(TextView member)
{
    if (const auto known = ids_.find(member); known != ids_.end())
        return known->second;
    if (!dispatch_)
        throw errorOf(DISP_E_MEMBERNOTFOUND, member);
    const Text name{member};
    auto* units = const_cast<wchar_t*>(wide(name));
    DISPID id = DISPID_UNKNOWN;
    if (const HRESULT status = dispatch_->GetIDsOfNames(IID_NULL, &units, 1, LOCALE_USER_DEFAULT, &id); FAILED(status))
        throw errorOf(status, member);
    ids_.emplace(name, id);
    return id;
}

HRESULT ComDispatch::use(
    DISPID id, Invocation kind, OutgoingArguments& arguments, VARIANT* result, ExceptionInfo& told) const
{
    const bool put = kind == Invocation::Put;
    // A member without arguments may be a property or a method, and late binding does not tell which.
    const WORD flags = put ? DISPATCH_PROPERTYPUT : DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    DISPPARAMS parameters = put ? arguments.assignment() : arguments.parameters();
    UINT wrongArgument = 0;
    const auto invokeAs = [&](WORD how) {
        return dispatch_->Invoke(
            id, IID_NULL, LOCALE_USER_DEFAULT, how, &parameters, put ? nullptr : result, &told, &wrongArgument);
    };
    const HRESULT status = invokeAs(flags);
    // Properties that hold objects may be assignable by reference only.
    if (put && status == DISP_E_MEMBERNOTFOUND && parameters.rgvarg[0].vt == VT_DISPATCH)
        return invokeAs(DISPATCH_PROPERTYPUTREF);
    return status;
}

Variant ComDispatch::invoke(TextView member, Invocation kind, std::span<Variant> arguments)
{
    const DISPID id = idOf(member);
    OutgoingArguments passed{arguments, ReferenceForm::Variant, *bridge_};
    NativeVariant result;
    ExceptionInfo told;
    if (const HRESULT status = use(id, kind, passed, result.get(), told); FAILED(status))
        throw errorOf(status, told, member);
    passed.writeBack();
    return fromNative(*result, *bridge_);
}

Connection ComDispatch::advise(const EventInterface& events, EventHandler handler)
{
    ComPtr<IConnectionPointContainer> container;
    checkAdvise(object_->QueryInterface(IID_IConnectionPointContainer, container.putVoid()), events);
    ComPtr<IConnectionPoint> point;
    checkAdvise(container->FindConnectionPoint(interfaceId(events), point.put()), events);
    const auto sink = makeCounted<EventSink>(events, std::move(handler), bridge_);
    DWORD cookie = 0;
    checkAdvise(point->Advise(sink.get(), &cookie), events);
    return Connection{[point, sink, cookie] {
        sink->silence();
        // A source that has gone needs no farewell, so its failure means nothing.
        static_cast<void>(point->Unadvise(cookie));
    }};
}

} // namespace rf::native::com
