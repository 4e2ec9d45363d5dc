#pragma once

#include "host/ical_components.h"
#include "host/ical_problems.h"
#include "host/ical_zone.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace rf::host::ical {

/// What a calendar text means by the name of a time zone.
struct FileZone {
    /// Null when nothing tells what its clocks show.
    const Zone* clocks = nullptr;
    /// The IANA name; empty for a zone that is the text's own.
    Text name;
};

/// The time zones of one calendar text. Where the text names a zone that the system knows, the system's rules count,
/// since texts carry rules of few years; what it calls by a name of its own follows its own definition.
class FileZones {
public:
    FileZones(const std::vector<Component>& definitions, ZoneTable& system, Problems& problems);

    /// The zone of that name. One that is nowhere explained is named as a problem at its first use.
    [[nodiscard]] const FileZone& zone(std::string_view name, std::size_t line);
    /// Gives a zone of the text's own the name of one that agrees with it from a moment on, where there is one.
    [[nodiscard]] const Text& nameFrom(std::string_view name, Seconds from);

    [[nodiscard]] ZoneTable& system() { return system_; }

private:
    [[nodiscard]] FileZone find(std::string_view name);
    [[nodiscard]] FileZone known(const Text& name);
    [[nodiscard]] const Component* definition(std::string_view name) const;

    const std::vector<Component>& definitions_;
    ZoneTable& system_;
    Problems& problems_;
    std::map<std::string, FileZone, std::less<>> zones_;
    std::map<std::string, Text, std::less<>> equalNames_;
    std::vector<std::unique_ptr<Zone>> own_;
};

} // namespace rf::host::ical
