#pragma once

#include "host/ical_content_line.h"
#include "host/ical_problems.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace rf::host::ical {

/// A property, and the line on which it begins.
struct Property {
    ContentLine content;
    std::size_t line = 0;
};

/// What stands between BEGIN and END: of an event the properties that the reader knows, of a time zone its rules.
struct Component {
    std::string name;
    std::size_t line = 0;
    std::vector<Property> properties;
    std::vector<Component> children;

    /// The first property of that name; null when there is none.
    [[nodiscard]] const Property* find(std::string_view wanted) const;
    /// Its value; empty when there is none.
    [[nodiscard]] std::string_view value(std::string_view wanted) const;
};

/// The parts of a calendar text that the reader uses.
struct Components {
    std::vector<Component> events;
    std::vector<Component> zones;
};

/// The complete events and time zones of a text. One that is cut off or not closed is named and left out.
[[nodiscard]] Components readComponents(std::string_view bytes, Problems& problems);

} // namespace rf::host::ical
