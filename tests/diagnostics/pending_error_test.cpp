#include "diagnostics/pending_error.h"
#include "support/program_ended.h"

#include <gtest/gtest.h>

namespace rf {
namespace {

int failing() { throw RuntimeError{error_number::typeMismatch}; }

TEST(PendingError, LeavesTheResultOfAFailingStepEmpty)
{
    PendingError errors;
    EXPECT_EQ(errors.attempt(failing), 0);
}

TEST(PendingError, AnswersWithTheResultOfAStepThatSucceeds)
{
    PendingError errors;
    EXPECT_EQ(errors.attempt([] { return Text{u"name"}; }), u"name");
    EXPECT_FALSE(errors.pending());
}

TEST(PendingError, KeepsTheErrorOfAFailingStep)
{
    PendingError errors;
    errors.attempt(failing);
    EXPECT_TRUE(errors.pending());
    EXPECT_EQ(errors.number(), error_number::typeMismatch);
    EXPECT_EQ(errors.description(), u"Type mismatch");
    EXPECT_GT(errors.line(), 0U);
}

TEST(PendingError, IsNotClearedByAStepThatSucceeds)
{
    PendingError errors;
    errors.attempt(failing);
    errors.attempt([] {});
    EXPECT_TRUE(errors.pending());
}

TEST(PendingError, IsReplacedByALaterError)
{
    PendingError errors;
    errors.attempt(failing);
    errors.attempt([] { throw RuntimeError{error_number::overflow}; });
    EXPECT_EQ(errors.number(), error_number::overflow);
}

TEST(PendingError, GoesWhenItIsCleared)
{
    PendingError errors;
    errors.attempt(failing);
    errors.clear();
    EXPECT_FALSE(errors.pending());
    EXPECT_EQ(errors.number(), 0);
    EXPECT_EQ(errors.description(), u"");
    EXPECT_EQ(errors.line(), 0U);
}

TEST(PendingError, LetsTheEndOfTheProgramPass)
{
    PendingError errors;
    EXPECT_THROW(errors.attempt([] { throw test::ProgramEnded{}; }), test::ProgramEnded);
    EXPECT_FALSE(errors.pending());
}

} // namespace
} // namespace rf
