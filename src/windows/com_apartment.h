#pragma once

#include "windows/com_pointer.h"

namespace rf::native {

/// This thread's part in COM, single threaded: events arrive through the message pump, and nested while a call is
/// pending. A host that is busy with a question to the user is asked again for a while before a call fails.
/// Whatever is of COM on this thread goes before it.
class ComApartment {
public:
    ComApartment();
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;
    ~ComApartment();

private:
    com::ComPtr<IMessageFilter> previousFilter_;
};

} // namespace rf::native
