#include "windows/com_values.h"

#include "windows/com_error.h"

#include <new>

namespace rf::native::com {

Bstr::Bstr(TextView text)
    : text_(SysAllocStringLen(reinterpret_cast<const wchar_t*>(text.data()), static_cast<UINT>(text.size())))
{
    if (text_ == nullptr)
        throw std::bad_alloc{};
}

SafeArrayData::SafeArrayData(SAFEARRAY* array)
    : array_(array)
    , elementSize_(SafeArrayGetElemsize(array))
{
    void* data = nullptr;
    check(SafeArrayAccessData(array, &data));
    data_ = static_cast<std::byte*>(data);
}

ExceptionInfo::~ExceptionInfo()
{
    SysFreeString(bstrSource);
    SysFreeString(bstrDescription);
    SysFreeString(bstrHelpFile);
}

} // namespace rf::native::com
