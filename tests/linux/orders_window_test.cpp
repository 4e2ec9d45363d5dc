#include "keeping_toolkit.h"
#include "linux/browser_content.h"
#include "linux/spreadsheet_view.h"
#include "orders_fixture.h"
#include "window_fixture.h"

#include "orders/orders_form_fixture.h"
#include "support/phrase_resource.h"
#include "support/temporary_files.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTextDocument>

namespace rf::orders {
namespace {

using native::clippedCaptions;
using native::qtText;
using native::spreadsheet::GridView;
using native::spreadsheet::View;

/// A host with bookings and a program beside it, apart from how the program is shown.
struct Booker final : OrdersFormTest {
    void TestBody() override { }
    using OrdersFormTest::booking;
    using OrdersFormTest::order;
    using OrdersFormTest::ordersOf;
    using OrdersFormTest::requireCostCenter;
    using OrdersFormTest::services;
    using OrdersFormTest::session;
    using OrdersFormTest::settings;
    using OrdersFormTest::supply;

    /// The same program with windows.
    void showOn(ui::Toolkit& shown)
    {
        const Services own = services();
        auto application = session->ouaApp;
        session = std::make_unique<Session>(
            Services{own.regional, own.clock, own.classes, own.system, own.processes, shown});
        session->ouaApp = application;
        session->language.loadQuietly();
        session->objSettings = std::make_unique<cSettings>(*session);
    }
};

/// The orders form on a screen that nobody sees.
struct OrdersWindow : native::WindowFixture {
    test::KeepingToolkit keeping{toolkit};
    Booker booker;
    std::shared_ptr<frmOrders2K> form;

    OrdersWindow()
    {
        booker.showOn(keeping);
        booker.settings().PlaceSettings.FromString(u"Theatre\r\nU-shape\r\nBlock\r\nCircle of chairs");
        booker.settings().DefaultPlaceSetting = u"U-shape";
        booker.requireCostCenter(u"XXX-XXX");
    }
    ~OrdersWindow() override
    {
        if (form != nullptr)
            booker.session->forms.unload(*form);
        form.reset();
    }
    void supplies(std::size_t count) const
    {
        for (std::int64_t price = 12500; const Text& name : test::supplyNames(count))
            booker.supply(name, price += 2500);
    }
    void usualSupplies() const
    {
        booker.supply(u"Coffee", 25000);
        booker.supply(u"Tea and biscuits", 32500);
        booker.supply(u"Mineral water", 17500);
        booker.supply(u"Sandwich & salad", 65000);
        booker.supply(u"Projector", 450000);
    }
    void open(const outlook::AppointmentItem& item)
    {
        if (form != nullptr)
            booker.session->forms.unload(*form);
        form = std::make_shared<frmOrders2K>(*booker.session, item);
        booker.session->forms.load(form);
        form->show();
        static_cast<void>(QTest::qWaitForWindowActive(&dialog()));
    }
    [[nodiscard]] ui::FormWindow& window() const { return *keeping.last; }
    [[nodiscard]] QDialog& dialog() const { return qtWindow(window()).dialog(); }
    [[nodiscard]] GridView& grid() const { return dynamic_cast<View&>(*widget(window(), u"exsOrders")).grid(); }
    [[nodiscard]] QString shown(TextView label) const { return widget<QLabel>(window(), label)->text().remove(u'&'); }
    /// The column headings of the list that are wider than their cells.
    [[nodiscard]] std::vector<QString> clippedHeadings() const
    {
        std::vector<QString> clipped;
        for (int column = 0; column < grid().model()->columnCount(); ++column) {
            const QModelIndex heading = grid().model()->index(0, column);
            const QFontMetrics metrics{heading.data(Qt::FontRole).value<QFont>()};
            if (metrics.horizontalAdvance(heading.data().toString()) + 6 > grid().visualRect(heading).width())
                clipped.push_back(heading.data().toString());
        }
        return clipped;
    }
    void enter(const QString& text)
    {
        type(text);
        press(Qt::Key_Return);
        QCoreApplication::processEvents();
    }
};

TEST_F(OrdersWindow, HasNoClippedCaptionInAnyLanguage)
{
    usualSupplies();
    for (const test::PhraseLanguage& language : test::phraseLanguages) {
        booker.session->language.LoadLanguages(static_cast<std::int16_t>(language.column));
        for (const TextView format : {u"1", u"XXX-XXX"}) {
            booker.requireCostCenter(Text{format});
            open(booker.booking());
            EXPECT_EQ(clippedCaptions(window()), std::vector<Text>{}) << language.name;
            EXPECT_EQ(clippedHeadings(), std::vector<QString>{}) << language.name;
        }
        picture(dialog(), QStringLiteral("orders-%1.png").arg(QString::fromUtf8(language.name.data())));
    }
}

TEST_F(OrdersWindow, WithoutSuppliesHasNoClippedCaptionInAnyLanguage)
{
    for (const test::PhraseLanguage& language : test::phraseLanguages) {
        booker.session->language.LoadLanguages(static_cast<std::int16_t>(language.column));
        open(booker.booking());
        EXPECT_EQ(clippedCaptions(window()), std::vector<Text>{}) << language.name;
    }
    picture(dialog(), QStringLiteral("orders-no-supplies.png"));
}

TEST_F(OrdersWindow, ShowsTheTotalOfWhatIsTyped)
{
    usualSupplies();
    const auto item = booker.booking();
    open(item);
    const auto expectSum = [&](std::int64_t tenThousandths) {
        EXPECT_EQ(shown(u"lblSum"),
            qtText(booker.services().regional.formatMoney(Currency::fromTenThousandths(tenThousandths))));
    };
    expectSum(0);
    grid().setFocus();
    grid().setCurrentIndex(grid().model()->index(1, 2));
    enter(QStringLiteral("4"));
    expectSum(100000);
    enter(QStringLiteral("2"));
    expectSum(165000);
    enter(QStringLiteral("-1"));
    expectSum(147500);
    QTest::keyClick(&grid(), Qt::Key_Up);
    QTest::keyClick(&grid(), Qt::Key_Delete);
    QCoreApplication::processEvents();
    expectSum(165000);
    grid().setCurrentIndex(grid().model()->index(1, 0));
    enter(QStringLiteral("9"));
    expectSum(165000);
    EXPECT_EQ(form->fncBuildOrderList(), u"Coffee\t4\r\nTea and biscuits\t2\r\n");
}

TEST_F(OrdersWindow, TakesAQuantityThatIsStillBeingTyped)
{
    usualSupplies();
    booker.settings().KCWithOrder = false;
    const auto item = booker.booking();
    open(item);
    grid().setFocus();
    grid().setCurrentIndex(grid().model()->index(1, 2));
    type(QStringLiteral("7"));
    QTest::mouseClick(widget(window(), u"cmdOK"), Qt::LeftButton);
    EXPECT_EQ(booker.ordersOf(item), u"Coffee\t7\r\n");
}

TEST_F(OrdersWindow, TakesAQuantityThatIsStillBeingTypedByTheKeyOfTheButton)
{
    usualSupplies();
    booker.settings().KCWithOrder = false;
    const auto item = booker.booking();
    open(item);
    grid().setFocus();
    grid().setCurrentIndex(grid().model()->index(1, 2));
    enter(QStringLiteral("7"));
    widget(window(), u"txtBooker")->setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(booker.ordersOf(item), u"Coffee\t7\r\n");
    EXPECT_EQ(booker.session->forms.count(), 0U);
}

TEST_F(OrdersWindow, IsLeftByEscapeAndByItsSystemBox)
{
    usualSupplies();
    int closed = 0;
    for (const bool escape : {true, false}) {
        open(booker.booking());
        form->Closed = [&] { ++closed; };
        if (escape)
            press(Qt::Key_Escape);
        else
            dialog().close();
        EXPECT_EQ(booker.session->forms.count(), 0U);
        form.reset();
    }
    EXPECT_EQ(closed, 2);
}

TEST_F(OrdersWindow, GoesThroughItsFieldsFromTopToBottom)
{
    usualSupplies();
    open(booker.booking());
    widget(window(), u"txtBooker")->setFocus();
    std::vector<Text> reached;
    // The list is left by the last quantity.
    for (int step = 0; step < 40 && (reached.empty() || reached.back() != u"cmdCancel"); ++step) {
        press(Qt::Key_Tab);
        const QWidget* focus = QApplication::focusWidget();
        const Text name = &grid() == focus ? Text{u"exsOrders"} : native::textOf(focus->objectName());
        if (reached.empty() || reached.back() != name)
            reached.push_back(name);
    }
    EXPECT_EQ(reached,
        (std::vector<Text>{u"txtCreatedAt", u"exsOrders", u"txtOrderComment", u"optPlaceSetting2", u"txtCC1", u"txtCC2",
            u"cmdOK", u"cmdCancel"}));
}

TEST_F(OrdersWindow, GoesFromOneHalfOfTheCostCenterToTheOther)
{
    usualSupplies();
    open(booker.booking());
    widget(window(), u"txtCC1")->setFocus();
    type(QStringLiteral("1x23456"));
    EXPECT_EQ(focused(), u"txtCC2");
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), u"cmdOK");
}

TEST_F(OrdersWindow, NamesItsFieldsForThoseWhoHearTheScreen)
{
    usualSupplies();
    open(booker.booking());
    const auto nameOf = [&](TextView control) { return widget(window(), control)->accessibleName(); };
    EXPECT_EQ(nameOf(u"txtBooker"), u"Booked by");
    EXPECT_EQ(nameOf(u"txtCreatedAt"), u"Created");
    EXPECT_EQ(nameOf(u"txtOrderComment"), u"Comment to order");
    EXPECT_EQ(nameOf(u"txtCC1"), u"Cost Center");
    EXPECT_EQ(grid().accessibleName(), u"Supply");
}

TEST_F(OrdersWindow, LeadsFromEachLabelToItsFieldAndNotToTheList)
{
    usualSupplies();
    open(booker.booking());
    const auto fieldOf = [&](TextView label) { return widget<QLabel>(window(), label)->buddy(); };
    EXPECT_EQ(fieldOf(u"lblBookedBy"), widget(window(), u"txtBooker"));
    EXPECT_EQ(fieldOf(u"lblBookedAt"), widget(window(), u"txtCreatedAt"));
    EXPECT_EQ(widget(window(), u"exsOrders")->accessibleName(), QString{});
}

TEST_F(OrdersWindow, ShowsAllColumnsWithoutScrollingSideways)
{
    supplies(99);
    open(booker.booking());
    int width = grid().verticalHeader()->width();
    for (int column = 0; column < 3; ++column)
        width += grid().columnWidth(column);
    EXPECT_LE(width, widget(window(), u"exsOrders")->width());
    EXPECT_EQ(grid().model()->columnCount(), 3);
    EXPECT_EQ(grid().model()->rowCount(), 100);
}

TEST_F(OrdersWindow, PrintsAListByTheBrowserOfThisPlatform)
{
    const test::TemporaryFiles temporary;
    const auto other = keeping.makeFormWindow();
    cListHandler list{*booker.session};
    list.controlName = u"exsList";
    list.AddToForm(*other);
    list.setEditMode(true);
    list.SetValue(u"A1", u"<b>Item</b> \u05E7\u05E4\u05D4");
    list.setEditMode(false);
    QString printed;
    const auto browser = native::makeBrowserContent([&](QTextDocument& page) {
        printed = page.toPlainText();
        return true;
    });
    list.PrintSheet(outlook::WebBrowser{browser->object()});
    EXPECT_TRUE(printed.contains(qtText(u"<b>Item</b> \u05E7\u05E4\u05D4"))) << printed.toStdString();
}

TEST_F(OrdersWindow, IsDrawnLightAndDark)
{
    usualSupplies();
    const auto item = booker.booking();
    booker.order(item, u"Coffee\t12\r\nMineral water\t6\r\n");
    open(item);
    picture(dialog(), QStringLiteral("orders-light.png"));
    darken();
    picture(dialog(), QStringLiteral("orders-dark.png"));
}

TEST_F(OrdersWindow, IsDrawnWithManySupplies)
{
    supplies(99);
    open(booker.booking());
    grid().setFocus();
    grid().setCurrentIndex(grid().model()->index(9, 2));
    enter(QStringLiteral("1000000"));
    picture(dialog(), QStringLiteral("orders-many.png"));
}

} // namespace
} // namespace rf::orders
