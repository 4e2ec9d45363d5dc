#include "host/ical_file_zones.h"

#include "host/ical_zone_definition.h"

#include <algorithm>
#include <utility>

namespace rf::host::ical {
namespace {

/// The places where a known name may begin: some programs write "/their.domain/version/Europe/Brussels".
std::vector<std::string_view> tails(std::string_view name)
{
    std::vector<std::string_view> result{name};
    while (name.find('/') != std::string_view::npos && result.size() < 10) {
        name.remove_prefix(name.find('/') + 1);
        if (name.find('/') != std::string_view::npos) {
            result.push_back(name);
        }
    }
    return result;
}

} // namespace

FileZones::FileZones(const std::vector<Component>& definitions, ZoneTable& system, Problems& problems)
    : definitions_(definitions)
    , system_(system)
    , problems_(problems)
{
}

const Component* FileZones::definition(std::string_view name) const
{
    const auto found = std::find_if(
        definitions_.begin(), definitions_.end(), [name](const Component& one) { return one.value("TZID") == name; });
    return found == definitions_.end() ? nullptr : &*found;
}

FileZone FileZones::known(const Text& name) { return {.clocks = system_.named(name), .name = name}; }

FileZone FileZones::find(std::string_view name)
{
    const Component* const definition = this->definition(name);
    // "EST" means one thing to the system and often another to the text that defines it.
    if (name.find('/') != std::string_view::npos || definition == nullptr) {
        for (const std::string_view tail : tails(name)) {
            if (FileZone zone = known(fromUtf8(tail)); zone.clocks != nullptr) {
                return zone;
            }
        }
    }
    const std::string_view location = definition == nullptr ? std::string_view{} : definition->value("X-LIC-LOCATION");
    for (const Text& said : {fromUtf8(location), ianaNameOf(fromUtf8(name))}) {
        if (FileZone zone = known(said); zone.clocks != nullptr) {
            return zone;
        }
    }
    if (definition == nullptr) {
        return {};
    }
    own_.push_back(definedZone(*definition));
    return {.clocks = own_.back().get(), .name = {}};
}

const FileZone& FileZones::zone(std::string_view name, std::size_t line)
{
    if (const auto found = zones_.find(name); found != zones_.end()) {
        return found->second;
    }
    const FileZone& zone = zones_.emplace(std::string{name}, find(name)).first->second;
    if (zone.clocks == nullptr) {
        problems_.add(line,
            u"The time zone \"" + fromUtf8(name.substr(0, 100))
                + u"\" is neither known nor explained; its times were taken as local ones.");
    }
    return zone;
}

const Text& FileZones::nameFrom(std::string_view name, Seconds from)
{
    const FileZone& zone = this->zone(name, 0);
    if (zone.clocks == nullptr || !zone.name.empty()) {
        return zone.name;
    }
    if (const auto found = equalNames_.find(name); found != equalNames_.end()) {
        return found->second;
    }
    return equalNames_.emplace(std::string{name}, system_.nameOf(*zone.clocks, from)).first->second;
}

} // namespace rf::host::ical
