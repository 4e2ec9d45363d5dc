#include "windows/com_event_sink.h"

#include "windows/com_arguments.h"
#include "windows/com_error.h"

namespace rf::native::com {

EventSink::EventSink(
    const automation::EventInterface& events, automation::EventHandler handler, std::shared_ptr<Bridge> bridge)
    : events_(events)
    , handler_(std::make_shared<const automation::EventHandler>(std::move(handler)))
    , bridge_(std::move(bridge))
{
}

HRESULT EventSink::QueryInterface(REFIID id, void** result)
{
    if (result == nullptr)
        return E_POINTER;
    const bool known
        = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch) || IsEqualIID(id, interfaceId(events_));
    *result = known ? static_cast<IDispatch*>(this) : nullptr;
    if (!known)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

HRESULT EventSink::GetTypeInfoCount(UINT* count)
{
    if (count == nullptr)
        return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT EventSink::GetTypeInfo(UINT, LCID, ITypeInfo**) { return E_NOTIMPL; }

/// Sources raise events by id and never ask for one.
HRESULT EventSink::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) { return E_NOTIMPL; }

HRESULT EventSink::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO* told, UINT*)
try {
    // The handler may cut its own connection, which lets go of the sink and of the handler.
    const ComPtr<EventSink> self{this};
    const auto handler = handler_;
    const automation::EventMember* event = events_.find(id);
    // A source may raise more events than this program knows of, and takes a failure for a refusal.
    if (!handler || event == nullptr || parameters == nullptr)
        return S_OK;
    IncomingArguments arguments{*parameters, *bridge_};
    (*handler)(event->name, arguments.values());
    arguments.writeBack();
    return S_OK;
} catch (...) {
    return reportException(told);
}

} // namespace rf::native::com
