#include "diagnostics/operating_system.h"

namespace rf {

namespace {

constexpr std::uint32_t platformWindows95Line = 1;
constexpr std::uint32_t platformWindowsNtLine = 2;

Text numbered(TextView name, const SystemVersion& version)
{
    return Text{name} + u" " + decimal(version.major) + u"." + decimal(version.minor);
}

TextView windows95Line(std::uint32_t minor)
{
    constexpr std::uint32_t windowsMe = 90;
    switch (minor) {
    case 0:
        return u"Windows 95";
    case 10:
        return u"Windows 98";
    case windowsMe:
        return u"Windows Me";
    default:
        return {};
    }
}

} // namespace

Text fncGetOSName(const SystemVersion& version)
{
    if (!version.name.empty())
        return numbered(version.name, version);
    if (version.platformId == platformWindowsNtLine)
        return numbered(u"Windows NT", version);
    if (version.platformId == platformWindows95Line)
        return Text{windows95Line(version.minor)};
    return {};
}

} // namespace rf
