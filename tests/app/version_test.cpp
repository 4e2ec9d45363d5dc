#include "app/attachment.h"
#include "basic/error_of.h"
#include "basic/pattern_regional.h"

#include <gtest/gtest.h>

namespace rf {
namespace {

class MajorVersion : public ::testing::Test {
protected:
    PatternRegional regional{germanSettings()};
};

TEST_F(MajorVersion, IsThePartBeforeTheFirstPointWhichIsLeft)
{
    Text version = u"12.0.0.6423";
    EXPECT_EQ(fncMajorVersion(regional, version), 12);
    EXPECT_EQ(version, u"12");
}

TEST_F(MajorVersion, OfATextWithoutAPointIsTheWholeText)
{
    Text version = u"9";
    EXPECT_EQ(fncMajorVersion(regional, version), 9);
    EXPECT_EQ(version, u"9");
}

TEST_F(MajorVersion, OfNoNumberIsATypeMismatch)
{
    for (Text version : {u"", u".5", u"beta.1"})
        EXPECT_EQ(test::errorOf([&] { return fncMajorVersion(regional, version); }), error_number::typeMismatch);
}

} // namespace
} // namespace rf
