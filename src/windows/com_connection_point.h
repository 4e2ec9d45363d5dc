#pragma once

#include "windows/com_object.h"

#include <map>

namespace rf::native::com {

/// One set of events of an exported object, to which other processes connect. It is a part of its object: who holds
/// it holds the object.
class ConnectionPoint final : public IConnectionPoint {
public:
    ConnectionPoint(ComObject& owner, const automation::EventInterface& events);
    virtual ~ConnectionPoint() = default;
    ConnectionPoint(const ConnectionPoint&) = delete;
    ConnectionPoint& operator=(const ConnectionPoint&) = delete;

    ULONG STDMETHODCALLTYPE AddRef() override { return owner_.AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return owner_.Release(); }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override;

    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* id) override;
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** container) override;
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** connections) override;

private:
    ComObject& owner_;
    const automation::EventInterface& events_;
    DWORD lastCookie_ = 0;
    std::map<DWORD, automation::Connection> connections_;
};

} // namespace rf::native::com
