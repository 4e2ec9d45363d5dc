#include "linux/dbus_activation.h"

#include "linux/dbus_protocol.h"

#include <fstream>

namespace rf::native::dbus {

namespace {

/// Between single quotes nothing has a meaning but the quote itself.
std::string quoted(const std::string& word)
{
    std::string text{"'"};
    for (const char letter : word)
        text += letter == '\'' ? std::string{"'\\''"} : std::string{letter};
    return text + "'";
}

/// In a service file a backslash begins an escape.
std::string escaped(const std::string& value)
{
    std::string text;
    for (const char letter : value)
        text += letter == '\\' ? std::string{"\\\\"} : std::string{letter};
    return text;
}

} // namespace

std::string commandLineOf(const std::vector<std::string>& words)
{
    std::string line;
    for (const std::string& word : words)
        line += (line.empty() ? "" : " ") + quoted(word);
    return line;
}

std::filesystem::path writeServiceFile(
    const std::filesystem::path& folder, TextView className, const std::vector<std::string>& command)
{
    std::filesystem::create_directories(folder);
    const std::string name = busName(className).toStdString();
    std::filesystem::path path = folder / (name + ".service");
    std::ofstream file{path};
    file << "[D-BUS Service]\nName=" << name << "\nExec=" << escaped(commandLineOf(command)) << '\n';
    file.close();
    if (!file)
        throw std::filesystem::filesystem_error{"cannot write", path, std::make_error_code(std::errc::io_error)};
    return path;
}

} // namespace rf::native::dbus
