#pragma once

#include "basic/text.h"
#include "host/ical_wall_time.h"

#include <map>
#include <memory>
#include <string>

namespace rf::host::ical {

/// The clocks of a time zone.
class Zone {
public:
    virtual ~Zone() = default;

    /// Seconds by which its clocks are ahead of UTC at a moment of UTC.
    [[nodiscard]] virtual Seconds offsetAt(Seconds utc) const = 0;
    /// The moment at which its clocks show a time: the first of two; a time that they leave out is counted on from
    /// before they do.
    [[nodiscard]] virtual Seconds toUtc(Seconds wall) const;
    [[nodiscard]] Seconds toWall(Seconds utc) const { return utc + offsetAt(utc); }
};

/// The time zones that this system knows by their IANA names, and the one that the installation is in.
class ZoneTable {
public:
    /// Takes the installation's zone as it is now.
    ZoneTable();
    ~ZoneTable();
    ZoneTable(const ZoneTable&) = delete;
    ZoneTable& operator=(const ZoneTable&) = delete;

    [[nodiscard]] const Zone& local() const { return *local_; }
    /// Empty when the installation is in no zone that has a name.
    [[nodiscard]] const Text& localName() const { return localName_; }
    /// The zone of that name; null when there is none. It lives as long as the table.
    [[nodiscard]] const Zone* named(TextView name);
    /// The name of a zone whose clocks agree with another's for two years from a moment on, the installation's first;
    /// empty when there is none.
    [[nodiscard]] Text nameOf(const Zone& zone, Seconds from) const;

    [[nodiscard]] Seconds localToUtc(Seconds wall) const { return local_->toUtc(wall); }
    [[nodiscard]] Seconds utcToLocal(Seconds utc) const { return local_->toWall(utc); }

private:
    std::unique_ptr<Zone> local_;
    Text localName_;
    /// Names that are none are kept too, since looking one up takes long.
    std::map<Text, std::unique_ptr<Zone>, std::less<>> zones_;
};

/// The IANA name of a zone that is known by its Windows name, such as "Romance Standard Time"; empty for any other.
[[nodiscard]] Text ianaNameOf(TextView windowsName);

/// The rules of a named zone from a moment on as calendar texts carry them: a VTIMEZONE, lines end with CR LF. It is
/// called by that name and says that the name is the system's, where a text may mean by "CET" what it wants. Empty for
/// a name that is none.
[[nodiscard]] std::string zoneDefinition(TextView name, Seconds from);

} // namespace rf::host::ical
