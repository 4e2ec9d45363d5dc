#include "linux/system.h"

#include "linux/spawn.h"

#include <charconv>
#include <cstdlib>
#include <iostream>
#include <string>
#include <sys/utsname.h>

extern "C" {
extern const char rf_language_begin[];
extern const char rf_language_end[];
}

namespace rf::native {

namespace {

void startAndLeave(std::vector<std::string> words)
{
    if (const auto process = startProgram(std::move(words)))
        leaveProgram(*process);
}

} // namespace

SystemVersion LinuxSystem::version() const
{
    utsname names{};
    if (uname(&names) != 0)
        return {};
    SystemVersion version;
    version.name = fromUtf8(names.sysname);
    const std::string_view release{names.release};
    const char* const end = release.data() + release.size();
    const auto major = std::from_chars(release.data(), end, version.major);
    if (major.ptr != end)
        std::from_chars(major.ptr + 1, end, version.minor);
    return version;
}

std::string_view LinuxSystem::resource(TextView type, TextView name) const
{
    if (type != u"CUSTOM" || name != u"LANGUAGE")
        return {};
    return {rf_language_begin, static_cast<std::size_t>(rf_language_end - rf_language_begin)};
}

void LinuxSystem::launch(TextView command, WindowStyle) { startAndLeave(commandWords(command)); }

void LinuxSystem::invokeVerb(TextView verb, TextView path)
{
    if (equalIgnoringCase(verb, u"Print"))
        startAndLeave({"lp", toUtf8(path)});
}

void LinuxSystem::endProcess()
{
    std::cout.flush();
    std::_Exit(EXIT_SUCCESS);
}

} // namespace rf::native
