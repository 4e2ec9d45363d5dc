#include "linux/dbus_processes.h"
#include "linux/sqlite_fixture.h"

#include <gtest/gtest.h>
#include <set>

namespace rf::test {
namespace {

/// The last part of a demonstration without a screen.
TEST(BookingDrawnStepByStep, IsMadeWithOneCommandAndLeavesItsPictures)
{
    using namespace std::chrono_literals;
    const host::test::TemporaryFolder folder;
    const auto program = std::filesystem::path{RF_HOST_PROGRAM}.replace_filename("booking_by_hand");
    native::dbus::Child run{{program, folder.file("pictures")}};
    EXPECT_EQ(run.waitForEnd(120s), 0);
    std::set<std::string> pictures;
    for (const auto& entry : std::filesystem::directory_iterator{folder.file("pictures")}) {
        pictures.insert(entry.path().filename());
        EXPECT_TRUE(host::test::bytesOf(entry.path()).starts_with("\x89PNG")) << entry.path();
    }
    EXPECT_EQ(pictures,
        (std::set<std::string>{"1-new-appointment.png", "2-orders-form.png", "3-order-kept.png", "4-accepted.png",
            "5-refused.png", "6-put-back.png"}));
}

TEST(BookingDrawnStepByStep, WantsAFolder)
{
    using namespace std::chrono_literals;
    const auto program = std::filesystem::path{RF_HOST_PROGRAM}.replace_filename("booking_by_hand");
    EXPECT_EQ(native::dbus::Child({program}).waitForEnd(10s), 2);
}

} // namespace
} // namespace rf::test
