#include "windows/com_apartment.h"

#include "windows/com_error.h"

namespace rf::native {

namespace {

/// As long as classic Basic keeps asking before it gives up.
constexpr DWORD busyTimeoutMs = 10'000;
constexpr DWORD retryDelayMs = 100;
constexpr DWORD giveUp = static_cast<DWORD>(-1);

/// Takes every call, and repeats those that the other side rejects for the moment.
class PatientFilter final : public com::Counted<IMessageFilter> {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override
    {
        if (result == nullptr)
            return E_POINTER;
        const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IMessageFilter);
        *result = known ? this : nullptr;
        if (!known)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) override
    {
        return SERVERCALL_ISHANDLED;
    }
    DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK, DWORD elapsedMs, DWORD) override
    {
        return elapsedMs < busyTimeoutMs ? retryDelayMs : giveUp;
    }
    DWORD STDMETHODCALLTYPE MessagePending(HTASK, DWORD, DWORD) override { return PENDINGMSG_WAITDEFPROCESS; }
};

/// Answers what has come for this thread's objects and is still waiting. Wine hands a call that is left to whatever
/// message loop runs next, without an apartment to take it in.
void answerWaitingCalls()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0)
        DispatchMessageW(&message);
}

} // namespace

ComApartment::ComApartment()
{
    com::check(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    const auto filter = com::makeCounted<PatientFilter>();
    // Without the filter calls fail at once when the host is busy, which is no reason not to start.
    static_cast<void>(CoRegisterMessageFilter(filter.get(), previousFilter_.put()));
}

ComApartment::~ComApartment()
{
    static_cast<void>(CoRegisterMessageFilter(previousFilter_.get(), nullptr));
    previousFilter_ = {};
    answerWaitingCalls();
    CoUninitialize();
}

} // namespace rf::native
