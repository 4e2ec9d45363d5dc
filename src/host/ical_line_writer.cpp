#include "host/ical_line_writer.h"

namespace rf::host::ical {
namespace {

/// How many of the bytes fit into a line so that no character is broken.
std::size_t fitting(std::string_view bytes, std::size_t most)
{
    if (bytes.size() <= most) {
        return bytes.size();
    }
    // The bytes of a character behind its first begin with the bits 10.
    const auto isWithinCharacter
        = [bytes](std::size_t position) { return (static_cast<unsigned char>(bytes[position]) >> 6) == 2; };
    std::size_t length = most;
    while (length > 1 && isWithinCharacter(length)) {
        --length;
    }
    return length;
}

} // namespace

void LineWriter::line(std::string_view name, std::string_view value)
{
    constexpr std::size_t longest = 75;
    std::string whole{name};
    whole += ':';
    whole += value;
    std::string_view rest = whole;
    std::size_t room = longest;
    while (true) {
        const std::size_t length = fitting(rest, room);
        bytes_ += rest.substr(0, length);
        bytes_ += "\r\n";
        rest.remove_prefix(length);
        if (rest.empty()) {
            return;
        }
        bytes_ += ' ';
        room = longest - 1;
    }
}

} // namespace rf::host::ical
