#include "basic/text.h"

#include <gtest/gtest.h>
#include <unicode/uchar.h>

namespace rf {
namespace {

constexpr UChar32 lastUnit = 0xFFFF;

/// A mapping that leaves the Basic Multilingual Plane has no single unit.
char16_t asUnit(UChar32 mapped, char16_t unit) { return mapped > lastUnit ? unit : static_cast<char16_t>(mapped); }

TEST(CaseMapping, AgreesWithUnicodeForEveryUnit)
{
    for (UChar32 value = 0; value <= lastUnit; ++value) {
        const auto unit = static_cast<char16_t>(value);
        EXPECT_EQ(upper(unit), asUnit(u_toupper(value), unit)) << std::hex << value;
        EXPECT_EQ(lower(unit), asUnit(u_tolower(value), unit)) << std::hex << value;
    }
}

} // namespace
} // namespace rf
