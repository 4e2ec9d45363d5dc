#include "app/main.h"
#include "app/session.h"
#include "basic/clock.h"
#include "linux/class_registry.h"
#include "linux/process_table.h"
#include "linux/regional.h"
#include "linux/system.h"
#include "linux/toolkit.h"
#include "program_version.h"

#include <iostream>
#include <span>
#include <string_view>

namespace {

constexpr std::string_view usage = R"(Usage: RFBookingInfo [NUMBER [PAGE]]

Runs beside the host and turns its shared resource calendars into a booking
system. One instance runs per user: a second one leaves at once, unless it is
started with a number and a page, in which case it replaces the first and shows
the page in the room viewer.

  --help     show this text
  --version  show the version
)";

rf::Text joined(std::span<char*> arguments)
{
    rf::Text line;
    for (const char* argument : arguments)
        line += (line.empty() ? u"" : u" ") + rf::fromUtf8(argument);
    return line;
}

} // namespace

int main(int argumentCount, char** argumentList)
{
    const std::span arguments{argumentList + 1, static_cast<std::size_t>(argumentCount - 1)};
    const rf::Text commandLine = joined(arguments);
    if (commandLine == u"--help") {
        std::cout << usage;
        return 0;
    }
    if (commandLine == u"--version") {
        std::cout << "RFBookingInfo " << rf::programVersion.major << '.' << rf::programVersion.minor << '.'
                  << rf::programVersion.revision << '\n';
        return 0;
    }

    rf::native::QtToolkit toolkit{argumentCount, argumentList};
    rf::native::LinuxSystem system{rf::programVersion, commandLine};
    rf::native::LinuxProcessTable processes;
    rf::native::LinuxClassRegistry classes;
    const auto regional = rf::native::makeRegional();
    const rf::SystemClock clock;
    rf::runProgram({*regional, clock, classes, system, processes, toolkit});
}
