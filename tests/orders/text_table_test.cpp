#include "orders/text_table.h"

#include "basic/error_of.h"
#include "basic/runtime_error.h"

#include <gtest/gtest.h>

namespace rf {
namespace {

using test::errorOf;

TEST(TextToArray, ReadsLinesAndFields)
{
    const TextTable table = fncTextToArray(u"Coffee\t12\r\nSandwich\t3\r\n");
    ASSERT_EQ(table.rows(), 2U);
    ASSERT_EQ(table.columns(), 2U);
    EXPECT_EQ(table.cell(0, 0), u"Coffee");
    EXPECT_EQ(table.cell(0, 1), u"12");
    EXPECT_EQ(table.cell(1, 0), u"Sandwich");
    EXPECT_EQ(table.cell(1, 1), u"3");
}

TEST(TextToArray, HasNoRowsForAnEmptyText)
{
    EXPECT_EQ(fncTextToArray(u"").rows(), 0U);
    EXPECT_EQ(fncTextToArray(u"").columns(), 0U);
}

TEST(TextToArray, LosesALastLineWithoutItsLineEnd)
{
    const TextTable table = fncTextToArray(u"Coffee\t12\r\nSandwich\t3");
    ASSERT_EQ(table.rows(), 1U);
    EXPECT_EQ(table.cell(0, 0), u"Coffee");
    EXPECT_EQ(fncTextToArray(u"Coffee\t12").rows(), 0U);
}

TEST(TextToArray, TakesItsWidthFromTheFirstLine)
{
    const TextTable table = fncTextToArray(u"Coffee\r\nSandwich\t3\r\n");
    EXPECT_EQ(table.columns(), 1U);
    ASSERT_EQ(table.rows(), 2U);
    EXPECT_EQ(table.cell(1, 0), u"Sandwich");
}

TEST(TextToArray, FailsOnALineWithFewerFieldsThanTheFirst)
{
    EXPECT_EQ(errorOf([] { static_cast<void>(fncTextToArray(u"Coffee\t12\r\nSandwich\r\n")); }),
        error_number::subscriptOutOfRange);
    EXPECT_EQ(errorOf([] { static_cast<void>(fncTextToArray(u"Coffee\t12\r\n\r\nSandwich\t3\r\n")); }),
        error_number::subscriptOutOfRange);
}

TEST(TextToArray, HasRowsWithoutFieldsBehindAnEmptyFirstLine)
{
    const TextTable table = fncTextToArray(u"\r\nCoffee\t12\r\n");
    EXPECT_EQ(table.rows(), 2U);
    EXPECT_EQ(table.columns(), 0U);
    EXPECT_EQ(errorOf([&] { static_cast<void>(table.cell(1, 0)); }), error_number::subscriptOutOfRange);
}

TEST(TextToArray, KeepsEmptyFieldsAndHalfLineEnds)
{
    const TextTable table = fncTextToArray(u"\tCof\nfee\t\r\n");
    ASSERT_EQ(table.rows(), 1U);
    ASSERT_EQ(table.columns(), 3U);
    EXPECT_EQ(table.cell(0, 0), u"");
    EXPECT_EQ(table.cell(0, 1), u"Cof\nfee");
    EXPECT_EQ(table.cell(0, 2), u"");
}

TEST(TextTable, FillsShortLinesWhereItIsToldTo)
{
    const TextTable table{u"Coffee\t12\r\nSandwich\r\n", ShortLines::Fill};
    ASSERT_EQ(table.rows(), 2U);
    EXPECT_EQ(table.cell(1, 1), u"");
}

TEST(TextTable, RefusesACellOutsideItself)
{
    const TextTable table = fncTextToArray(u"Coffee\t12\r\n");
    EXPECT_EQ(errorOf([&] { static_cast<void>(table.cell(1, 0)); }), error_number::subscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { static_cast<void>(table.cell(0, 2)); }), error_number::subscriptOutOfRange);
}

TEST(TextToArray, ReadsAMillionLines)
{
    constexpr std::size_t lines = 1'000'000;
    constexpr TextView line = u"Coffee\t12\r\n";
    Text text;
    text.reserve(lines * line.size());
    for (std::size_t count = 0; count < lines; ++count)
        text += line;
    const TextTable table = fncTextToArray(text);
    ASSERT_EQ(table.rows(), lines);
    EXPECT_EQ(table.cell(lines - 1, 1), u"12");
}

} // namespace
} // namespace rf
