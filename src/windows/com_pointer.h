#pragma once

#include "windows/win32.h"

#include <atomic>
#include <type_traits>
#include <utility>

namespace rf::native::com {

/// One reference to a COM object, or to none.
template <class T>
class ComPtr {
public:
    ComPtr() = default;
    /// Shares an object that somebody else holds too.
    explicit ComPtr(T* shared)
        : object_(shared)
    {
        if (object_ != nullptr)
            object_->AddRef();
    }
    /// Takes over a reference that the caller owns.
    [[nodiscard]] static ComPtr adopt(T* owned)
    {
        ComPtr pointer;
        pointer.object_ = owned;
        return pointer;
    }
    ComPtr(const ComPtr& other)
        : ComPtr(other.object_)
    {
    }
    ComPtr(ComPtr&& other) noexcept
        : object_(other.detach())
    {
    }
    template <class Derived>
    requires std::is_convertible_v<Derived*, T*> ComPtr(const ComPtr<Derived>& other)
        : ComPtr(other.get())
    {
    }
    ComPtr& operator=(ComPtr other) noexcept
    {
        std::swap(object_, other.object_);
        return *this;
    }
    ~ComPtr()
    {
        if (object_ != nullptr)
            object_->Release();
    }

    [[nodiscard]] T* get() const { return object_; }
    [[nodiscard]] T* operator->() const { return object_; }
    [[nodiscard]] explicit operator bool() const { return object_ != nullptr; }
    /// Hands the reference to the caller.
    [[nodiscard]] T* detach() { return std::exchange(object_, nullptr); }
    /// The place into which a function puts a reference that it gives away.
    [[nodiscard]] T** put()
    {
        *this = ComPtr{};
        return &object_;
    }
    [[nodiscard]] void** putVoid() { return reinterpret_cast<void**>(put()); }

    /// Another interface of the object; none when it does not have it.
    template <class Interface>
    [[nodiscard]] ComPtr<Interface> query(REFIID id = __uuidof(Interface)) const
    {
        ComPtr<Interface> other;
        if (object_ == nullptr || FAILED(object_->QueryInterface(id, other.putVoid())))
            return {};
        return other;
    }

private:
    T* object_ = nullptr;
};

/// The reference count of a COM object that this program implements. It starts with the one of its maker.
template <class... Interfaces>
class Counted : public Interfaces... {
public:
    Counted() = default;
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    ULONG STDMETHODCALLTYPE AddRef() override { return ++count_; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --count_;
        if (left == 0)
            delete this;
        return left;
    }

protected:
    virtual ~Counted() = default;

private:
    std::atomic<ULONG> count_{1};
};

template <class T, class... Arguments>
[[nodiscard]] ComPtr<T> makeCounted(Arguments&&... arguments)
{
    return ComPtr<T>::adopt(new T(std::forward<Arguments>(arguments)...));
}

} // namespace rf::native::com
