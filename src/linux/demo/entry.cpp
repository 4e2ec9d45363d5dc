#include "app/session.h"
#include "host/command_line.h"
#include "linux/demo/demo_system.h"
#include "linux/demo/demonstration.h"
#include "linux/demo/fill.h"
#include "linux/demo/host_client.h"
#include "linux/process_table.h"
#include "linux/regional.h"
#include "linux/toolkit.h"

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace {

namespace fs = std::filesystem;
using namespace rf;

constexpr std::string_view usage = R"(Usage: rfdemo [--pictures FOLDER] [--deliver-only] CALENDAR...
       rfdemo fill --store FILE --bookings NUMBER CALENDAR...

Beside a host on the session bus, brings the talks of calendar files into the
calendars of their rooms, one by one, as another client does, and tells what
RFBookingInfo makes of them. The host needs the root folder of "rfhost init",
starts RFBookingInfo when that folder is shown ("rfhost serve --program"), and
agrees to alerts ("--accept-alerts") when nobody is there to answer them. A talk
that is booked already is left alone.

  --pictures FOLDER  where the picture of a week goes; here by default
  --deliver-only     leave out what happens to a booking afterwards

fill writes so many bookings of past years and their copies into a store that no
host serves, for measuring.

The exit status is 0 when all was as it should be, 1 when something was not, 2
for a wrong command line.
)";

std::vector<fs::path> calendarsOf(const host::CommandLine& line)
{
    if (line.words().empty())
        throw host::UsageError{"a calendar file is missing"};
    return {line.words().begin(), line.words().end()};
}

int fill(std::span<const std::string> arguments)
{
    const host::CommandLine line{arguments, {"--store", "--bookings"}, {}};
    const auto programme = demo::readProgramme(calendarsOf(line));
    const auto regional = native::makeRegional();
    const auto count = regional->parseNumber(fromUtf8(line.required("--bookings")));
    constexpr double most = 10'000'000;
    if (!count || *count < 0 || *count > most)
        throw host::UsageError{"--bookings needs a number up to 10000000"};
    demo::fillStore(line.required("--store"), programme.talks, static_cast<std::int64_t>(*count));
    return EXIT_SUCCESS;
}

int deliver(std::span<const std::string> arguments, bool hasScreen, ui::Toolkit& toolkit)
{
    constexpr std::chrono::seconds hostLimit{10};
    const host::CommandLine line{arguments, {"--pictures"}, {"--deliver-only"}};
    const demo::DemoOptions options{
        calendarsOf(line), line.value("--pictures", "."), !line.has("--deliver-only"), hasScreen};
    demo::HostClient host;
    host.attach(hostLimit);
    const auto regional = native::makeRegional();
    const SystemClock clock;
    demo::DemoSystem system;
    native::LinuxProcessTable processes;
    Session session{{*regional, clock, host.classes(), system, processes, toolkit}};
    session.ouaApp = host.application();
    session.ounNameSpace = session.ouaApp.getNamespace();
    session.language.LoadLanguages(session.language.fncGetlocalLanguage());
    return demo::demonstrate(session, host, options, std::cout) ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argumentCount, char** argumentList)
{
    const std::vector<std::string> words{argumentList + 1, argumentList + argumentCount};
    if (words.empty() || words[0] == "--help" || words[0] == "-h") {
        (words.empty() ? std::cerr : std::cout) << usage;
        return words.empty() ? 2 : 0;
    }
    // It has no windows, so it needs no screen either.
    bool hasScreen = false;
    for (const char* const screen : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"}) {
        const char* const value = std::getenv(screen);
        hasScreen = hasScreen || (value != nullptr && *value != '\0');
        unsetenv(screen);
    }
    native::QtToolkit toolkit{argumentCount, argumentList};
    try {
        const bool isFill = words[0] == "fill";
        return isFill ? fill(std::span{words}.subspan(1)) : deliver(words, hasScreen, toolkit);
    } catch (const host::UsageError& error) {
        std::cerr << "rfdemo: " << error.what() << "\n\n" << usage;
        return 2;
    } catch (const RuntimeError& error) {
        std::cerr << "rfdemo: " << toUtf8(error.description()) << '\n';
    } catch (const std::exception& error) {
        std::cerr << "rfdemo: " << error.what() << '\n';
    }
    return EXIT_FAILURE;
}
