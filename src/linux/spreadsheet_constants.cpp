#include "linux/spreadsheet_constants.h"

#include <algorithm>

namespace rf::native::spreadsheet {

namespace {

constexpr std::array oldestConstants{
    Constant{u"owcLineWeightHairline", 0},
    Constant{u"owcLineWeightThin", 1},
    Constant{u"owcLineWeightMedium", 2},
    Constant{u"owcLineWeightThick", 3},
    Constant{u"owcLineStyleNone", 0},
    Constant{u"owcLineStyleSolid", 1},
    Constant{u"owcLineStyleDash", 2},
    Constant{u"owcLineStyleDot", 3},
    Constant{u"ssToLeft", 1},
    Constant{u"ssToRight", 2},
    Constant{u"ssUp", 3},
    Constant{u"ssDown", 4},
    Constant{u"ssHAlignAutomatic", 0},
    Constant{u"ssHAlignLeft", 1},
    Constant{u"ssHAlignCenter", 2},
    Constant{u"ssHAlignRight", 3},
    Constant{u"ssEdgeLeft", 1},
    Constant{u"ssEdgeTop", 2},
    Constant{u"ssEdgeRight", 3},
    Constant{u"ssEdgeBottom", 4},
    Constant{u"ssAscending", 0},
    Constant{u"ssDescending", 1},
    Constant{u"ssGuess", 0},
    Constant{u"ssYes", 1},
    Constant{u"ssNo", 2},
};

constexpr std::array laterConstants{
    Constant{u"owcLineWeightHairline", 1},
    Constant{u"owcLineWeightThin", 2},
    Constant{u"owcLineWeightMedium", 3},
    Constant{u"owcLineWeightThick", 4},
    Constant{u"owcLineStyleNone", -4142},
    Constant{u"owcLineStyleSolid", 1},
    Constant{u"owcLineStyleDash", -4115},
    Constant{u"owcLineStyleDot", -4118},
    Constant{u"xlHairline", 1},
    Constant{u"xlThin", 2},
    Constant{u"xlMedium", -4138},
    Constant{u"xlThick", 4},
    Constant{u"xlLineStyleNone", -4142},
    Constant{u"xlContinuous", 1},
    Constant{u"xlDash", -4115},
    Constant{u"xlDot", -4118},
    Constant{u"xlToLeft", -4159},
    Constant{u"xlToRight", -4161},
    Constant{u"xlUp", -4162},
    Constant{u"xlDown", -4121},
    Constant{u"xlHAlignGeneral", 1},
    Constant{u"xlHAlignLeft", -4131},
    Constant{u"xlHAlignCenter", -4108},
    Constant{u"xlHAlignRight", -4152},
    Constant{u"xlEdgeLeft", 7},
    Constant{u"xlEdgeTop", 8},
    Constant{u"xlEdgeBottom", 9},
    Constant{u"xlEdgeRight", 10},
    Constant{u"xlAscending", 1},
    Constant{u"xlDescending", 2},
    Constant{u"xlGuess", 0},
    Constant{u"xlYes", 1},
    Constant{u"xlNo", 2},
};

/// What a constant stands for in each generation.
template <class Meaning>
struct Named {
    TextView oldest;
    TextView later;
    Meaning meaning;
};

constexpr std::array<Named<Edge>, edgeCount> edges{
    {{u"ssEdgeLeft", u"xlEdgeLeft", Edge::Left}, {u"ssEdgeTop", u"xlEdgeTop", Edge::Top},
        {u"ssEdgeBottom", u"xlEdgeBottom", Edge::Bottom}, {u"ssEdgeRight", u"xlEdgeRight", Edge::Right}}};
constexpr std::array<Named<Alignment>, 4> alignments{{{u"ssHAlignAutomatic", u"xlHAlignGeneral", Alignment::General},
    {u"ssHAlignLeft", u"xlHAlignLeft", Alignment::Left}, {u"ssHAlignCenter", u"xlHAlignCenter", Alignment::Center},
    {u"ssHAlignRight", u"xlHAlignRight", Alignment::Right}}};
constexpr std::array<Named<Direction>, 4> directions{
    {{u"ssDown", u"xlDown", Direction::Down}, {u"ssToRight", u"xlToRight", Direction::Right},
        {u"ssUp", u"xlUp", Direction::Up}, {u"ssToLeft", u"xlToLeft", Direction::Left}}};
constexpr std::array<Named<Order>, 2> orders{
    {{u"ssAscending", u"xlAscending", Order::Ascending}, {u"ssDescending", u"xlDescending", Order::Descending}}};
constexpr std::array<Named<LineStyle>, 4> lineStyles{{{u"owcLineStyleNone", u"owcLineStyleNone", LineStyle::None},
    {u"owcLineStyleSolid", u"owcLineStyleSolid", LineStyle::Solid},
    {u"owcLineStyleDash", u"owcLineStyleDash", LineStyle::Dash},
    {u"owcLineStyleDot", u"owcLineStyleDot", LineStyle::Dot}}};

template <class Meaning>
TextView nameOf(const Named<Meaning>& entry, Generation generation)
{
    return generation == Generation::Oldest ? entry.oldest : entry.later;
}

template <class Meaning, std::size_t count>
std::optional<Meaning> meaningOf(
    const std::array<Named<Meaning>, count>& table, Generation generation, std::int32_t number)
{
    const auto found = std::ranges::find_if(
        table, [&](const auto& entry) { return constantOf(generation, nameOf(entry, generation)) == number; });
    return found == table.end() ? std::nullopt : std::optional{found->meaning};
}

template <class Meaning, std::size_t count>
std::int32_t numberFor(const std::array<Named<Meaning>, count>& table, Generation generation, Meaning meaning)
{
    const auto found = std::ranges::find(table, meaning, &Named<Meaning>::meaning);
    return constantOf(generation, nameOf(*found, generation)).value_or(0);
}

} // namespace

std::span<const Constant> constantsOf(Generation generation)
{
    if (generation == Generation::Oldest)
        return oldestConstants;
    return laterConstants;
}

std::optional<std::int32_t> constantOf(Generation generation, TextView name)
{
    const auto constants = constantsOf(generation);
    const auto found
        = std::ranges::find_if(constants, [&](const Constant& entry) { return equalIgnoringCase(entry.name, name); });
    return found == constants.end() ? std::nullopt : std::optional{found->value};
}

std::optional<Edge> edgeOf(Generation generation, std::int32_t number) { return meaningOf(edges, generation, number); }

std::optional<Alignment> alignmentOf(Generation generation, std::int32_t number)
{
    return meaningOf(alignments, generation, number);
}

std::int32_t numberOf(Generation generation, Alignment alignment)
{
    return numberFor(alignments, generation, alignment);
}

std::optional<Direction> directionOf(Generation generation, std::int32_t number)
{
    return meaningOf(directions, generation, number);
}

std::int32_t numberOf(Generation generation, Direction direction)
{
    return numberFor(directions, generation, direction);
}

std::optional<Order> orderOf(Generation generation, std::int32_t number)
{
    return meaningOf(orders, generation, number);
}

std::optional<LineStyle> lineStyleOf(Generation generation, std::int32_t number)
{
    return meaningOf(lineStyles, generation, number);
}

std::int32_t numberOf(Generation generation, LineStyle style) { return numberFor(lineStyles, generation, style); }

int lineWidthOf(Generation generation, std::int32_t weight)
{
    if (weight == constantOf(generation, u"owcLineWeightThick"))
        return 3;
    const bool medium
        = weight == constantOf(generation, u"owcLineWeightMedium") || weight == constantOf(generation, u"xlMedium");
    return medium ? 2 : 1;
}

} // namespace rf::native::spreadsheet
