#include "host/ical_zone.h"

#include <unicode/basictz.h>
#include <unicode/strenum.h>
#include <unicode/unistr.h>
#include <unicode/vtzone.h>

#include <cmath>
#include <string_view>
#include <utility>

namespace rf::host::ical {
namespace {

/// ICU counts milliseconds from 1970.
constexpr double unixEpoch = 25569.0 * secondsPerDay;
constexpr double toIcu(Seconds time) { return (static_cast<double>(time) - unixEpoch) * 1000; }

icu::UnicodeString icuText(TextView text) { return {text.data(), static_cast<std::int32_t>(text.size())}; }

Text textOf(const icu::UnicodeString& text) { return {text.getBuffer(), static_cast<std::size_t>(text.length())}; }

class IcuZone final : public Zone {
public:
    explicit IcuZone(std::unique_ptr<icu::BasicTimeZone> zone)
        : zone_(std::move(zone))
    {
    }

    [[nodiscard]] Seconds offsetAt(Seconds utc) const override
    {
        UErrorCode status = U_ZERO_ERROR;
        std::int32_t raw = 0;
        std::int32_t summer = 0;
        zone_->getOffset(toIcu(utc), static_cast<UBool>(false), raw, summer, status);
        return (raw + summer) / 1000;
    }

    [[nodiscard]] Seconds toUtc(Seconds wall) const override
    {
        UErrorCode status = U_ZERO_ERROR;
        std::int32_t raw = 0;
        std::int32_t summer = 0;
        zone_->getOffsetFromLocal(toIcu(wall), UCAL_TZ_LOCAL_FORMER, UCAL_TZ_LOCAL_FORMER, raw, summer, status);
        return wall - (raw + summer) / 1000;
    }

private:
    std::unique_ptr<icu::BasicTimeZone> zone_;
};

/// Every zone that ICU makes is one of these; null for what it does not know.
std::unique_ptr<Zone> fromIcu(std::unique_ptr<icu::TimeZone> zone)
{
    auto* const basic = dynamic_cast<icu::BasicTimeZone*>(zone.get());
    if (basic == nullptr || *zone == icu::TimeZone::getUnknown()) {
        return nullptr;
    }
    static_cast<void>(zone.release());
    return std::make_unique<IcuZone>(std::unique_ptr<icu::BasicTimeZone>{basic});
}

constexpr std::size_t longestName = 100;

std::unique_ptr<Zone> makeZone(TextView name)
{
    if (name.empty() || name.size() > longestName) {
        return nullptr;
    }
    return fromIcu(std::unique_ptr<icu::TimeZone>{icu::TimeZone::createTimeZone(icuText(name))});
}

/// Whether two zones agree over two years; weeks first, since most do not.
bool agree(const Zone& left, const Zone& right, Seconds from)
{
    constexpr Seconds span = 731 * secondsPerDay;
    for (const Seconds step : {7 * secondsPerDay, Seconds{1800}}) {
        for (Seconds time = from; time <= from + span; time += step) {
            if (left.offsetAt(time) != right.offsetAt(time)) {
                return false;
            }
        }
    }
    return true;
}

/// Programs differ in how they read seconds in an offset, and the names that ICU gives say nothing; it calls even
/// "GMT+3" by another.
void appendDefinitionLine(std::string& definition, std::string_view line)
{
    if (line.starts_with("X-") || line.starts_with("TZNAME") || line.starts_with("TZID")) {
        return;
    }
    constexpr std::size_t offsetWithSeconds = 7;
    const bool isOffset = line.starts_with("TZOFFSET") && line.size() - line.find(':') - 1 == offsetWithSeconds;
    definition += line.substr(0, line.size() - (isOffset && line.ends_with("00") ? 2 : 0));
    definition += "\r\n";
}

} // namespace

Seconds Zone::toUtc(Seconds wall) const
{
    const Seconds before = offsetAt(wall - secondsPerDay - secondsPerDay / 2);
    if (offsetAt(wall - before) == before) {
        return wall - before;
    }
    const Seconds after = offsetAt(wall - before);
    return offsetAt(wall - after) == after ? wall - after : wall - before;
}

ZoneTable::ZoneTable()
{
    std::unique_ptr<icu::TimeZone> zone{icu::TimeZone::detectHostTimeZone()};
    icu::UnicodeString name;
    zone->getID(name);
    local_ = fromIcu(std::move(zone));
    if (local_) {
        localName_ = textOf(name);
    } else {
        local_ = makeZone(u"Etc/UTC");
    }
}

ZoneTable::~ZoneTable() = default;

const Zone* ZoneTable::named(TextView name)
{
    constexpr std::size_t mostNames = 2000;
    if (const auto found = zones_.find(name); found != zones_.end()) {
        return found->second.get();
    }
    std::unique_ptr<Zone> zone = makeZone(name);
    if (!zone && zones_.size() >= mostNames) {
        return nullptr;
    }
    return zones_.emplace(Text{name}, std::move(zone)).first->second.get();
}

Text ZoneTable::nameOf(const Zone& zone, Seconds from) const
{
    if (!localName_.empty() && agree(zone, *local_, from)) {
        return localName_;
    }
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::StringEnumeration> names{
        icu::TimeZone::createTimeZoneIDEnumeration(UCAL_ZONE_TYPE_CANONICAL_LOCATION, nullptr, nullptr, status)};
    for (const icu::UnicodeString* name = nullptr;
         U_SUCCESS(status) != 0 && (name = names->snext(status)) != nullptr;) {
        const std::unique_ptr<Zone> candidate = makeZone(textOf(*name));
        if (candidate && agree(zone, *candidate, from)) {
            return textOf(*name);
        }
    }
    return {};
}

Text ianaNameOf(TextView windowsName)
{
    if (windowsName.empty() || windowsName.size() > longestName) {
        return {};
    }
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString name;
    icu::TimeZone::getIDForWindowsID(icuText(windowsName), nullptr, name, status);
    return U_SUCCESS(status) != 0 ? textOf(name) : Text{};
}

std::string zoneDefinition(TextView name, Seconds from)
{
    const std::unique_ptr<icu::VTimeZone> zone{icu::VTimeZone::createVTimeZoneByID(icuText(name))};
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString text;
    if (!zone || !makeZone(name)) {
        return {};
    }
    zone->write(toIcu(from), text, status);
    if (U_FAILURE(status) != 0) {
        return {};
    }
    std::string lines;
    text.toUTF8String(lines);
    std::string definition;
    for (std::string_view rest = lines; !rest.empty();) {
        const std::size_t end = rest.find("\r\n");
        const std::string_view line = rest.substr(0, end);
        appendDefinitionLine(definition, line);
        if (line == "BEGIN:VTIMEZONE") {
            definition += "TZID:" + toUtf8(name) + "\r\nX-LIC-LOCATION:" + toUtf8(name) + "\r\n";
        }
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 2);
    }
    return definition;
}

} // namespace rf::host::ical
