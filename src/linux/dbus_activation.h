#pragma once

#include "basic/text.h"

#include <filesystem>
#include <string>
#include <vector>

namespace rf::native::dbus {

/// Writes the file by which a bus starts the process that offers a class, when somebody asks for the class and nobody
/// offers it. `folder` is one in which the bus looks for such files; it is made when it is missing, and a file of an
/// earlier time is replaced. Answers the file's path. `std::filesystem::filesystem_error` when it cannot be written.
std::filesystem::path writeServiceFile(
    const std::filesystem::path& folder, TextView className, const std::vector<std::string>& command);

/// The words as one line that the bus takes apart into the same words again.
[[nodiscard]] std::string commandLineOf(const std::vector<std::string>& words);

} // namespace rf::native::dbus
