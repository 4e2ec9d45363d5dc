#pragma once

#include "automation/local_object.h"
#include "host/host_error.h"

#include <cstdint>

namespace rf::host {

/// Where a window stands, in pixels, and whether it is maximized (0), minimized (1) or neither (2). A host without a
/// screen keeps what it is told.
struct WindowPlace {
    static constexpr std::int32_t usualWidth = 800;
    static constexpr std::int32_t usualHeight = 600;
    static constexpr std::int32_t maximized = 0;
    static constexpr std::int32_t minimized = 1;
    static constexpr std::int32_t normal = 2;

    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t width = usualWidth;
    std::int32_t height = usualHeight;
    std::int32_t state = normal;

    friend bool operator==(const WindowPlace&, const WindowPlace&) = default;
};

/// The member of a window that reads and assigns one of these numbers.
template <class T, std::int32_t WindowPlace::*number>
constexpr automation::LocalMember<T> placeMember(TextView name)
{
    return {name, [](T& self, const automation::Arguments&) -> automation::Variant { return self.place().*number; },
        [](T& self, const automation::Arguments& arguments) {
            self.place().*number = arguments.value().integer32();
            self.placed();
        }};
}

template <class T>
constexpr automation::LocalMember<T> windowStateMember()
{
    return {u"WindowState",
        [](T& self, const automation::Arguments&) -> automation::Variant { return self.place().state; },
        [](T& self, const automation::Arguments& arguments) {
            const std::int32_t state = arguments.value().integer32();
            if (state < 0 || state > WindowPlace::normal)
                throw hostError(host_error::badArgument, u"A window has no such state.");
            self.place().state = state;
            self.placed();
        }};
}

} // namespace rf::host
