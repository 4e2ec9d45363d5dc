#include "linux/browser_content.h"
#include "outlook/webbrowser.h"
#include "window_fixture.h"

#include <QPrinter>
#include <QStringEncoder>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTextDocument>

namespace rf::native {
namespace {

struct Browser : WindowFixture {
    QTemporaryDir folder;
    QString printed;
    std::unique_ptr<ControlContent> content = makeBrowserContent([this](QTextDocument& page) {
        printed = page.toPlainText();
        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder.filePath(QStringLiteral("page.pdf")));
        page.print(&printer);
        return true;
    });
    outlook::WebBrowser browser{content->object()};
    QWidget window;
    QTextBrowser* view = qobject_cast<QTextBrowser*>(content->makeView(&window));

    [[nodiscard]] Text write(const QByteArray& bytes) const
    {
        const QString path = folder.filePath(QStringLiteral("OWCPrint.htm"));
        QFile file{path};
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return textOf(path);
    }
};

TEST_F(Browser, ShowsAPageOfThisMachine)
{
    browser.navigate2(write("<h1>Caf\xC3\xA9</h1><p>Second floor</p>"));
    EXPECT_EQ(view->toPlainText(), QString::fromUtf8("Caf\xC3\xA9\nSecond floor"));
    browser.navigate2(u"file://" + write("<p>By address</p>"));
    EXPECT_EQ(view->toPlainText(), QStringLiteral("By address"));
}

TEST_F(Browser, ReadsAPageInTheUnitsThatItsWriterHas)
{
    const QString page = QString::fromUtf8("<p>\xCE\x91\xCE\xB8\xCE\xAE\xCE\xBD\xCE\xB1</p>");
    QStringEncoder encoder{QStringConverter::Utf16LE};
    const QByteArray units = encoder(page);
    browser.navigate2(write("\xFF\xFE" + units));
    EXPECT_EQ(view->toPlainText(), QString::fromUtf8("\xCE\x91\xCE\xB8\xCE\xAE\xCE\xBD\xCE\xB1"));
}

TEST_F(Browser, LoadsNothingFromOutsideAndRunsNoScript)
{
    QTcpServer outside;
    ASSERT_TRUE(outside.listen(QHostAddress::LocalHost));
    const QByteArray address = "http://127.0.0.1:" + QByteArray::number(outside.serverPort());
    QFile secret{folder.filePath(QStringLiteral("secret.txt"))};
    ASSERT_TRUE(secret.open(QIODevice::WriteOnly) && secret.write("secret") > 0);
    browser.navigate2(write("<head><link rel=stylesheet href='" + address + "/a.css'></head><body><script src='"
        + address + "/b.js'>document.write('written')</script><img src='" + address
        + "/c.png'><iframe src='secret.txt'></iframe>" + "<a href='" + address + "'>away</a><img src='secret.txt'>"));
    window.show();
    view->anchorClicked(QUrl{QString::fromLatin1(address)});
    QCoreApplication::processEvents();
    EXPECT_FALSE(outside.waitForNewConnection(200));
    EXPECT_FALSE(view->toPlainText().contains(QStringLiteral("written")));
    EXPECT_FALSE(view->toPlainText().contains(QStringLiteral("secret")));
    EXPECT_TRUE(view->toPlainText().contains(QStringLiteral("away")));
    browser.navigate2(u"http://127.0.0.1:" + decimal(outside.serverPort()));
    EXPECT_EQ(view->toPlainText(), QString{});
    EXPECT_FALSE(outside.waitForNewConnection(200));
}

TEST_F(Browser, SurvivesABrokenPage)
{
    for (const QByteArray& page : {QByteArray{"<table><tr><td><b>unclosed"}, QByteArray{"<<<>>><!-- <p"},
             QByteArray(100000, '<'), QByteArray{"\xFF\xFE\x00"}, QByteArray{}})
        browser.navigate2(write(page));
    browser.navigate2(u"/no/such/page.htm");
    EXPECT_EQ(view->toPlainText(), QString{});
}

TEST_F(Browser, PrintsThePageThatItShows)
{
    browser.navigate2(write("<table><tr><td>Coffee</td><td>4</td></tr></table>"));
    EXPECT_TRUE(browser.document().execCommand(u"print"));
    EXPECT_TRUE(printed.contains(QStringLiteral("Coffee")));
    EXPECT_GT(QFile{folder.filePath(QStringLiteral("page.pdf"))}.size(), 500);
    EXPECT_FALSE(browser.document().execCommand(u"paste"));
}

TEST_F(Browser, StandsOnAForm)
{
    const auto form = toolkit.makeFormWindow();
    auto* control = form->addAutomationControl(u"Shell.Explorer.2", u"webRoom");
    ASSERT_NE(control, nullptr);
    control->setBounds({0, 0, 6000, 3000});
    form->setSize(6000, 3000);
    outlook::WebBrowser{control->object()}.navigate2(
        write("<body><h2>Conference room</h2><p>Seats <b>twelve</b>.</p><ul><li>Projector<li>Whiteboard</ul>"));
    appear(*form);
    picture(qtWindow(*form).dialog(), QStringLiteral("browser.png"));
    EXPECT_TRUE(widget<QTextBrowser>(*form, u"webRoom")->toPlainText().startsWith(QStringLiteral("Conference room")));
}

/// The same program without any screen.
struct WithoutScreen : testing::Test {
    WithoutScreen()
    {
        for (const char* name : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"})
            unsetenv(name);
    }
};

TEST_F(WithoutScreen, SpreadsheetsCalculateAndBrowsersDoNotPrint)
{
    int count = 1;
    char name[] = "test";
    char* arguments[] = {name, nullptr};
    QtToolkit toolkit{count, arguments};
    const auto window = toolkit.makeFormWindow();
    auto* grid = window->addAutomationControl(u"OWC10.Spreadsheet", u"exsOrders");
    ASSERT_NE(grid, nullptr);
    const automation::Object cell{grid->object().get(u"Range", u"B2").dispatch()};
    cell.put(u"Formula", u"=2*21");
    EXPECT_EQ(cell.get(u"Value"), automation::Variant{42.0});
    auto* browser = window->addAutomationControl(u"Shell.Explorer.2", u"webPrint");
    ASSERT_NE(browser, nullptr);
    EXPECT_FALSE(outlook::WebBrowser{browser->object()}.document().execCommand(u"print"));
    EXPECT_EQ(window->addAutomationControl(u"No.Such", u"exsNone"), nullptr);
}

} // namespace
} // namespace rf::native
