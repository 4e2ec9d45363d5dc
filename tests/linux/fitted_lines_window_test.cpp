#include "linux/rfhost/windows/fitted_lines.h"

#include "window_fixture.h"

#include <QFontMetrics>

namespace rf::native {
namespace {

struct FittedLines : WindowFixture {
    QFont font;
    QFontMetrics metrics{font};

    /// A box as wide as a text and as high as so many lines.
    [[nodiscard]] QSize box(const QString& widest, int lines) const
    {
        return {metrics.horizontalAdvance(widest) + 1, metrics.lineSpacing() * lines + metrics.lineSpacing() / 2};
    }
    [[nodiscard]] QStringList lines(const QString& text, QSize room) const { return fittedLines(text, font, room); }
};

TEST_F(FittedLines, AreBrokenBetweenWords)
{
    EXPECT_EQ(lines("Customer visit", box("Customer", 3)), (QStringList{"Customer", "visit"}));
    EXPECT_EQ(lines("Customer visit\n09:00", box("Customer visit", 3)), (QStringList{"Customer visit", "09:00"}));
}

TEST_F(FittedLines, EndWhereTheBoxIsFull)
{
    EXPECT_EQ(lines("Tasting\n12:00 – 13:00", box("12:00 – 13:00", 1)), QStringList{"Tasting"});
    const QStringList cut = lines("Customer visit with lunch", box("Customer", 2));
    ASSERT_EQ(cut.size(), 2);
    EXPECT_EQ(cut.front(), "Customer");
    EXPECT_TRUE(cut.back().startsWith("vis") && cut.back().endsWith(QChar{0x2026})) << cut.back().toStdString();
}

TEST_F(FittedLines, BreakAWordThatIsTooWide)
{
    const QStringList broken = lines("Design review", box("Desi", 6));
    ASSERT_GE(broken.size(), 3);
    EXPECT_EQ(broken.join(QString{}), "Designreview");
    for (const QString& line : broken)
        EXPECT_LE(metrics.horizontalAdvance(line), box("Desi", 1).width());
}

TEST_F(FittedLines, AreNoneWithoutRoom)
{
    EXPECT_TRUE(lines("Design review", {100, 3}).isEmpty());
    EXPECT_EQ(lines("", box("W", 2)), QStringList{QString{}});
}

} // namespace
} // namespace rf::native
