#include "host/command_line.h"

#include <algorithm>

namespace rf::host {

CommandLine::CommandLine(std::span<const std::string> arguments, const std::vector<std::string>& valued,
    const std::vector<std::string>& flags)
{
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        if (!argument->starts_with("--")) {
            words_.push_back(*argument);
        } else if (std::ranges::find(flags, *argument) != flags.end()) {
            options_[*argument] = {};
        } else if (std::ranges::find(valued, *argument) == valued.end()) {
            throw UsageError{"unknown option " + *argument};
        } else if (std::next(argument) == arguments.end()) {
            throw UsageError{*argument + " needs a value"};
        } else {
            const std::string& option = *argument;
            options_[option] = *++argument;
        }
    }
}

std::string CommandLine::value(const std::string& option, const std::string& otherwise) const
{
    const auto found = options_.find(option);
    return found == options_.end() ? otherwise : found->second;
}

std::string CommandLine::required(const std::string& option) const
{
    const auto found = options_.find(option);
    if (found == options_.end())
        throw UsageError{option + " is missing"};
    return found->second;
}

} // namespace rf::host
