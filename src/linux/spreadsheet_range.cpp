#include "automation/local_object.h"
#include "linux/spreadsheet_html.h"
#include "linux/spreadsheet_objects.h"

namespace rf::native::spreadsheet {

using automation::Arguments;
using automation::LocalMember;
using automation::LocalObject;
using automation::Object;
using automation::Variant;

namespace {

/// What an object that stands for an area has.
template <class Self>
class AreaObject : public LocalObject<Self> {
public:
    AreaObject(std::shared_ptr<Sheet> sheet, const Area& area)
        : sheet_(std::move(sheet))
        , area_(area)
    {
    }
    [[nodiscard]] Sheet& sheet() const { return *sheet_; }
    [[nodiscard]] const std::shared_ptr<Sheet>& shared() const { return sheet_; }
    [[nodiscard]] const Area& area() const { return area_; }

private:
    std::shared_ptr<Sheet> sheet_;
    Area area_;
};

/// A format of the area as a member; it answers that of the first cell.
template <class Self, class T, AreaMap<T> Formats::*field, T (*read)(const Variant& value)>
constexpr LocalMember<Self> format(TextView name)
{
    return {name,
        [](Self& self, const Arguments&) { return Variant{(self.sheet().formats().*field).at(self.area().first)}; },
        [](Self& self, const Arguments& arguments) {
            const T value = read(arguments.value());
            self.sheet().format([&](Formats& formats) { (formats.*field).set(self.area(), value); });
        }};
}

Text textIn(const Variant& value) { return value.text(); }
bool truthIn(const Variant& value) { return value.boolean(); }
double numberIn(const Variant& value) { return value.number(); }

class FontObject final : public AreaObject<FontObject> {
public:
    using AreaObject::AreaObject;
    static constexpr TextView className = u"Font";
    static std::span<const LocalMember<FontObject>> members()
    {
        static constexpr LocalMember<FontObject> table[]{
            format<FontObject, Text, &Formats::fontName, textIn>(u"Name"),
            format<FontObject, bool, &Formats::bold, truthIn>(u"Bold"),
            format<FontObject, double, &Formats::fontSize, numberIn>(u"Size"),
        };
        return table;
    }
};

class InteriorObject final : public AreaObject<InteriorObject> {
public:
    using AreaObject::AreaObject;
    static constexpr TextView className = u"Interior";
    static std::span<const LocalMember<InteriorObject>> members()
    {
        static constexpr LocalMember<InteriorObject> table[]{
            {u"Color",
                [](InteriorObject& self, const Arguments&) {
                    constexpr std::int32_t white = 0xFFFFFF;
                    return Variant{self.sheet().formats().interior.at(self.area().first).value_or(white)};
                },
                [](InteriorObject& self, const Arguments& arguments) {
                    const std::int32_t color = arguments.value().integer32();
                    self.sheet().format([&](Formats& formats) { formats.interior.set(self.area(), color); });
                }},
        };
        return table;
    }
};

/// The lines on every edge of every cell of the area, or those on one edge of the area.
class BordersObject final : public AreaObject<BordersObject> {
public:
    BordersObject(const std::shared_ptr<Sheet>& sheet, const Area& area, std::optional<Edge> edge)
        : AreaObject(sheet, area)
        , edge_(edge)
    {
    }
    static constexpr TextView className = u"Borders";
    static std::span<const LocalMember<BordersObject>> members()
    {
        using Self = BordersObject;
        static constexpr LocalMember<Self> table[]{
            {u"Color", [](Self& self, const Arguments&) { return Variant{self.first().color.at(self.corner())}; },
                [](Self& self, const Arguments& arguments) {
                    const std::int32_t color = arguments.value().integer32();
                    self.draw([&](Borders& borders, const Area& area) { borders.color.set(area, color); });
                }},
            {u"Weight", [](Self& self, const Arguments&) { return Variant{self.first().weight.at(self.corner())}; },
                [](Self& self, const Arguments& arguments) {
                    const std::int32_t weight = arguments.value().integer32();
                    self.draw([&](Borders& borders, const Area& area) { borders.weight.set(area, weight); });
                }},
            {u"LineStyle",
                [](Self& self, const Arguments&) {
                    return Variant{numberOf(self.sheet().generation(), self.first().style.at(self.corner()))};
                },
                [](Self& self, const Arguments& arguments) {
                    const auto style = lineStyleOf(self.sheet().generation(), arguments.value().integer32());
                    if (!style)
                        fail(applicationError, u"No such line style.", u"LineStyle");
                    self.change([&](Borders& borders, const Area& area) { borders.style.set(area, *style); });
                }},
        };
        return table;
    }

private:
    [[nodiscard]] Area onEdge(Edge edge) const
    {
        Area cells = area();
        if (edge_ && edge == Edge::Left)
            cells.last.column = cells.first.column;
        if (edge_ && edge == Edge::Right)
            cells.first.column = cells.last.column;
        if (edge_ && edge == Edge::Top)
            cells.last.row = cells.first.row;
        if (edge_ && edge == Edge::Bottom)
            cells.first.row = cells.last.row;
        return cells;
    }
    [[nodiscard]] const Borders& first() const
    {
        return sheet().formats().borders.at(static_cast<std::size_t>(edge_.value_or(Edge::Left)));
    }
    [[nodiscard]] Cell corner() const { return onEdge(edge_.value_or(Edge::Left)).first; }

    void change(const std::function<void(Borders& borders, const Area& area)>& step) const
    {
        sheet().format([&](Formats& formats) {
            for (const Edge edge : {Edge::Left, Edge::Top, Edge::Bottom, Edge::Right})
                if (!edge_ || edge == *edge_)
                    step(formats.borders.at(static_cast<std::size_t>(edge)), onEdge(edge));
        });
    }
    /// A line that is given a colour or a weight is one that is seen.
    void draw(const std::function<void(Borders& borders, const Area& area)>& step) const
    {
        change([&](Borders& borders, const Area& area) {
            step(borders, area);
            if (borders.style.at(area.first) == LineStyle::None)
                borders.style.set(area, LineStyle::Solid);
        });
    }

    std::optional<Edge> edge_;
};

enum class Counted { Cells, Rows, Columns };

class RangeObject final : public AreaObject<RangeObject> {
public:
    RangeObject(const std::shared_ptr<Sheet>& sheet, const Area& area, Counted counted = Counted::Cells)
        : AreaObject(sheet, area)
        , counted_(counted)
    {
    }
    static constexpr TextView className = u"Range";
    static std::span<const LocalMember<RangeObject>> members();

private:
    [[nodiscard]] std::int32_t count() const;
    [[nodiscard]] Variant values(Variant (*of)(const Sheet& sheet, Cell cell)) const;
    void sort(const Arguments& arguments) const;
    void filter() const;
    [[nodiscard]] Variant borders(const Arguments& arguments) const;
    static void require(bool done, TextView member)
    {
        if (!done)
            fail(applicationError, u"The cells are locked while the sheet is protected.", member);
    }

    Counted counted_;
};

std::span<const LocalMember<RangeObject>> RangeObject::members()
{
    using Self = RangeObject;
    static constexpr LocalMember<Self> table[]{
        {u"Address", [](Self& self, const Arguments&) { return Variant{addressOf(self.area())}; }},
        {u"Row", [](Self& self, const Arguments&) { return Variant{self.area().first.row}; }},
        {u"Column", [](Self& self, const Arguments&) { return Variant{self.area().first.column}; }},
        {u"Count", [](Self& self, const Arguments&) { return Variant{self.count()}; }},
        {u"Rows",
            [](Self& self, const Arguments&) {
                return Variant{std::make_shared<Self>(self.shared(), self.area(), Counted::Rows)};
            }},
        {u"Columns",
            [](Self& self, const Arguments&) {
                return Variant{std::make_shared<Self>(self.shared(), self.area(), Counted::Columns)};
            }},
        {u"EntireColumn",
            [](Self& self, const Arguments&) {
                const Area whole{{1, self.area().first.column}, {rowLimit, self.area().last.column}};
                return Variant{std::make_shared<Self>(self.shared(), whole, Counted::Columns)};
            }},
        {u"EntireRow",
            [](Self& self, const Arguments&) {
                const Area whole{{self.area().first.row, 1}, {self.area().last.row, columnLimit}};
                return Variant{std::make_shared<Self>(self.shared(), whole, Counted::Rows)};
            }},
        {u"Value",
            [](Self& self, const Arguments&) {
                return self.values([](const Sheet& sheet, Cell cell) { return sheet.value(cell); });
            },
            [](Self& self, const Arguments& arguments) {
                require(self.sheet().setValue(self.area(), arguments.value()), u"Value");
            }},
        {u"Text", [](Self& self, const Arguments&) { return Variant{self.sheet().shown(self.area().first)}; }},
        {u"Formula",
            [](Self& self, const Arguments&) {
                return self.values([](const Sheet& sheet, Cell cell) { return Variant{sheet.input(cell)}; });
            },
            [](Self& self, const Arguments& arguments) {
                const auto outcome = self.sheet().setFormula(self.area(), arguments.value().text());
                require(outcome != Sheet::Outcome::Locked, u"Formula");
                if (outcome == Sheet::Outcome::NotUnderstood)
                    fail(applicationError, u"The formula cannot be read.", u"Formula");
            }},
        format<Self, Text, &Formats::numberFormat, textIn>(u"NumberFormat"),
        {u"HTMLData", [](Self& self, const Arguments&) { return Variant{htmlOf(self.sheet(), self.area())}; }},
        {u"Font",
            [](Self& self, const Arguments&) {
                return Variant{std::make_shared<FontObject>(self.shared(), self.area())};
            }},
        {u"Interior",
            [](Self& self, const Arguments&) {
                return Variant{std::make_shared<InteriorObject>(self.shared(), self.area())};
            }},
        {u"Borders", [](Self& self, const Arguments& arguments) { return self.borders(arguments); }},
        format<Self, bool, &Formats::locked, truthIn>(u"Locked"),
        {u"HorizontalAlignment",
            [](Self& self, const Arguments&) {
                const auto alignment = self.sheet().formats().alignment.at(self.area().first);
                return Variant{numberOf(self.sheet().generation(), alignment)};
            },
            [](Self& self, const Arguments& arguments) {
                const auto alignment = alignmentOf(self.sheet().generation(), arguments.value().integer32());
                if (!alignment)
                    fail(applicationError, u"No such alignment.", u"HorizontalAlignment");
                self.sheet().format([&](Formats& formats) { formats.alignment.set(self.area(), *alignment); });
            }},
        {u"ColumnWidth",
            [](Self& self, const Arguments&) { return Variant{self.sheet().columnWidth(self.area().first.column)}; },
            [](Self& self, const Arguments& arguments) {
                self.sheet().setColumnWidth(self.area(), arguments.value().number());
            }},
        {u"Select",
            [](Self& self, const Arguments&) {
                self.sheet().select(self.area());
                return Variant{};
            }},
        {u"ClearContents",
            [](Self& self, const Arguments&) {
                require(self.sheet().clearContents(self.area()), u"ClearContents");
                return Variant{};
            }},
        {u"ClearFormats",
            [](Self& self, const Arguments&) {
                self.sheet().format([&](Formats& formats) { formats.clear(self.area()); });
                return Variant{};
            }},
        {u"AutoFit",
            [](Self& self, const Arguments&) {
                requireGeneration(self.sheet(), Generation::Later, u"AutoFit");
                self.sheet().fitColumns(self.area());
                return Variant{};
            }},
        {u"AutoFitColumns",
            [](Self& self, const Arguments&) {
                requireGeneration(self.sheet(), Generation::Oldest, u"AutoFitColumns");
                self.sheet().fitColumns(self.area());
                return Variant{};
            }},
        {u"AutoFilter",
            [](Self& self, const Arguments&) {
                self.filter();
                return Variant{};
            }},
        {u"Sort",
            [](Self& self, const Arguments& arguments) {
                self.sort(arguments);
                return Variant{};
            }},
    };
    return table;
}

std::int32_t RangeObject::count() const
{
    switch (counted_) {
    case Counted::Rows:
        return area().rows();
    case Counted::Columns:
        return area().columns();
    case Counted::Cells:
        break;
    }
    return area().rows() * area().columns();
}

/// One value for one cell, else an array of rows and columns from 1 up.
Variant RangeObject::values(Variant (*of)(const Sheet& sheet, Cell cell)) const
{
    if (area().isOneCell())
        return of(sheet(), area().first);
    automation::Array array{{{1, area().rows()}, {1, area().columns()}}, {}};
    array.values.reserve(static_cast<std::size_t>(area().rows()) * static_cast<std::size_t>(area().columns()));
    for (std::int32_t row = area().first.row; row <= area().last.row; ++row)
        for (std::int32_t column = area().first.column; column <= area().last.column; ++column)
            array.values.push_back(of(sheet(), {row, column}));
    return Variant{std::move(array)};
}

void RangeObject::sort(const Arguments& arguments) const
{
    const auto order = arguments.has(1) ? orderOf(sheet().generation(), arguments[1].integer32()) : Order::Ascending;
    const TextView yes = sheet().generation() == Generation::Oldest ? u"ssYes" : u"xlYes";
    const bool header = arguments.has(2) && constantOf(sheet().generation(), yes) == arguments[2].integer32();
    if (!order)
        fail(applicationError, u"No such order.", u"Sort");
    require(sheet().sort(area(), arguments.has(0) ? arguments[0].integer32() : 1, *order, header), u"Sort");
}

void RangeObject::filter() const
{
    require(!sheet().protection().enabled || sheet().protection().allowFiltering, u"AutoFilter");
    if (sheet().appearance().enableAutoFilter)
        sheet().setFilter(area());
}

Variant RangeObject::borders(const Arguments& arguments) const
{
    std::optional<Edge> edge;
    if (arguments.has(0)) {
        edge = edgeOf(sheet().generation(), arguments[0].integer32());
        if (!edge)
            fail(applicationError, u"No such edge.", u"Borders");
    }
    return Variant{std::make_shared<BordersObject>(shared(), area(), edge)};
}

} // namespace

Object makeRangeObject(const std::shared_ptr<Sheet>& sheet, const Area& area)
{
    return Object{std::make_shared<RangeObject>(sheet, area)};
}

Object makeRangeObject(const std::shared_ptr<Sheet>& sheet, TextView address)
{
    const auto area = parseAddress(address);
    if (!area)
        fail(applicationError, u"The address cannot be read.", u"Range");
    return makeRangeObject(sheet, *area);
}

} // namespace rf::native::spreadsheet
