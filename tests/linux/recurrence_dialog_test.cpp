#include "item_window_fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

namespace rf::native {
namespace {

/// The dialog by which an appointment becomes a series.
struct RecurrenceOfAnItem : ItemWindow {
    RecurrenceOfAnItem()
    {
        // A Wednesday, the second of its month.
        open(stored(book(u"Budget", at(14, 10), at(14, 11))));
    }
    void answer(const std::function<void(QDialog& dialog)>& choose)
    {
        whenAsked("recurrenceDialog", choose);
        click(in<QPushButton>(window, "recur"));
        QTest::qWait(50);
    }
    static void confirm(QDialog& dialog)
    {
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    }
    [[nodiscard]] QString said() const { return in<QLabel>(window, "recurrence").text(); }
};

TEST_F(RecurrenceOfAnItem, BeginsWithEveryWeekOnItsDay)
{
    EXPECT_EQ(said(), QStringLiteral("Never"));
    answer([&](QDialog& dialog) {
        EXPECT_TRUE(in<QCheckBox>(&dialog, "weekday3").isChecked());
        EXPECT_FALSE(in<QPushButton>(&dialog, "removeRecurrence").isEnabled());
        keepPicture(dialog, QStringLiteral("recurrence.png"));
        confirm(dialog);
    });
    ASSERT_TRUE(item->record().recurrence);
    EXPECT_EQ(item->record().recurrence->rule, u"FREQ=WEEKLY;BYDAY=WE");
    EXPECT_EQ(said(), QStringLiteral("Every week on Wednesday"));
    EXPECT_TRUE(item->hasChanges());
}

TEST_F(RecurrenceOfAnItem, TakesWhatThePersonChooses)
{
    answer([](QDialog& dialog) {
        in<QComboBox>(&dialog, "unit").setCurrentIndex(2);
        in<QSpinBox>(&dialog, "interval").setValue(3);
        EXPECT_EQ(in<QRadioButton>(&dialog, "onWeekday").text(), QStringLiteral("the second Wednesday"));
        in<QRadioButton>(&dialog, "onWeekday").click();
        in<QRadioButton>(&dialog, "after").click();
        in<QSpinBox>(&dialog, "times").setValue(4);
        confirm(dialog);
    });
    ASSERT_TRUE(item->record().recurrence);
    EXPECT_EQ(item->record().recurrence->rule, u"FREQ=MONTHLY;INTERVAL=3;BYDAY=2WE;COUNT=4");
}

TEST_F(RecurrenceOfAnItem, MovesTheAppointmentToTheFirstChosenDay)
{
    answer([](QDialog& dialog) {
        in<QCheckBox>(&dialog, "weekday3").click();
        in<QCheckBox>(&dialog, "weekday1").click();
        confirm(dialog);
    });
    EXPECT_EQ(item->record().start, at(19, 10));
    EXPECT_EQ(item->record().end, at(19, 11));
}

TEST_F(RecurrenceOfAnItem, StaysAsItIsWhenThePersonCancels)
{
    answer([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_FALSE(item->record().recurrence);
    EXPECT_FALSE(item->hasChanges());
}

TEST_F(RecurrenceOfAnItem, IsTakenBack)
{
    answer([](QDialog& dialog) { confirm(dialog); });
    answer([](QDialog& dialog) { in<QPushButton>(&dialog, "removeRecurrence").click(); });
    EXPECT_FALSE(item->record().recurrence);
    EXPECT_EQ(said(), QStringLiteral("Never"));
}

TEST_F(RecurrenceOfAnItem, KeepsARuleThatTheDialogCannotShowUntilThePersonChooses)
{
    item->record().recurrence.emplace().rule = u"FREQ=DAILY;BYHOUR=9,12";
    item->touch();
    settle();
    EXPECT_EQ(said(), QStringLiteral("By a rule that came with a calendar file"));
    answer([](QDialog& dialog) { dialog.close(); });
    EXPECT_EQ(item->record().recurrence->rule, u"FREQ=DAILY;BYHOUR=9,12");
}

TEST_F(RecurrenceOfAnItem, MayLoseItsWindowToAProgramMeanwhile)
{
    answer([this](QDialog&) {
        host->inspectors().active()->close(host::CloseMode::Discard);
        settle();
        if (auto* left = dynamic_cast<QDialog*>(QApplication::activeModalWidget()))
            left->close();
    });
    settle();
    EXPECT_EQ(shown<InspectorWindow>(), nullptr);
}

} // namespace
} // namespace rf::native
