#include "host/entry_id.h"

#include <array>

namespace rf::host {

namespace {

// Sixteen units tell what it is, sixteen which one, as long as the ids of the host that this one stands in for begin.
constexpr TextView itemPrefix = u"EF000000526F6F6D";
constexpr TextView folderPrefix = u"FD000000526F6F6D";
constexpr std::size_t digits = 16;
constexpr TextView hexadecimal = u"0123456789ABCDEF";
constexpr std::uint64_t base = 16;

Text written(TextView prefix, std::int64_t number)
{
    if (number == 0)
        return {};
    Text text(digits, u'0');
    auto rest = static_cast<std::uint64_t>(number);
    for (auto digit = text.rbegin(); rest != 0; ++digit, rest /= base)
        *digit = hexadecimal[rest % base];
    return Text{prefix} + text;
}

std::optional<std::int64_t> read(TextView prefix, TextView text)
{
    if (text.size() != prefix.size() + digits || !equalIgnoringCase(text.substr(0, prefix.size()), prefix))
        return std::nullopt;
    std::uint64_t number = 0;
    for (const char16_t unit : text.substr(prefix.size())) {
        const auto digit = hexadecimal.find(upper(unit));
        if (digit == TextView::npos)
            return std::nullopt;
        number = number * base + digit;
    }
    return static_cast<std::int64_t>(number);
}

} // namespace

Text entryIdOf(ItemId item) { return written(itemPrefix, static_cast<std::int64_t>(item)); }

Text entryIdOf(FolderId folder) { return written(folderPrefix, static_cast<std::int64_t>(folder)); }

std::optional<ItemId> itemIdOf(TextView entryId)
{
    const auto number = read(itemPrefix, entryId);
    return number ? std::optional{ItemId{*number}} : std::nullopt;
}

std::optional<FolderId> folderIdOf(TextView entryId)
{
    const auto number = read(folderPrefix, entryId);
    return number ? std::optional{FolderId{*number}} : std::nullopt;
}

} // namespace rf::host
