#pragma once

#include "windows/win32.h"

#include <cstddef>
#include <memory>
#include <utility>

namespace rf::native::com {

/// A text as automation passes it; it may hold NULs and halves of surrogate pairs.
class Bstr {
public:
    explicit Bstr(TextView text);
    Bstr(Bstr&& other) noexcept
        : text_(other.detach())
    {
    }
    Bstr& operator=(Bstr&& other) noexcept
    {
        std::swap(text_, other.text_);
        return *this;
    }
    ~Bstr() { SysFreeString(text_); }

    [[nodiscard]] BSTR get() const { return text_; }
    [[nodiscard]] BSTR detach() { return std::exchange(text_, nullptr); }

private:
    BSTR text_ = nullptr;
};

/// The text in a BSTR; a null one is the empty text.
[[nodiscard]] inline Text textOfBstr(BSTR text) { return textOf(text, SysStringLen(text)); }

/// A VARIANT that owns what it holds.
class NativeVariant {
public:
    NativeVariant() { VariantInit(&value_); }
    NativeVariant(NativeVariant&& other) noexcept
        : value_(other.detach())
    {
    }
    NativeVariant& operator=(NativeVariant&& other) noexcept
    {
        std::swap(value_, other.value_);
        return *this;
    }
    ~NativeVariant() { VariantClear(&value_); }

    [[nodiscard]] VARIANT& operator*() { return value_; }
    [[nodiscard]] const VARIANT& operator*() const { return value_; }
    [[nodiscard]] VARIANT* operator->() { return &value_; }
    [[nodiscard]] const VARIANT* operator->() const { return &value_; }
    [[nodiscard]] VARIANT* get() { return &value_; }
    /// Hands what it holds to the caller.
    [[nodiscard]] VARIANT detach()
    {
        VARIANT value = value_;
        VariantInit(&value_);
        return value;
    }

private:
    VARIANT value_;
};

struct DestroySafeArray {
    void operator()(SAFEARRAY* array) const { SafeArrayDestroy(array); }
};
using SafeArrayPtr = std::unique_ptr<SAFEARRAY, DestroySafeArray>;

/// A safe array's values, which stay in place while this exists.
class SafeArrayData {
public:
    explicit SafeArrayData(SAFEARRAY* array);
    SafeArrayData(const SafeArrayData&) = delete;
    SafeArrayData& operator=(const SafeArrayData&) = delete;
    ~SafeArrayData() { SafeArrayUnaccessData(array_); }

    [[nodiscard]] void* at(std::size_t position) const { return data_ + position * elementSize_; }

private:
    SAFEARRAY* array_;
    std::byte* data_ = nullptr;
    std::size_t elementSize_;
};

/// What a failed Invoke tells, with the texts that it hands over.
struct ExceptionInfo : EXCEPINFO {
    ExceptionInfo()
        : EXCEPINFO{}
    {
    }
    ExceptionInfo(const ExceptionInfo&) = delete;
    ExceptionInfo& operator=(const ExceptionInfo&) = delete;
    ~ExceptionInfo();
};

} // namespace rf::native::com
