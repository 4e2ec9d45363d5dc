#include "linux/scripting_shell.h"

#include "linux/scripting_error.h"
#include "linux/spawn.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <optional>
#include <pwd.h>
#include <string>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace rf::native {

using automation::Arguments;
using automation::Variant;

namespace {

std::optional<std::string> logOnName()
{
    const auto* user = ::getpwuid(::getuid());
    return user == nullptr ? std::nullopt : std::optional<std::string>{user->pw_name};
}

std::optional<std::string> hostName()
{
    std::array<char, HOST_NAME_MAX + 1> name{};
    if (::gethostname(name.data(), name.size() - 1) != 0)
        return std::nullopt;
    return name.data();
}

/// Windows sets the user's name and domain for every process; here they are found out when nobody has set them.
std::optional<std::string> environmentVariable(TextView name)
{
    const auto key = toUtf8(name);
    if (const char* value = std::getenv(key.c_str()))
        return value;
    if (equalIgnoringCase(name, u"USERNAME"))
        return logOnName();
    if (equalIgnoringCase(name, u"USERDOMAIN"))
        return hostName();
    return std::nullopt;
}

Text expanded(TextView text)
{
    constexpr char16_t mark = u'%';
    Text result;
    while (!text.empty()) {
        const auto open = std::min(text.find(mark), text.size());
        result += text.substr(0, open);
        text.remove_prefix(open);
        const auto close = text.find(mark, 1);
        if (close == TextView::npos) {
            result += text;
            break;
        }
        if (const auto value = environmentVariable(text.substr(1, close - 1))) {
            result += fromUtf8(*value);
            text.remove_prefix(close + 1);
        } else {
            // The second mark may begin a name of its own.
            result += text.substr(0, close);
            text.remove_prefix(close);
        }
    }
    return result;
}

bool isAddress(std::string_view target)
{
    constexpr std::array<TextView, 3> schemes{u"http:", u"https:", u"mailto:"};
    return std::ranges::any_of(
        schemes, [&](TextView scheme) { return equalIgnoringCase(fromUtf8(target.substr(0, scheme.size())), scheme); });
}

/// The program and its arguments; an address is the one argument of the program that opens addresses.
std::vector<std::string> programFor(TextView command)
{
    auto words = commandWords(command);
    if (words.empty() || !isAddress(words.front()))
        return words;
    std::string address = std::move(words.front());
    for (std::size_t index = 1; index < words.size(); ++index)
        address += ' ' + words[index];
    return {"xdg-open", std::move(address)};
}

std::int32_t run(const Arguments& arguments)
{
    const bool wait = arguments.has(2) && arguments[2].boolean();
    const auto process = startProgram(programFor(arguments[0].text()));
    if (!process)
        throw scriptingError(scripting_error::commandNotFound, ScriptingShell::className);
    if (wait)
        return waitForProgram(*process);
    leaveProgram(*process);
    return 0;
}

} // namespace

std::span<const automation::LocalMember<ScriptingShell>> ScriptingShell::members()
{
    using Self = ScriptingShell;
    static constexpr automation::LocalMember<Self> table[]{
        {u"ExpandEnvironmentStrings",
            [](Self&, const Arguments& arguments) { return Variant{expanded(arguments[0].text())}; }},
        {u"Run", [](Self&, const Arguments& arguments) { return Variant{run(arguments)}; }},
    };
    return table;
}

} // namespace rf::native
