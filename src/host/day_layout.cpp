#include "host/day_layout.h"

#include <algorithm>

namespace rf::host {

namespace {

/// Puts a span into the first lane whose last one has ended.
std::size_t place(std::vector<std::int64_t>& ends, const Span& span)
{
    const auto free = std::ranges::find_if(ends, [&](std::int64_t end) { return end <= span.from; });
    const auto lane = static_cast<std::size_t>(free - ends.begin());
    if (free == ends.end())
        ends.push_back(span.to);
    else
        *free = span.to;
    return lane;
}

} // namespace

std::vector<Lane> sideBySide(std::span<const Span> spans)
{
    std::vector<Lane> lanes(spans.size());
    std::vector<std::int64_t> ends;
    std::size_t first = 0;
    const auto shareWidth = [&](std::size_t behind) {
        for (; first < behind; ++first)
            lanes[first].lanes = static_cast<int>(ends.size());
        ends.clear();
    };
    for (std::size_t index = 0; index < spans.size(); ++index) {
        if (!ends.empty() && *std::ranges::max_element(ends) <= spans[index].from)
            shareWidth(index);
        lanes[index].lane = static_cast<int>(place(ends, spans[index]));
    }
    shareWidth(spans.size());
    return lanes;
}

std::vector<int> stackedRows(std::span<const Span> spans)
{
    std::vector<int> rows;
    std::vector<std::int64_t> ends;
    for (const Span& span : spans)
        rows.push_back(static_cast<int>(place(ends, span)));
    return rows;
}

} // namespace rf::host
