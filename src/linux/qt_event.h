#pragma once

#include <QEvent>

namespace rf::native {

/// An event as the class that its type() stands for; the caller has asked for the type.
template <class Event>
[[nodiscard]] const Event& eventAs(const QEvent& event)
{
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-static-cast-downcast): the type is how Qt tells the class of an event.
    return static_cast<const Event&>(event);
}

} // namespace rf::native
