#pragma once

#include "basic/text.h"

namespace rf::automation {

/// The event that a transport raises in the name of an object whose process has ended without a word of its own, as one
/// that was killed does.
struct Farewell {
    /// The set of events by its name, and the event, which has no arguments.
    TextView events;
    TextView event;
};

} // namespace rf::automation
