#pragma once

#include "basic/text.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace rf::test {

/// Compares bytes with a file of tests/data/golden. With RF_WRITE_GOLDEN set the file is written instead, for a person
/// to look at the difference before it is kept.
inline void expectGolden(const std::string& file, const std::string& bytes)
{
    const std::string path = RF_TEST_DATA "/golden/" + file;
    if (std::getenv("RF_WRITE_GOLDEN") != nullptr)
        std::ofstream{path, std::ios::binary} << bytes;
    std::ifstream stream{path, std::ios::binary};
    ASSERT_TRUE(stream) << path << " cannot be read";
    std::ostringstream expected;
    expected << stream.rdbuf();
    EXPECT_EQ(bytes, expected.str()) << file;
}

/// UTF-8 with its line ends as they are; half of a surrogate pair keeps its three bytes.
inline void expectGolden(const std::string& file, TextView text) { expectGolden(file, toUtf8(text)); }

} // namespace rf::test
