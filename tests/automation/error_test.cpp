#include "automation/error.h"

#include <gtest/gtest.h>

namespace rf::automation {

namespace {

Error someError(std::source_location where = std::source_location::current())
{
    return Error{error_number::memberNotFound, {u"No such member", u"Room", u"Seats"}, where};
}

} // namespace

TEST(AutomationError, TellsWhatFailedAndWhere)
{
    const auto here = std::source_location::current();
    const Error error{-2147221233, {u"Not found", u"Room", u"Seats"}};
    EXPECT_EQ(error.number(), -2147221233);
    EXPECT_EQ(error.description(), u"Not found");
    EXPECT_EQ(error.source(), u"Room");
    EXPECT_EQ(error.member(), u"Seats");
    EXPECT_EQ(error.where().line(), here.line() + 1);
    EXPECT_STREQ(error.where().file_name(), here.file_name());
}

TEST(AutomationError, NamesThePlaceItIsGiven)
{
    const auto place = std::source_location::current();
    EXPECT_EQ(someError(place).where().line(), place.line());
}

TEST(AutomationError, IsTheSameFailureFromAnotherPlace)
{
    const Error error = someError();
    const auto place = std::source_location::current();
    const Error seen = error.at(place);
    EXPECT_EQ(seen.where().line(), place.line());
    EXPECT_EQ(seen.number(), error.number());
    EXPECT_EQ(seen.description(), error.description());
    EXPECT_EQ(seen.source(), error.source());
    EXPECT_EQ(seen.member(), error.member());
}

TEST(AutomationError, KeepsItsOwnPlaceWhenItIsSeenFromAnother)
{
    const auto place = std::source_location::current();
    const Error error = someError(place);
    static_cast<void>(error.at(std::source_location::current()));
    EXPECT_EQ(error.where().line(), place.line());
}

TEST(AutomationError, IsSuppressedAndReportedAsARuntimeError)
{
    try {
        throw someError();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), 438);
        EXPECT_STREQ(error.what(), "#438: No such member");
    }
}

} // namespace rf::automation
