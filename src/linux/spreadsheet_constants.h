#pragma once

#include "basic/text.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>

namespace rf::native::spreadsheet {

/// The generations of the spreadsheet control. They differ in the numbers and names of constants and in where a few
/// members live.
enum class Generation { Oldest, Later };

struct Constant {
    TextView name;
    std::int32_t value;
};

/// Every constant that a generation has.
[[nodiscard]] std::span<const Constant> constantsOf(Generation generation);
[[nodiscard]] std::optional<std::int32_t> constantOf(Generation generation, TextView name);

enum class Edge : std::uint8_t { Left, Top, Bottom, Right };
inline constexpr std::size_t edgeCount = 4;
enum class Alignment : std::uint8_t { General, Left, Center, Right };
enum class Direction : std::uint8_t { Down, Right, Up, Left };
enum class Order : std::uint8_t { Ascending, Descending };
enum class LineStyle : std::uint8_t { None, Solid, Dash, Dot };

/// What a generation's numbers mean, and back. A number that a generation does not have gives nothing.
[[nodiscard]] std::optional<Edge> edgeOf(Generation generation, std::int32_t number);
[[nodiscard]] std::optional<Alignment> alignmentOf(Generation generation, std::int32_t number);
[[nodiscard]] std::int32_t numberOf(Generation generation, Alignment alignment);
[[nodiscard]] std::optional<Direction> directionOf(Generation generation, std::int32_t number);
[[nodiscard]] std::int32_t numberOf(Generation generation, Direction direction);
[[nodiscard]] std::optional<Order> orderOf(Generation generation, std::int32_t number);
[[nodiscard]] std::optional<LineStyle> lineStyleOf(Generation generation, std::int32_t number);
[[nodiscard]] std::int32_t numberOf(Generation generation, LineStyle style);
/// The width of a line in pixels for a weight of the generation.
[[nodiscard]] int lineWidthOf(Generation generation, std::int32_t weight);

} // namespace rf::native::spreadsheet
