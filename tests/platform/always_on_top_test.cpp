#include "platform/always_on_top.h"
#include "support/recording_toolkit.h"

#include <gtest/gtest.h>

namespace rf {
namespace {

class Window final : public ui::Form {
public:
    [[nodiscard]] TextView name() const override { return u"frmWindow"; }
    [[nodiscard]] ui::WindowHandle window() const override { return 42; }
};

TEST(AlwaysOnTop, PutsAWindowAboveAllOthersAndBackAmongThem)
{
    test::RecordingToolkit toolkit;
    clsAlwaysOnTop placement{toolkit};
    placement.MakeTopMost(42);
    placement.MakeNormal(42);
    EXPECT_EQ(toolkit.topMost, (std::vector<std::pair<ui::WindowHandle, bool>>{{42, true}, {42, false}}));
}

TEST(VisibleTaskBar, GivesTheFormsWindowItsButton)
{
    test::RecordingToolkit toolkit;
    Trace trace;
    subEnsureVisibleTaskBar(trace, toolkit, Window{});
    EXPECT_EQ(toolkit.inTaskBar, (std::vector<ui::WindowHandle>{42}));
    EXPECT_EQ(trace.fncLastAction(), u"Trying to make sure the form appears in the Activity bar");
}

} // namespace
} // namespace rf
