#pragma once

#include "automation/variant.h"
#include "linux/spreadsheet_area.h"

#include <map>
#include <memory>

namespace rf::native::spreadsheet {

/// The values and formulas of a sheet as libixion calculates them. It only computes: the sheet keeps what its cells
/// were given.
class Calculator {
public:
    Calculator();
    Calculator(const Calculator&) = delete;
    Calculator& operator=(const Calculator&) = delete;
    ~Calculator();

    /// Numbers of any kind, dates, truth values and texts; Empty empties the cell.
    void setValue(Cell cell, const automation::Variant& value);
    /// A formula without its "=". False, with an empty cell, when it cannot be read or asks for an unknown function.
    [[nodiscard]] bool setFormula(Cell cell, TextView formula);
    /// What the formula of a cell comes to: a number, a text, a truth value, or the text of an error such as "#DIV/0!".
    [[nodiscard]] automation::Variant result(Cell cell);

private:
    struct Document;

    void empty(Cell cell);
    void rebuild();

    std::unique_ptr<Document> document_;
    std::map<Cell, automation::Variant> values_;
    std::map<Cell, std::string> formulas_;
    bool stale_ = false;
};

} // namespace rf::native::spreadsheet
