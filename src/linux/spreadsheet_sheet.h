#pragma once

#include "automation/variant.h"
#include "basic/regional.h"
#include "linux/spreadsheet_calculator.h"
#include "linux/spreadsheet_formats.h"

#include <functional>
#include <set>

namespace rf::native::spreadsheet {

/// What a person may do to a sheet while its protection is enabled.
struct Protection {
    bool enabled = false;
    bool allowDeletingColumns = false;
    bool allowDeletingRows = false;
    bool allowInsertingColumns = false;
    bool allowInsertingRows = false;
    bool allowFiltering = false;
    bool allowFormattingColumns = false;
    bool allowFormattingRows = false;
    bool allowSizingAllColumns = false;
    bool allowSizingAllRows = false;
    bool allowSorting = false;
};

/// How the sheet is shown, as far as it is no matter of single cells.
struct Appearance {
    bool titleBar = true;
    Text title = u"Microsoft Office Spreadsheet";
    bool toolbar = true;
    bool workbookTabs = true;
    bool columnHeadings = true;
    bool rowHeadings = true;
    bool gridlines = true;
    bool horizontalScrollBar = true;
    bool verticalScrollBar = true;
    bool propertyToolbox = true;
    bool enableResize = true;
    bool enableAutoFilter = false;
    bool screenUpdating = true;
    bool moveAfterReturn = true;
    Direction moveDirection = Direction::Down;
    Area viewable = Area::whole();
    /// The first cell below and behind the frozen panes.
    std::optional<Cell> frozenAt;
};

/// What has changed, for whoever shows the sheet.
enum class Change { Contents, Looks, Layout, Selection };

/// The model of one spreadsheet: what its cells hold, how they look, what is selected, and the rules for changing it.
/// It knows no widgets. Members that a locked cell refuses answer false and change nothing.
class Sheet {
public:
    Sheet(std::shared_ptr<const Regional> regional, Generation generation);

    [[nodiscard]] const Regional& regional() const { return *regional_; }
    [[nodiscard]] Generation generation() const { return generation_; }

    /// What a cell holds: a formula's cell what it comes to.
    [[nodiscard]] automation::Variant value(Cell cell) const;
    /// The formula with its "=", or the value as it is typed.
    [[nodiscard]] Text input(Cell cell) const;
    [[nodiscard]] bool hasFormula(Cell cell) const;
    /// The value as its cell shows it, under the user's regional settings.
    [[nodiscard]] Text shown(Cell cell) const;
    /// Whether the cell shows as a box, and whether that is ticked: one of the two characters in the symbol font.
    [[nodiscard]] std::optional<bool> tick(Cell cell) const;

    /// Gives every cell of an area the value. A text that reads as a number becomes one; one that starts with "=" stays
    /// a text, since names come from people.
    [[nodiscard]] bool setValue(const Area& area, const automation::Variant& value);
    /// The same with a formula; a text without "=" is a value.
    enum class Outcome { Done, Locked, NotUnderstood };
    [[nodiscard]] Outcome setFormula(const Area& area, TextView formula);
    /// What a person typed into a cell, or pasted. A formula that cannot be read is refused.
    [[nodiscard]] Outcome enter(Cell cell, TextView typed);
    [[nodiscard]] bool clearContents(const Area& area);
    /// Whether protection keeps a cell of the area from being changed.
    [[nodiscard]] bool refuses(const Area& area) const;

    /// The smallest area from A1 on that holds every content.
    [[nodiscard]] Area usedArea() const;
    [[nodiscard]] bool sort(const Area& area, std::int32_t column, Order order, bool header);

    [[nodiscard]] const std::optional<Area>& filter() const { return filter_; }
    void setFilter(std::optional<Area> area);
    /// Hides the rows whose cell in a column of the filter shows one of the texts.
    void setHiddenTexts(std::int32_t column, std::set<Text> texts);
    [[nodiscard]] const std::set<Text>& hiddenTexts(std::int32_t column) const;
    [[nodiscard]] bool isRowHidden(std::int32_t row) const;

    [[nodiscard]] const Formats& formats() const { return formats_; }
    [[nodiscard]] const Appearance& appearance() const { return appearance_; }
    [[nodiscard]] const Protection& protection() const { return protection_; }
    /// Changes one of the three and tells of it.
    void format(const std::function<void(Formats&)>& change);
    void arrange(const std::function<void(Appearance&)>& change);
    void protect(const std::function<void(Protection&)>& change);

    /// In characters of the standard font; 0 for a hidden column.
    [[nodiscard]] double columnWidth(std::int32_t column) const;
    void setColumnWidth(const Area& columns, double characters);
    void fitColumns(const Area& columns);

    [[nodiscard]] const Area& selection() const { return selection_; }
    /// Tells of it only when it is another one.
    void select(const Area& area);

    std::function<void(Change change)> changed;
    /// With the address of what is selected now, or after a person has changed cells while the selection stayed:
    /// whoever follows the selection hears of everything that a person does.
    std::function<void(const Text& address)> SelectionChange;
    /// The width of a cell's text in characters, where fonts can be measured.
    std::function<double(Cell cell)> measure;
    void tellOfPersonsChange() const;

private:
    struct Content {
        automation::Variant value;
        /// Without its "="; empty when the value is no formula's.
        Text formula;
    };
    using Contents = std::map<Cell, Content>;

    void tell(Change change) const;
    void put(Cell cell, const automation::Variant& value);
    [[nodiscard]] automation::Variant asEntered(Cell cell, TextView text) const;
    [[nodiscard]] std::vector<std::int32_t> sortedRows(const Area& area, std::int32_t column, Order order) const;

    std::shared_ptr<const Regional> regional_;
    Generation generation_;
    Contents contents_;
    /// Calculates when it is asked.
    mutable Calculator calculator_;
    Formats formats_;
    Protection protection_;
    Appearance appearance_;
    std::map<std::int32_t, double> columnWidths_;
    Area selection_;
    std::optional<Area> filter_;
    std::map<std::int32_t, std::set<Text>> hiddenTexts_;
};

inline constexpr TextView tickedBox = u"\u00FE";
inline constexpr TextView emptyBox = u"\u00A8";

} // namespace rf::native::spreadsheet
