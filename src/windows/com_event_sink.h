#pragma once

#include "automation/events.h"
#include "windows/com_bridge.h"

namespace rf::native::com {

/// Hears a set of events from a COM source and passes them on by name.
class EventSink final : public Counted<IDispatch> {
public:
    EventSink(
        const automation::EventInterface& events, automation::EventHandler handler, std::shared_ptr<Bridge> bridge);

    /// Passes nothing on any more; a source may hold a sink longer than it was asked to.
    void silence() { handler_.reset(); }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** information) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(
        REFIID reserved, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
        VARIANT* result, EXCEPINFO* told, UINT* wrongArgument) override;

private:
    const automation::EventInterface& events_;
    std::shared_ptr<const automation::EventHandler> handler_;
    std::shared_ptr<Bridge> bridge_;
};

} // namespace rf::native::com
