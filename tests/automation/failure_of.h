#pragma once

#include "automation/error.h"

#include <gtest/gtest.h>

#include <optional>

namespace rf::test {

/// The failure with which a use of an object ends; nothing when it succeeds.
template <class Use>
[[nodiscard]] std::optional<automation::Error> failureOf(Use&& use)
{
    try {
        use();
    } catch (const automation::Error& error) {
        return error;
    }
    return std::nullopt;
}

/// A failure of that number that names a line of this very file.
inline void expectFailure(const std::optional<automation::Error>& failure, std::int32_t number,
    std::uint_least32_t line, const char* file, TextView member)
{
    ASSERT_TRUE(failure.has_value()) << "nothing failed";
    EXPECT_EQ(failure->number(), number);
    EXPECT_EQ(failure->where().line(), line);
    EXPECT_STREQ(failure->where().file_name(), file);
    EXPECT_EQ(failure->member(), member);
}

} // namespace rf::test
