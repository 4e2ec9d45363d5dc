#include "orders/list_handler_control.h"

#include "app/session.h"
#include "diagnostics/pending_error.h"
#include "diagnostics/product.h"
#include "outlook/spreadsheet.h"

namespace rf::orders {

namespace {

constexpr TextView downloadPage = u"http://www.microsoft.com/downloads/";

Text missingSpreadsheet()
{
    return Text{u"Unable to start the MS Office Web Components!"} + Text{lineBreak}
    + u"Please download these FREE component from Microsoft Download" + Text{lineBreak}
    + u"Do you want to go to that website now?";
}

} // namespace

SpreadsheetControl makeSpreadsheetControl(ui::FormWindow& form, TextView name, FirstClass first)
{
    PendingError errors;
    for (const TextView className : outlook::spreadsheetClasses) {
        if (first == FirstClass::Skip && className == outlook::spreadsheetClasses.front())
            continue;
        if (auto* control = errors.attempt([&] { return form.addAutomationControl(className, name); }))
            return {control, className == outlook::spreadsheetClasses.back() ? Generation::Oldest : Generation::Later};
    }
    return {};
}

void endWithoutSpreadsheet(Session& session)
{
    ui::Toolkit& toolkit = session.services.toolkit;
    const auto answer
        = toolkit.showMessage(missingSpreadsheet(), {ui::Buttons::YesNo, ui::Icon::Critical}, productCaption);
    if (answer == ui::Answer::Yes)
        session.files.subExecute(Text{downloadPage});
    toolkit.showMessage(
        Text{productCaption} + u" will now shut down!", {ui::Buttons::Ok, ui::Icon::Critical}, productCaption);
    session.subReportEnd();
}

} // namespace rf::orders
