#pragma once

#include "basic/text.h"
#include "host/calendar_file.h"

#include <gtest/gtest.h>
#include <vector>

namespace rf::host::test {

using Lines = std::vector<std::size_t>;

/// Where a calendar file has problems; each of them is told in a sentence.
inline Lines linesOf(const CalendarImport& import)
{
    Lines lines;
    for (const CalendarProblem& problem : import.problems) {
        EXPECT_TRUE(problem.sentence.ends_with(u'.')) << toUtf8(problem.sentence);
        lines.push_back(problem.line);
    }
    return lines;
}

} // namespace rf::host::test
