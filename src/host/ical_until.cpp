#include "host/ical_until.h"

namespace rf::host::ical {

Text withUntil(TextView rule, const std::function<WrittenTime(const WrittenTime&)>& change)
{
    constexpr TextView name = u"UNTIL=";
    const std::size_t found = findIgnoringCase(rule, name);
    if (found == TextView::npos || (found != 0 && rule[found - 1] != u';')) {
        return Text{rule};
    }
    const std::size_t begin = found + name.size();
    const std::size_t length = rule.substr(begin).find(u';');
    const TextView value = rule.substr(begin, length);
    const std::optional<WrittenTime> written = readTime(toUtf8(upper(value)));
    if (!written) {
        return Text{rule};
    }
    const WrittenTime until = change(*written);
    std::string text = until.isDate ? writeDate(until.time) : writeTime(until.time);
    text += until.isUtc ? "Z" : "";
    return Text{rule.substr(0, begin)} + fromUtf8(text) + Text{rule.substr(begin + value.size())};
}

} // namespace rf::host::ical
