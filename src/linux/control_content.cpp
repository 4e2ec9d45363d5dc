#include "linux/control_content.h"

#include "linux/browser_content.h"
#include "linux/spreadsheet_content.h"

namespace rf::native {

std::unique_ptr<ControlContent> makeControlContent(TextView className, std::shared_ptr<const Regional> regional)
{
    using spreadsheet::Generation;
    if (equalIgnoringCase(className, u"OWC.Spreadsheet"))
        return makeSpreadsheetContent(std::move(regional), Generation::Oldest);
    if (equalIgnoringCase(className, u"OWC10.Spreadsheet") || equalIgnoringCase(className, u"OWC11.Spreadsheet"))
        return makeSpreadsheetContent(std::move(regional), Generation::Later);
    if (equalIgnoringCase(className, u"Shell.Explorer.2"))
        return makeBrowserContent();
    return nullptr;
}

} // namespace rf::native
