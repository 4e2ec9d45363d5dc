#include "host/alert_answers.h"

#include <gtest/gtest.h>

namespace rf::host {

namespace {

using enum AlertAnswer;

TEST(AlertAnswers, AreThoseOfTheSetOfButtons)
{
    EXPECT_EQ(alertChoice(0).answers, (std::vector{Ok}));
    EXPECT_EQ(alertChoice(1).answers, (std::vector{Ok, Cancel}));
    EXPECT_EQ(alertChoice(2).answers, (std::vector{Abort, Retry, Ignore}));
    EXPECT_EQ(alertChoice(3).answers, (std::vector{Yes, No, Cancel}));
    EXPECT_EQ(alertChoice(4).answers, (std::vector{Yes, No}));
    EXPECT_EQ(alertChoice(5).answers, (std::vector{Retry, Cancel}));
}

TEST(AlertAnswers, AreOneWhereTheNumberStandsForNoSet)
{
    for (const std::int32_t buttons : {-1, 6, 1000})
        EXPECT_EQ(alertChoice(buttons).answers, (std::vector{Ok})) << buttons;
}

TEST(AlertAnswers, HaveOneThatAgreesAndOneThatClosingMeans)
{
    EXPECT_EQ(alertChoice(1).agree, Ok);
    EXPECT_EQ(alertChoice(1).decline, Cancel);
    EXPECT_EQ(alertChoice(4).agree, Yes);
    EXPECT_EQ(alertChoice(4).decline, No);
    EXPECT_EQ(alertChoice(0).decline, Ok);
}

TEST(AlertAnswers, CountAsThoseOfAMessageBox)
{
    EXPECT_EQ(static_cast<std::int32_t>(Ok), 1);
    EXPECT_EQ(static_cast<std::int32_t>(Cancel), 2);
    EXPECT_EQ(static_cast<std::int32_t>(Yes), 6);
    EXPECT_EQ(static_cast<std::int32_t>(No), 7);
    EXPECT_EQ(nameOf(Cancel), u"Cancel");
    EXPECT_EQ(nameOf(No), u"No");
}

} // namespace

} // namespace rf::host
