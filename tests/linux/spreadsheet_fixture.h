#pragma once

#include "automation/failure_of.h"
#include "basic/pattern_regional.h"
#include "linux/spreadsheet_content.h"
#include "outlook/spreadsheet.h"

#include <gtest/gtest.h>

namespace rf::native::spreadsheet {

using automation::Variant;
using outlook::SpreadsheetRange;

/// A spreadsheet control as a program uses it.
struct Control {
    explicit Control(Generation generation = Generation::Later, RegionalSettings settings = englishSettings())
        : content(makeSpreadsheetContent(std::make_shared<PatternRegional>(std::move(settings)), generation))
        , object(content->object())
    {
    }

    [[nodiscard]] SpreadsheetRange at(TextView address) const { return object.range(address); }
    [[nodiscard]] Variant value(TextView address) const { return at(address).value(); }
    [[nodiscard]] Text shown(TextView address) const { return at(address).object().get(u"Text").text(); }
    void put(TextView address, Variant value) const { at(address).setValue(std::move(value)); }

    std::unique_ptr<ControlContent> content;
    outlook::Spreadsheet object;
};

/// The grid of an order: two supplies, their rates, what they cost, and the total.
inline void fillOrder(const Control& control)
{
    const auto protection = control.object.activeSheet().protection();
    control.at(u"A1:F2000").setLocked(false);
    control.at(u"A1:B100").setLocked(true);
    control.at(u"D101").setFormula(u"=SUM(D2:D100)");
    control.at(u"A1").setValue(u"Item");
    control.at(u"B1").setValue(u"Rate");
    control.at(u"C1").setValue(u"# of items");
    control.at(u"A2").setValue(u"Coffee");
    control.at(u"B2").setValue(2.5);
    control.at(u"D2").setFormula(u"=B2*C2");
    control.at(u"A3").setValue(u"Tea");
    control.at(u"B3").setValue(1.75);
    control.at(u"D3").setFormula(u"=B3*C3");
    control.object.setViewableRange(u"A1:C3");
    protection.setEnabled(true);
}

/// The number of the failure that a use of an object ends with; 0 when it succeeds.
template <class Use>
[[nodiscard]] std::int32_t failureNumber(Use&& use)
{
    const auto failure = test::failureOf(std::forward<Use>(use));
    return failure ? failure->number() : 0;
}

} // namespace rf::native::spreadsheet
