#pragma once

#include "basic/text.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace rf {

/// What the operating system says of itself. Windows answers with a platform id (2 for the NT line, 1 for the line
/// of Windows 95); a system without such ids gives its name instead, as "Linux".
struct SystemVersion {
    std::uint32_t platformId = 0;
    std::uint32_t major = 0;
    std::uint32_t minor = 0;
    Text name;
};

/// The version of this build.
struct ProgramVersion {
    int major = 0;
    int minor = 0;
    int revision = 0;
};

/// How the window of a started program appears; the values are the shell's.
enum class WindowStyle { Normal = 1, Minimized = 2 };

/// What the program asks of the operating system beyond automation. Nothing here throws: what fails has no effect
/// or gives an empty answer.
class System {
public:
    virtual ~System() = default;

    [[nodiscard]] virtual SystemVersion version() const = 0;
    [[nodiscard]] virtual ProgramVersion programVersion() const = 0;
    /// Everything behind the program's name on its command line; several arguments with one blank between them.
    [[nodiscard]] virtual Text commandLine() const = 0;
    /// The bytes of a resource that is built into the program, by its type and name; they live as long as the
    /// program. Empty when there is none.
    [[nodiscard]] virtual std::string_view resource(TextView type, TextView name) const = 0;
    /// Registers the common control classes of the given flags, which puts the visual styles of the manifest into
    /// effect. Without meaning elsewhere than on Windows.
    virtual void initCommonControls(std::uint32_t classFlags) = 0;
    /// Starts a program with its arguments and does not wait for it.
    virtual void launch(TextView command, WindowStyle style) = 0;
    /// Invokes a shell verb such as "Print" on a file.
    virtual void invokeVerb(TextView verb, TextView path) = 0;
    /// The command that opens a page in the user's default browser.
    [[nodiscard]] virtual Text browserCommand() const = 0;
    /// Ends the process with exit status 0; no further code runs.
    [[noreturn]] void terminate()
    {
        endProcess();
        std::abort();
    }

protected:
    /// Does not return. Tests unwind out of it instead.
    virtual void endProcess() = 0;
};

} // namespace rf
