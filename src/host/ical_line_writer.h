#pragma once

#include <string>
#include <string_view>

namespace rf::host::ical {

/// Appends lines to a calendar text: none longer than 75 bytes, none broken within a character.
class LineWriter {
public:
    explicit LineWriter(std::string& bytes)
        : bytes_(bytes)
    {
    }

    /// The name with its parameters, and the value as it is to stand there.
    void line(std::string_view name, std::string_view value);
    /// Lines that are made already.
    void raw(std::string_view lines) { bytes_ += lines; }

private:
    std::string& bytes_;
};

} // namespace rf::host::ical
