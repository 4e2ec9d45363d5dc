#include "member_use.h"

#include "outlook/webbrowser.h"

namespace rf::outlook {

using namespace test;

TEST(WebBrowserFace, UsesTheMembersOfTheControl)
{
    const Variant other = someObject();
    expectUses<WebBrowser>({
        {u"Navigate2", Call, {u"OWCPrint.htm"}, {}, [](auto& browser) { browser.navigate2(u"OWCPrint.htm"); }},
        {u"Document", Get, {}, other, [](auto& browser) { return browser.document(); }},
    });
    expectUses<HtmlDocument>({
        {u"execCommand", Call, {u"print"}, true, [](auto& document) { return document.execCommand(u"print"); }},
    });
}

} // namespace rf::outlook
