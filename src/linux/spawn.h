#pragma once

#include "basic/text.h"

#include <cstdint>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace rf::native {

/// The words of a command: blanks separate them, double quotes keep one together. Nothing else has a meaning.
[[nodiscard]] std::vector<std::string> commandWords(TextView command);

/// Starts a program by its name or path, with its arguments behind it. A name that is known only without its ".exe" is
/// taken without: that ending is Windows' own. Nothing when there is no such program.
[[nodiscard]] std::optional<pid_t> startProgram(std::vector<std::string> words);

/// The exit status; of a program that a signal has ended, 128 and the signal's number, as command line interpreters
/// tell it.
std::int32_t waitForProgram(pid_t process);

/// Lets a program run by itself; it leaves no zombie behind when it ends.
void leaveProgram(pid_t process);

} // namespace rf::native
