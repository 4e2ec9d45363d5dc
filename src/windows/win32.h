#pragma once

#include "basic/text.h"

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <ocidl.h>
#include <oleauto.h>
#include <olectl.h>

namespace rf::native {

static_assert(sizeof(wchar_t) == sizeof(char16_t), "Windows and the program share the UTF-16 unit");

/// A text as a Windows function takes it; it ends at the first NUL and lives as long as the text.
[[nodiscard]] inline const wchar_t* wide(const Text& text) { return reinterpret_cast<const wchar_t*>(text.c_str()); }

/// A text that Windows gives with its length.
[[nodiscard]] inline Text textOf(const wchar_t* units, std::size_t length)
{
    return units == nullptr ? Text{} : Text{reinterpret_cast<const char16_t*>(units), length};
}

/// A text that Windows ends with a NUL.
[[nodiscard]] inline Text textOf(const wchar_t* units)
{
    return units == nullptr ? Text{} : Text{reinterpret_cast<const char16_t*>(units)};
}

} // namespace rf::native
