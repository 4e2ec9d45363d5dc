#include "linux/rfhost/unattended_windows.h"

#include "outlook/constants.h"

#include <ostream>

namespace rf::native {

namespace {

/// The object model's numbers of the answers.
constexpr std::int32_t ok = 1;
constexpr std::int32_t cancel = 2;
constexpr std::int32_t yes = 6;
constexpr std::int32_t no = 7;

struct Answers {
    std::int32_t agree = ok;
    std::int32_t decline = ok;
};

Answers answersOf(std::int32_t buttons)
{
    switch (static_cast<outlook::AlertButtons>(buttons)) {
    case outlook::AlertButtons::OkCancel:
        return {ok, cancel};
    case outlook::AlertButtons::YesNo:
        return {yes, no};
    case outlook::AlertButtons::Ok:
        break;
    }
    return {};
}

const char* nameOf(std::int32_t answer)
{
    switch (answer) {
    case cancel:
        return "Cancel";
    case yes:
        return "Yes";
    case no:
        return "No";
    default:
        return "OK";
    }
}

} // namespace

std::int32_t UnattendedWindows::alert(
    const Text& title, const Text& message, std::int32_t buttons, std::int32_t /*icon*/)
{
    const Answers answers = answersOf(buttons);
    const std::int32_t answer = acceptAlerts_ ? answers.agree : answers.decline;
    out_ << toUtf8(title) << ": " << toUtf8(replaceAll(message, lineBreak, u"\n")) << "\n[" << nameOf(answer) << "]"
         << std::endl;
    return answer;
}

} // namespace rf::native
