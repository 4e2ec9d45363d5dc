#include "basic/runtime_error.h"

#include <gtest/gtest.h>

namespace rf {
namespace {

TEST(RuntimeError, TakesItsDescriptionFromTheTable)
{
    const RuntimeError error{error_number::typeMismatch};
    EXPECT_EQ(error.number(), 13);
    EXPECT_EQ(error.description(), u"Type mismatch");
    EXPECT_STREQ(error.what(), "#13: Type mismatch");
}

TEST(RuntimeError, KeepsADescriptionOfItsOwn)
{
    const RuntimeError error{-2147221233, u"Straße unbekannt"};
    EXPECT_EQ(error.number(), -2147221233);
    EXPECT_EQ(error.description(), u"Straße unbekannt");
    EXPECT_STREQ(error.what(),
        "#-2147221233: Stra\xC3\x9F"
        "e unbekannt");
}

TEST(RuntimeError, KnowsWhereItArose)
{
    const auto here = std::source_location::current();
    const RuntimeError error{error_number::overflow};
    EXPECT_STREQ(error.where().file_name(), here.file_name());
    EXPECT_EQ(error.where().line(), here.line() + 1);
}

TEST(ErrorDescription, HasOneForEveryNumberOfTheTable)
{
    for (const std::int32_t number : {5, 6, 7, 9, 13, 28, 51, 53, 91, 94, 326, 429, 438, 448, 450, 457, 459, 462}) {
        EXPECT_NE(errorDescription(number), u"Application-defined or object-defined error") << number;
    }
}

TEST(ErrorDescription, IsGeneralForOtherNumbers)
{
    EXPECT_EQ(errorDescription(0), u"Application-defined or object-defined error");
    EXPECT_EQ(errorDescription(-2147467259), u"Application-defined or object-defined error");
}

} // namespace
} // namespace rf
