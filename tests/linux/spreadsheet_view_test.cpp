#include "linux/spreadsheet_view.h"
#include "spreadsheet_fixture.h"
#include "window_fixture.h"

#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTimer>

namespace rf::native::spreadsheet {
namespace {

/// The grid of an order on a form, with a button behind it.
struct SpreadsheetView : WindowFixture {
    std::unique_ptr<ui::FormWindow> window = toolkit.makeFormWindow();
    ui::AutomationControl& control = *window->addAutomationControl(u"OWC10.Spreadsheet", u"exsOrders");
    ui::Button& ok = window->addButton(u"cmdOK", {7000, 3000, 1500, 375}, ui::ButtonRole::Default);
    outlook::Spreadsheet sheet{control.object()};
    std::vector<Text> selections;

    SpreadsheetView()
    {
        window->setSize(8775, 3500);
        window->setCaption(u"Roomfold for Outlook Booking Info");
        control.setBounds({120, 120, 8535, 2600});
        ok.setCaption(u"OK");
        fill();
        control.SelectionChange = [this](const Text& address) { selections.push_back(address); };
    }

    void fill() const
    {
        sheet.setDisplayToolbar(false);
        sheet.setDisplayWorkbookTabs(false);
        sheet.titleBar().setCaption(u"Supply");
        sheet.range(u"1:1999").font().setName(u"Tahoma");
        sheet.range(u"1:1999").font().setSize(8);
        sheet.range(u"1:1").font().setBold(true);
        sheet.range(u"A1:F2000").setLocked(false);
        sheet.range(u"A1:B100").setLocked(true);
        sheet.range(u"C1").setLocked(true);
        sheet.range(u"A1:B100").interior().setColor(236 + 256 * 233 + 65536 * 216);
        sheet.range(u"A1:B100").borders().setColor(0xC0C0C0);
        sheet.range(u"A:A").setColumnWidth(55.36);
        sheet.range(u"B:B").setColumnWidth(8.03);
        sheet.range(u"C:C").setColumnWidth(10.38);
        const Text names[]{u"Item", u"Coffee", u"Tea & biscuits", Text(200, u'W'),
            u"\u05E7\u05E4\u05D4 \u05E9\u05D7\u05D5\u05E8", u"Mineral water"};
        for (std::int32_t row = 1; row <= 6; ++row) {
            const Text number = decimal(row);
            sheet.range(u"A" + number).setValue(names[row - 1]);
            if (row == 1)
                continue;
            sheet.range(u"B" + number).setValue(Currency::fromTenThousandths(12500 * row));
            sheet.range(u"D" + number).setFormula(u"=B" + number + u"*C" + number);
        }
        sheet.range(u"B1").setValue(u"Rate");
        sheet.range(u"C1").setValue(u"# of items");
        sheet.range(u"D101").setFormula(u"=SUM(D2:D100)");
        sheet.setViewableRange(u"A1:C6");
        sheet.activeWindow().setDisplayVerticalScrollBar(false);
        sheet.activeSheet().protection().setEnabled(true);
    }
    [[nodiscard]] View& view() const { return dynamic_cast<View&>(*widget(*window, u"exsOrders")); }
    [[nodiscard]] GridView& grid() const { return view().grid(); }
    void open(TextView address)
    {
        appear(*window);
        control.setFocus();
        sheet.range(address).select();
        selections.clear();
    }
    [[nodiscard]] Text selected() const { return sheet.selection().address(); }
    [[nodiscard]] Variant value(TextView address) const { return sheet.range(address).value(); }
    static void settle() { QCoreApplication::processEvents(); }
    void enter(const QString& text)
    {
        type(text);
        press(Qt::Key_Return);
        settle();
    }
    [[nodiscard]] std::unique_ptr<ui::FormWindow>& form() { return window; }
};

TEST_F(SpreadsheetView, TakesAQuantityAndGoesDown)
{
    open(u"C2");
    enter(QStringLiteral("4"));
    EXPECT_EQ(value(u"C2"), Variant{4.0});
    EXPECT_EQ(value(u"D101"), Variant{10.0});
    EXPECT_EQ(selected(), u"$C$3");
    EXPECT_EQ(selections.back(), u"$C$3");
}

TEST_F(SpreadsheetView, ReplacesByTypingAndEditsByF2)
{
    open(u"C2");
    enter(QStringLiteral("12"));
    sheet.range(u"C2").select();
    press(Qt::Key_F2);
    enter(QStringLiteral("5"));
    EXPECT_EQ(value(u"C2"), Variant{125.0});
    sheet.range(u"C2").select();
    enter(QStringLiteral("7"));
    EXPECT_EQ(value(u"C2"), Variant{7.0});
}

TEST_F(SpreadsheetView, LeavesTheCellAsItWasOnEscape)
{
    open(u"C2");
    enter(QStringLiteral("3"));
    sheet.range(u"C2").select();
    type(QStringLiteral("99"));
    press(Qt::Key_Escape);
    settle();
    EXPECT_EQ(value(u"C2"), Variant{3.0});
    EXPECT_TRUE(qtWindow(*window).dialog().isVisible());
    EXPECT_EQ(selected(), u"$C$2");
}

TEST_F(SpreadsheetView, MovesByArrowsWhileTypingAndWithinTheTextAfterF2)
{
    open(u"C3");
    type(QStringLiteral("8"));
    press(Qt::Key_Up);
    settle();
    EXPECT_EQ(value(u"C3"), Variant{8.0});
    EXPECT_EQ(selected(), u"$C$2");
    enter(QStringLiteral("13"));
    sheet.range(u"C2").select();
    press(Qt::Key_F2);
    press(Qt::Key_Left);
    type(QStringLiteral("0"));
    press(Qt::Key_Return);
    settle();
    EXPECT_EQ(value(u"C2"), Variant{103.0});
}

TEST_F(SpreadsheetView, MovesAsItIsSetOnEnter)
{
    open(u"C2");
    sheet.setMoveAfterReturnDirection(sheet.constants().xlToRight());
    sheet.range(u"B2").select();
    press(Qt::Key_Return);
    EXPECT_EQ(selected(), u"$C$2");
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(selected(), u"$B$2");
    sheet.setMoveAfterReturn(false);
    press(Qt::Key_Return);
    EXPECT_EQ(selected(), u"$B$2");
}

TEST_F(SpreadsheetView, GoesByTabToWhatCanBeFilledAndThenOn)
{
    open(u"C4");
    press(Qt::Key_Tab);
    EXPECT_EQ(selected(), u"$C$5");
    type(QStringLiteral("2"));
    press(Qt::Key_Tab);
    settle();
    EXPECT_EQ(value(u"C5"), Variant{2.0});
    EXPECT_EQ(selected(), u"$C$6");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(selected(), u"$C$5");
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), u"cmdOK");
}

TEST_F(SpreadsheetView, RefusesLockedCells)
{
    open(u"A2");
    type(QStringLiteral("Wine"));
    press(Qt::Key_F2);
    press(Qt::Key_Delete);
    settle();
    EXPECT_EQ(value(u"A2"), Variant{u"Coffee"});
    QApplication::clipboard()->setText(QStringLiteral("a\tb\tc"));
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(value(u"A2"), Variant{u"Coffee"});
    EXPECT_TRUE(value(u"C2").isEmpty());
}

TEST_F(SpreadsheetView, ClearsWhatIsSelectedOnDelete)
{
    open(u"C2");
    enter(QStringLiteral("4"));
    enter(QStringLiteral("5"));
    sheet.range(u"C2:C3").select();
    selections.clear();
    press(Qt::Key_Delete);
    EXPECT_TRUE(value(u"C2").isEmpty());
    EXPECT_TRUE(value(u"C3").isEmpty());
    EXPECT_EQ(value(u"D101"), Variant{0.0});
    // Whoever shows the total hears of it although the selection stays.
    EXPECT_EQ(selections, std::vector<Text>{u"$C$2:$C$3"});
}

TEST_F(SpreadsheetView, PastesAColumn)
{
    open(u"C2");
    QApplication::clipboard()->setText(QStringLiteral("1\r\n2.5\r\n\r\n-4\r\nfive\r\nsix\r\nseven\r\n"));
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(value(u"C2:C6").array()->values, (std::vector<Variant>{1.0, 2.5, {}, -4.0, u"five"}));
    EXPECT_TRUE(value(u"C7").isEmpty());
    EXPECT_FALSE(selections.empty());
}

TEST_F(SpreadsheetView, CopiesWhatIsSelected)
{
    open(u"C2");
    enter(QStringLiteral("3"));
    sheet.range(u"A2:C2").select();
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(),
        QStringLiteral("Coffee\t%1\t3").arg(grid().model()->index(1, 1).data().toString()));
}

TEST_F(SpreadsheetView, TakesOddQuantities)
{
    open(u"C2");
    const std::pair<const char*, Variant> entries[]{
        {"-3", -3.0}, {"0.25", 0.25}, {"99999999999999999999", 1e20}, {"ten", u"ten"}, {"=2*3", 6.0}, {"$5", 5.0}};
    for (const auto& [typed, kept] : entries) {
        sheet.range(u"C2").select();
        enter(QString::fromLatin1(typed));
        EXPECT_EQ(value(u"C2"), kept) << typed;
    }
    sheet.range(u"C2").select();
    enter(QStringLiteral("=2*"));
    EXPECT_EQ(value(u"C2"), Variant{5.0});
}

TEST_F(SpreadsheetView, EndsAtTheViewableRange)
{
    open(u"C6");
    EXPECT_EQ(grid().model()->rowCount(), 6);
    EXPECT_EQ(grid().model()->columnCount(), 3);
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    EXPECT_EQ(selected(), u"$C$6");
    sheet.setViewableRange(u"A1:D7");
    EXPECT_EQ(grid().model()->rowCount(), 7);
    press(Qt::Key_Down);
    EXPECT_EQ(selected(), u"$C$7");
}

TEST_F(SpreadsheetView, ShowsTheColumnsAsWideAsTheyAreSet)
{
    appear(*window);
    EXPECT_EQ(grid().columnWidth(0), grid().pixelsOf(55.36));
    sheet.range(u"B:B").setColumnWidth(20);
    EXPECT_EQ(grid().columnWidth(1), grid().pixelsOf(20));
    sheet.range(u"B:B").setColumnWidth(0);
    EXPECT_TRUE(grid().isColumnHidden(1));
    sheet.range(u"B:B").setColumnWidth(8);
    EXPECT_FALSE(grid().isColumnHidden(1));
    grid().horizontalHeader()->resizeSection(2, 120);
    EXPECT_EQ(grid().pixelsOf(sheet.range(u"C1").columnWidth()), 120);
    sheet.range(u"A2:A3").entireColumn().autoFit();
    EXPECT_GT(grid().columnWidth(0), 200 * 5);
}

TEST_F(SpreadsheetView, DrawsOnlyWhenTheProgramIsDone)
{
    appear(*window);
    sheet.setScreenUpdating(false);
    sheet.setViewableRange(u"A1:C3");
    EXPECT_EQ(grid().model()->rowCount(), 6);
    sheet.setScreenUpdating(true);
    EXPECT_EQ(grid().model()->rowCount(), 3);
}

TEST_F(SpreadsheetView, TicksABoxByTheSpaceKey)
{
    open(u"C2");
    sheet.range(u"C:C").font().setName(u"Wingdings");
    sheet.range(u"C2").setValue(u"\u00A8");
    EXPECT_EQ(grid().model()->index(1, 2).data(Qt::AccessibleTextRole), QStringLiteral("\u2610"));
    press(Qt::Key_Space);
    EXPECT_EQ(value(u"C2"), Variant{u"\u00FE"});
    EXPECT_EQ(grid().model()->index(1, 2).data(Qt::AccessibleTextRole), QStringLiteral("\u2611"));
}

TEST_F(SpreadsheetView, KeepsFrozenRowsInPlaceWhileItScrolls)
{
    sheet.activeSheet().protection().setEnabled(false);
    sheet.setViewableRange(u"A1:C60");
    sheet.range(u"B2").select();
    sheet.activeWindow().setFreezePanes(true);
    open(u"C2");
    for (int step = 0; step < 40; ++step)
        press(Qt::Key_Down);
    EXPECT_GT(grid().verticalScrollBar()->value(), 0);
    const auto panes = grid().findChildren<QTableView*>();
    ASSERT_EQ(panes.size(), 3);
    EXPECT_EQ(panes[0]->rowAt(2), 0);
    for (int step = 0; step < 40; ++step)
        press(Qt::Key_Up);
    settle();
    EXPECT_EQ(selected(), u"$C$2");
    EXPECT_GE(grid().visualRect(grid().currentIndex()).top(), panes[0]->height());
    press(Qt::Key_Up);
    enter(QStringLiteral("how many"));
    EXPECT_EQ(value(u"C1"), Variant{u"how many"});
    picture(qtWindow(*window).dialog(), QStringLiteral("grid-frozen.png"));
    sheet.activeWindow().setFreezePanes(false);
    EXPECT_TRUE(grid().findChildren<QTableView*>().isEmpty());
}

TEST_F(SpreadsheetView, FiltersAndSortsByAHeading)
{
    sheet.activeSheet().protection().setEnabled(false);
    sheet.activeSheet().setEnableAutoFilter(true);
    sheet.range(u"A1:C6").autoFilter();
    open(u"A2");
    const auto choose = [&](const QString& caption) {
        QTimer::singleShot(0, [caption] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (QAction* action : menu->actions())
                if (action->text() == caption)
                    action->trigger();
            menu->close();
        });
        QTest::keyClick(&grid(), Qt::Key_Down, Qt::AltModifier);
    };
    choose(QStringLiteral("Tea && biscuits"));
    EXPECT_TRUE(grid().isRowHidden(2));
    QTest::keyClick(&grid(), Qt::Key_Down);
    EXPECT_EQ(selected(), u"$A$4");
    choose(QStringLiteral("(\u2731)"));
    EXPECT_FALSE(grid().isRowHidden(2));
    choose(QStringLiteral("A \u2192 Z"));
    EXPECT_EQ(value(u"A2"), Variant{u"Coffee"});
    EXPECT_EQ(value(u"A3"), Variant{u"Mineral water"});
    picture(qtWindow(*window).dialog(), QStringLiteral("grid-filter.png"));
    sheet.activeSheet().setEnableAutoFilter(false);
    EXPECT_FALSE(grid().isRowHidden(2));
}

TEST_F(SpreadsheetView, ShowsItsPartsAsTheyAreSet)
{
    appear(*window);
    EXPECT_TRUE(grid().horizontalHeader()->isVisible());
    sheet.activeWindow().setDisplayColumnHeadings(false);
    sheet.activeWindow().setDisplayRowHeadings(false);
    sheet.setDisplayTitleBar(false);
    sheet.activeWindow().setDisplayHorizontalScrollBar(false);
    EXPECT_FALSE(grid().horizontalHeader()->isVisible());
    EXPECT_FALSE(grid().verticalHeader()->isVisible());
    EXPECT_FALSE(view().findChild<QLabel*>()->isVisible());
    EXPECT_EQ(grid().horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    EXPECT_EQ(grid().verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    EXPECT_EQ(grid().accessibleName(), u"Supply");
}

TEST_F(SpreadsheetView, OutlivesItsForm)
{
    appear(*window);
    window.reset();
    sheet.range(u"C2").setValue(3);
    EXPECT_EQ(value(u"C2"), Variant{3});
}

TEST_F(SpreadsheetView, StaysWhereThePlatformHasNoSuchClass)
{
    EXPECT_EQ(form()->addAutomationControl(u"OWC9.Spreadsheet", u"exsOther"), nullptr);
    EXPECT_NE(form()->addAutomationControl(u"owc.spreadsheet", u"exsOld"), nullptr);
    EXPECT_NE(form()->addAutomationControl(u"OWC11.Spreadsheet", u"exsNew"), nullptr);
}

TEST_F(SpreadsheetView, IsDrawnLightAndDark)
{
    sheet.range(u"C6").font().setName(u"Wingdings");
    sheet.range(u"C6").setValue(u"\u00FE");
    sheet.range(u"C5").font().setName(u"Wingdings");
    sheet.range(u"C5").setValue(u"\u00A8");
    open(u"C2");
    enter(QStringLiteral("12"));
    enter(QStringLiteral("-4"));
    picture(qtWindow(*window).dialog(), QStringLiteral("grid-light.png"));
    darken();
    picture(qtWindow(*window).dialog(), QStringLiteral("grid-dark.png"));
}

} // namespace
} // namespace rf::native::spreadsheet
