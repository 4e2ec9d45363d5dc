#pragma once

#include <map>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace rf::host {

/// A command line that does not follow the usage; the text says what is wrong.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Options and words of a command, in any order. An option given twice has its last value.
class CommandLine {
public:
    /// `valued` are the options that a value follows, `flags` those that stand alone. `UsageError` for any other option
    /// and for one without its value.
    CommandLine(std::span<const std::string> arguments, const std::vector<std::string>& valued,
        const std::vector<std::string>& flags);

    [[nodiscard]] const std::vector<std::string>& words() const { return words_; }
    [[nodiscard]] bool has(const std::string& option) const { return options_.contains(option); }
    [[nodiscard]] std::string value(const std::string& option, const std::string& otherwise) const;
    /// `UsageError` when it is missing.
    [[nodiscard]] std::string required(const std::string& option) const;

private:
    std::vector<std::string> words_;
    std::map<std::string, std::string> options_;
};

} // namespace rf::host
