#include "linux/spreadsheet_objects.h"

#include "automation/local_object.h"

namespace rf::native::spreadsheet {

using automation::Arguments;
using automation::LocalMember;
using automation::LocalObject;
using automation::Object;
using automation::Variant;

namespace {

/// What the objects of one control share.
template <class Self>
class Part : public LocalObject<Self> {
public:
    explicit Part(std::shared_ptr<Sheet> sheet)
        : sheet_(std::move(sheet))
    {
    }
    [[nodiscard]] Sheet& sheet() const { return *sheet_; }
    [[nodiscard]] const std::shared_ptr<Sheet>& shared() const { return sheet_; }

private:
    std::shared_ptr<Sheet> sheet_;
};

/// A truth value of the sheet's appearance as a member.
template <class Self, bool Appearance::*field>
constexpr LocalMember<Self> shows(TextView name)
{
    return {name, [](Self& self, const Arguments&) { return Variant{self.sheet().appearance().*field}; },
        [](Self& self, const Arguments& arguments) {
            const bool on = arguments.value().boolean();
            self.sheet().arrange([on](Appearance& appearance) { appearance.*field = on; });
        }};
}

/// The headings of columns or rows. The oldest generation has them on the control, the later ones on the window, each
/// under names of its own.
template <Generation generation, bool columns>
constexpr TextView headingMember
    = generation == Generation::Oldest ? (columns ? u"DisplayColHeaders" : u"DisplayRowHeaders")
                                       : (columns ? u"DisplayColumnHeadings" : u"DisplayRowHeadings");
template <bool columns>
constexpr bool Appearance::*headingField = columns ? &Appearance::columnHeadings : &Appearance::rowHeadings;

template <class Self, Generation generation, bool columns>
constexpr LocalMember<Self> heads()
{
    return {headingMember<generation, columns>,
        [](Self& self, const Arguments&) {
            requireGeneration(self.sheet(), generation, headingMember<generation, columns>);
            return Variant{self.sheet().appearance().*headingField<columns>};
        },
        [](Self& self, const Arguments& arguments) {
            requireGeneration(self.sheet(), generation, headingMember<generation, columns>);
            const bool on = arguments.value().boolean();
            self.sheet().arrange([on](Appearance& appearance) { appearance.*headingField<columns> = on; });
        }};
}

/// Which cells a person can reach, as an address.
template <class Self>
constexpr LocalMember<Self> viewableRange()
{
    return {u"ViewableRange",
        [](Self& self, const Arguments&) { return Variant{addressOf(self.sheet().appearance().viewable)}; },
        [](Self& self, const Arguments& arguments) {
            const auto area = parseAddress(arguments.value().text());
            if (!area)
                fail(applicationError, u"The address cannot be read.", u"ViewableRange");
            self.sheet().arrange([&](Appearance& appearance) { appearance.viewable = *area; });
        }};
}

/// The formulas are always up to date when they are read.
template <class Self>
constexpr LocalMember<Self> calculate()
{
    return {u"Calculate", [](Self&, const Arguments&) { return Variant{}; }};
}

template <class Self>
constexpr LocalMember<Self> range()
{
    return {u"Range", [](Self& self, const Arguments& arguments) {
                const Text address
                    = arguments.has(1) ? arguments[0].text() + u":" + arguments[1].text() : arguments[0].text();
                return Variant{makeRangeObject(self.shared(), address)};
            }};
}

template <bool Protection::*field, class Self>
constexpr LocalMember<Self> allows(TextView name)
{
    return {name, [](Self& self, const Arguments&) { return Variant{self.sheet().protection().*field}; },
        [](Self& self, const Arguments& arguments) {
            const bool on = arguments.value().boolean();
            self.sheet().protect([on](Protection& protection) { protection.*field = on; });
        }};
}

class ProtectionObject final : public Part<ProtectionObject> {
public:
    using Part::Part;
    static constexpr TextView className = u"Protection";
    static std::span<const LocalMember<ProtectionObject>> members()
    {
        using Self = ProtectionObject;
        static constexpr LocalMember<Self> table[]{
            allows<&Protection::enabled, Self>(u"Enabled"),
            allows<&Protection::allowDeletingColumns, Self>(u"AllowDeletingColumns"),
            allows<&Protection::allowDeletingRows, Self>(u"AllowDeletingRows"),
            allows<&Protection::allowInsertingColumns, Self>(u"AllowInsertingColumns"),
            allows<&Protection::allowInsertingRows, Self>(u"AllowInsertingRows"),
            allows<&Protection::allowFiltering, Self>(u"AllowFiltering"),
            allows<&Protection::allowFormattingColumns, Self>(u"AllowFormattingColumns"),
            allows<&Protection::allowFormattingRows, Self>(u"AllowFormattingRows"),
            allows<&Protection::allowSizingAllColumns, Self>(u"AllowSizingAllColumns"),
            allows<&Protection::allowSizingAllRows, Self>(u"AllowSizingAllRows"),
            allows<&Protection::allowSorting, Self>(u"AllowSorting"),
        };
        return table;
    }
};

class TitleBarObject final : public Part<TitleBarObject> {
public:
    using Part::Part;
    static constexpr TextView className = u"TitleBar";
    static std::span<const LocalMember<TitleBarObject>> members()
    {
        static constexpr LocalMember<TitleBarObject> table[]{
            {u"Caption",
                [](TitleBarObject& self, const Arguments&) { return Variant{self.sheet().appearance().title}; },
                [](TitleBarObject& self, const Arguments& arguments) {
                    const Text title = arguments.value().text();
                    self.sheet().arrange([&](Appearance& appearance) { appearance.title = title; });
                }},
        };
        return table;
    }
};

class WindowObject final : public Part<WindowObject> {
public:
    using Part::Part;
    static constexpr TextView className = u"Window";
    static std::span<const LocalMember<WindowObject>> members()
    {
        using Self = WindowObject;
        static constexpr LocalMember<Self> table[]{
            heads<Self, Generation::Later, true>(),
            heads<Self, Generation::Later, false>(),
            shows<Self, &Appearance::gridlines>(u"DisplayGridlines"),
            shows<Self, &Appearance::horizontalScrollBar>(u"DisplayHorizontalScrollBar"),
            shows<Self, &Appearance::verticalScrollBar>(u"DisplayVerticalScrollBar"),
            shows<Self, &Appearance::workbookTabs>(u"DisplayWorkbookTabs"),
            shows<Self, &Appearance::enableResize>(u"EnableResize"),
            viewableRange<Self>(),
            {u"FreezePanes",
                [](Self& self, const Arguments&) { return Variant{self.sheet().appearance().frozenAt.has_value()}; },
                [](Self& self, const Arguments& arguments) {
                    const bool on = arguments.value().boolean();
                    const Cell at = self.sheet().selection().first;
                    self.sheet().arrange(
                        [&](Appearance& appearance) { appearance.frozenAt = on ? std::optional{at} : std::nullopt; });
                }},
        };
        return table;
    }
};

class SheetObject final : public Part<SheetObject> {
public:
    using Part::Part;
    static constexpr TextView className = u"Worksheet";
    static std::span<const LocalMember<SheetObject>> members()
    {
        using Self = SheetObject;
        static constexpr LocalMember<Self> table[]{
            range<Self>(),
            calculate<Self>(),
            {u"UsedRange",
                [](Self& self, const Arguments&) {
                    return Variant{makeRangeObject(self.shared(), self.sheet().usedArea())};
                }},
            {u"Protection",
                [](Self& self, const Arguments&) {
                    return Variant{std::make_shared<ProtectionObject>(self.shared())};
                }},
            {u"EnableAutoFilter",
                [](Self& self, const Arguments&) { return Variant{self.sheet().appearance().enableAutoFilter}; },
                [](Self& self, const Arguments& arguments) {
                    const bool on = arguments.value().boolean();
                    if (!on)
                        self.sheet().setFilter(std::nullopt);
                    self.sheet().arrange([on](Appearance& appearance) { appearance.enableAutoFilter = on; });
                }},
        };
        return table;
    }
};

/// The numbers of a generation by their names.
class ConstantsObject final : public automation::Dispatch {
public:
    explicit ConstantsObject(Generation generation)
        : generation_(generation)
    {
    }
    Variant invoke(TextView member, automation::Invocation kind, std::span<Variant>) override
    {
        const auto number = constantOf(generation_, member);
        if (!number || kind == automation::Invocation::Put)
            fail(error_number::memberNotFound, errorDescription(error_number::memberNotFound), member);
        return Variant{*number};
    }
    [[nodiscard]] automation::Connection advise(
        const automation::EventInterface& events, automation::EventHandler) override
    {
        fail(error_number::eventsNotSupported, errorDescription(error_number::eventsNotSupported), events.name);
    }

private:
    Generation generation_;
};

class SpreadsheetObject final : public Part<SpreadsheetObject> {
public:
    using Part::Part;
    static constexpr TextView className = u"Spreadsheet";
    static std::span<const LocalMember<SpreadsheetObject>> members()
    {
        using Self = SpreadsheetObject;
        static constexpr LocalMember<Self> table[]{
            range<Self>(),
            calculate<Self>(),
            viewableRange<Self>(),
            {u"Constants",
                [](Self& self, const Arguments&) {
                    return Variant{std::make_shared<ConstantsObject>(self.sheet().generation())};
                }},
            {u"ActiveSheet",
                [](Self& self, const Arguments&) { return Variant{std::make_shared<SheetObject>(self.shared())}; }},
            {u"ActiveWindow",
                [](Self& self, const Arguments&) { return Variant{std::make_shared<WindowObject>(self.shared())}; }},
            {u"TitleBar",
                [](Self& self, const Arguments&) { return Variant{std::make_shared<TitleBarObject>(self.shared())}; }},
            {u"Selection",
                [](Self& self, const Arguments&) {
                    return Variant{makeRangeObject(self.shared(), self.sheet().selection())};
                }},
            shows<Self, &Appearance::propertyToolbox>(u"AllowPropertyToolbox"),
            shows<Self, &Appearance::titleBar>(u"DisplayTitleBar"),
            shows<Self, &Appearance::toolbar>(u"DisplayToolbar"),
            shows<Self, &Appearance::workbookTabs>(u"DisplayWorkbookTabs"),
            heads<Self, Generation::Oldest, true>(),
            heads<Self, Generation::Oldest, false>(),
            shows<Self, &Appearance::screenUpdating>(u"ScreenUpdating"),
            shows<Self, &Appearance::moveAfterReturn>(u"MoveAfterReturn"),
            {u"MoveAfterReturnDirection",
                [](Self& self, const Arguments&) {
                    return Variant{numberOf(self.sheet().generation(), self.sheet().appearance().moveDirection)};
                },
                [](Self& self, const Arguments& arguments) {
                    const auto direction = directionOf(self.sheet().generation(), arguments.value().integer32());
                    if (!direction)
                        fail(applicationError, u"No such direction.", u"MoveAfterReturnDirection");
                    self.sheet().arrange([&](Appearance& appearance) { appearance.moveDirection = *direction; });
                }},
        };
        return table;
    }
};

} // namespace

Object makeSpreadsheetObject(const std::shared_ptr<Sheet>& sheet)
{
    return Object{std::make_shared<SpreadsheetObject>(sheet)};
}

void fail(std::int32_t number, TextView description, TextView member)
{
    throw automation::Error{number, {Text{description}, u"Spreadsheet", Text{member}}};
}

void requireGeneration(const Sheet& sheet, Generation generation, TextView member)
{
    if (sheet.generation() != generation)
        fail(error_number::memberNotFound, errorDescription(error_number::memberNotFound), member);
}

} // namespace rf::native::spreadsheet
