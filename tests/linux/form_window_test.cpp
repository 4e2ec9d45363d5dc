#include "window_fixture.h"

#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

namespace rf::native {
namespace {

struct FormWindow : WindowFixture {
    std::unique_ptr<ui::FormWindow> window = toolkit.makeFormWindow();
    ui::Label& label = window->addLabel(u"lblBookedBy", {120, 120, 1500, 300});
    ui::TextBox& booker = window->addTextBox(u"txtBooker", {1700, 120, 3000, 315}, ui::LineBreaks::No);
    ui::OptionButton& theatre = window->addOptionButton(u"optPlaceSetting1", {120, 500, 2500, 300});
    ui::OptionButton& block = window->addOptionButton(u"optPlaceSetting2", {2700, 500, 2500, 300});
    ui::Label& commentLabel = window->addLabel(u"lblOrderComment", {120, 850, 3000, 250});
    ui::TextBox& comment = window->addTextBox(u"txtOrderComment", {120, 1120, 5000, 900}, ui::LineBreaks::Yes);
    ui::Button& ok = window->addButton(u"cmdOK", {2400, 2200, 1300, 375}, ui::ButtonRole::Default);
    ui::Button& cancel = window->addButton(u"cmdCancel", {3820, 2200, 1300, 375}, ui::ButtonRole::Cancel);
    int okClicks = 0;
    int cancelClicks = 0;

    FormWindow()
    {
        window->setCaption(u"Roomfold for Outlook Booking Info");
        window->setSize(5300, 2700);
        label.setCaption(u"Booked by");
        commentLabel.setCaption(u"Comment to order");
        theatre.setCaption(u"Theatre");
        block.setCaption(u"Block & rows");
        ok.setCaption(u"OK");
        cancel.setCaption(u"Cancel");
        ok.Click = [this] { ++okClicks; };
        cancel.Click = [this] { ++cancelClicks; };
    }
};

TEST_F(FormWindow, StandsInTwipsOfTheScreen)
{
    const int perInch = qtWindow(*window).dialog().logicalDpiX();
    EXPECT_EQ(qtWindow(*window).dialog().width(), 5300 * perInch / 1440);
    EXPECT_EQ(widget(*window, u"txtBooker")->width(), 3000 * perInch / 1440);
    booker.setBounds({1701, 121, 3001, 316});
    EXPECT_EQ(booker.bounds(), (ui::Bounds{1701, 121, 3001, 316}));
}

TEST_F(FormWindow, GoesThroughItsControlsInTheirOrder)
{
    appear(*window);
    booker.setFocus();
    std::vector<Text> seen{focused()};
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Right, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab}) {
        press(key);
        seen.push_back(focused());
    }
    EXPECT_EQ(seen,
        (std::vector<Text>{
            u"txtBooker", u"optPlaceSetting1", u"optPlaceSetting2", u"txtOrderComment", u"cmdOK", u"cmdCancel"}));
}

TEST_F(FormWindow, GoesToTheChosenOptionAndFromTopToBottom)
{
    ui::TextBox& late = window->addTextBox(u"txtLate", {120, 460, 3000, 30}, ui::LineBreaks::No);
    block.setValue(true);
    appear(*window);
    booker.setFocus();
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), late.name());
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), u"optPlaceSetting2");
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), u"txtOrderComment");
}

TEST_F(FormWindow, PressesTheDefaultButtonOnEnterAndTheCancelButtonOnEscape)
{
    appear(*window);
    booker.setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(okClicks, 1);
    press(Qt::Key_Escape);
    EXPECT_EQ(cancelClicks, 1);
    cancel.setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(okClicks, 1);
    EXPECT_EQ(cancelClicks, 2);
    EXPECT_TRUE(qtWindow(*window).dialog().isVisible());
}

TEST_F(FormWindow, KeepsALineEndInABoxOfManyLines)
{
    appear(*window);
    comment.setFocus();
    type(QStringLiteral("one"));
    press(Qt::Key_Return);
    type(QStringLiteral("two"));
    EXPECT_EQ(comment.text(), u"one\r\ntwo");
    EXPECT_EQ(okClicks, 0);
}

TEST_F(FormWindow, GivesAnUntouchedTextBackAsItWasGiven)
{
    const Text odd = u"a\nb\rc\u00A0\xD800 \t";
    comment.setText(odd);
    booker.setText(odd);
    EXPECT_EQ(comment.text(), odd);
    EXPECT_EQ(booker.text(), odd);
}

TEST_F(FormWindow, SwallowsTheKeysThatAFormRefuses)
{
    booker.KeyPressed = [](char16_t& key) {
        if ((key < u'0' || key > u'9') && key != ui::backspaceKey)
            key = 0;
    };
    appear(*window);
    booker.setFocus();
    type(QStringLiteral("1a2b3"));
    EXPECT_EQ(booker.text(), u"123");
    press(Qt::Key_Backspace);
    EXPECT_EQ(booker.text(), u"12");
    QApplication::clipboard()->setText(QStringLiteral("x4y5"));
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(booker.text(), u"1245");
}

TEST_F(FormWindow, SwallowsTheBackspaceKeyToo)
{
    booker.KeyPressed = [](char16_t& key) { key = key == ui::backspaceKey ? u'\0' : key; };
    appear(*window);
    booker.setFocus();
    type(QStringLiteral("ab"));
    press(Qt::Key_Backspace);
    EXPECT_EQ(booker.text(), u"ab");
}

TEST_F(FormWindow, TakesTheCharacterThatAFormPutsInPlaceOfAnother)
{
    comment.KeyPressed = [](char16_t& key) { key = upper(key); };
    appear(*window);
    comment.setFocus();
    type(QStringLiteral("tea"));
    EXPECT_EQ(comment.text(), u"TEA");
}

TEST_F(FormWindow, StopsTypingAtTheMaximumLength)
{
    booker.setText(u"a longer text from a program");
    booker.setMaxLength(3);
    EXPECT_EQ(booker.text(), u"a longer text from a program");
    appear(*window);
    booker.setFocus();
    press(Qt::Key_A, Qt::ControlModifier);
    type(QStringLiteral("12345"));
    EXPECT_EQ(booker.text(), u"123");
    comment.setMaxLength(4);
    comment.setFocus();
    QApplication::clipboard()->setText(QStringLiteral("a\nbcdef"));
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(comment.text(), u"a\r\nb");
}

TEST_F(FormWindow, RaisesKeyUpAfterTheTextHasChanged)
{
    Text seen;
    booker.KeyUp = [&] { seen = booker.text(); };
    appear(*window);
    booker.setFocus();
    type(QStringLiteral("7"));
    EXPECT_EQ(seen, u"7");
}

TEST_F(FormWindow, RaisesGotFocusForEachControlThatIsReached)
{
    std::vector<Text> reached;
    booker.GotFocus = [&] { reached.push_back(booker.name()); };
    theatre.GotFocus = [&] { reached.push_back(theatre.name()); };
    appear(*window);
    booker.setFocus();
    reached.clear();
    press(Qt::Key_Tab);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(reached, (std::vector<Text>{u"optPlaceSetting1", u"txtBooker"}));
}

TEST_F(FormWindow, ChoosesOneOptionOfTheForm)
{
    int clicks = 0;
    block.Click = [&] { ++clicks; };
    theatre.setValue(true);
    block.setValue(true);
    EXPECT_FALSE(theatre.value());
    EXPECT_EQ(clicks, 0);
    block.setValue(false);
    EXPECT_FALSE(block.value());
    appear(*window);
    block.setFocus();
    press(Qt::Key_Space);
    EXPECT_TRUE(block.value());
    EXPECT_EQ(clicks, 1);
}

TEST_F(FormWindow, KeepsWhatIsHiddenBeforeItIsShown)
{
    theatre.setVisible(false);
    block.setEnabled(false);
    EXPECT_FALSE(theatre.visible());
    EXPECT_TRUE(booker.visible());
    appear(*window);
    EXPECT_FALSE(widget(*window, u"optPlaceSetting1")->isVisible());
    EXPECT_FALSE(block.enabled());
}

TEST_F(FormWindow, AsksBeforeAPersonClosesIt)
{
    bool may = false;
    int asked = 0;
    window->QueryUnload = [&] {
        ++asked;
        return may;
    };
    appear(*window);
    QDialog& dialog = qtWindow(*window).dialog();
    EXPECT_FALSE(dialog.close());
    EXPECT_TRUE(dialog.isVisible());
    may = true;
    EXPECT_TRUE(dialog.close());
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(cancelClicks, 0);
    window->show();
    window->close();
    EXPECT_EQ(asked, 2);
}

TEST_F(FormWindow, MayGoWhileItsOwnHandlerRuns)
{
    appear(*window);
    cancel.Click = [this] { window.reset(); };
    cancel.setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(window, nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_F(FormWindow, MayGoWhileAPersonClosesIt)
{
    appear(*window);
    window->QueryUnload = [this] {
        window.reset();
        return true;
    };
    qtWindow(*window).dialog().close();
    EXPECT_EQ(window, nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_F(FormWindow, HoldsTheProgramWhileItIsModal)
{
    bool visible = false;
    QTimer::singleShot(0, [&] {
        visible = qtWindow(*window).dialog().isVisible() && qtWindow(*window).dialog().isModal();
        window->close();
    });
    window->showModal();
    EXPECT_TRUE(visible);
    EXPECT_FALSE(qtWindow(*window).dialog().isVisible());
}

TEST_F(FormWindow, StandsAboveItsParent)
{
    QWidget above;
    above.show();
    window->setParent(above.winId());
    EXPECT_EQ(qtWindow(*window).dialog().windowHandle()->transientParent(), above.windowHandle());
    window->setParent(0);
    EXPECT_EQ(qtWindow(*window).dialog().windowHandle()->transientParent(), nullptr);
    window->setParent(0x7FFFFFFF);
    EXPECT_EQ(qtWindow(*window).dialog().windowHandle()->transientParent(), nullptr);
}

TEST_F(FormWindow, StaysOnTheScreen)
{
    window->setPosition({-90000, 900000});
    window->show();
    const QRect screen = qtWindow(*window).dialog().screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(qtWindow(*window).dialog().frameGeometry().topLeft()));
    window->setPosition({1440, 1440});
    EXPECT_EQ(qtWindow(*window).dialog().x() * toolkit.twipsPerPixel(), 1440);
}

TEST_F(FormWindow, NamesEachControlForThoseWhoHearTheScreen)
{
    appear(*window);
    EXPECT_EQ(widget(*window, u"txtBooker")->accessibleName(), u"Booked by");
    EXPECT_EQ(widget(*window, u"txtOrderComment")->accessibleName(), u"Comment to order");
    EXPECT_EQ(widget(*window, u"optPlaceSetting2")->accessibleName(), u"Block & rows");
    EXPECT_EQ(widget<QLabel>(*window, u"lblBookedBy")->buddy(), widget(*window, u"txtBooker"));
}

TEST_F(FormWindow, GivesEveryCaptionAKeyOfItsOwnAndKeepsAmpersands)
{
    appear(*window);
    EXPECT_EQ(widget<QLabel>(*window, u"lblBookedBy")->text(), u"&Booked by");
    EXPECT_EQ(widget<QRadioButton>(*window, u"optPlaceSetting1")->text(), u"&Theatre");
    EXPECT_EQ(widget<QRadioButton>(*window, u"optPlaceSetting2")->text(), u"Block && &rows");
    EXPECT_EQ(widget<QPushButton>(*window, u"cmdOK")->text(), u"OK");
    EXPECT_EQ(block.caption(), u"Block & rows");
    QTest::keyClick(&qtWindow(*window).dialog(), Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(focused(), u"txtOrderComment");
}

TEST_F(FormWindow, TellsWhichCaptionsDoNotFit)
{
    appear(*window);
    EXPECT_EQ(clippedCaptions(*window), std::vector<Text>{});
    theatre.setCaption(Text(200, u'W'));
    label.setCaption(u"Gebucht durch die Reservierungsstelle");
    ok.setCaption(u"Einverstanden, so buchen");
    EXPECT_EQ(clippedCaptions(*window), (std::vector<Text>{u"lblBookedBy", u"optPlaceSetting1", u"cmdOK"}));
    theatre.setVisible(false);
    EXPECT_EQ(clippedCaptions(*window), (std::vector<Text>{u"lblBookedBy", u"cmdOK"}));
}

TEST_F(FormWindow, IsDrawnLightAndDark)
{
    booker.setText(u"Jane Doe");
    comment.setText(u"Please bring the cups\r\nbefore nine.");
    theatre.setValue(true);
    appear(*window);
    picture(qtWindow(*window).dialog(), QStringLiteral("form-light.png"));
    darken();
    picture(qtWindow(*window).dialog(), QStringLiteral("form-dark.png"));
}

} // namespace
} // namespace rf::native
