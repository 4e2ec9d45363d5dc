#pragma once

#include "hands_client.h"
#include "hours_by_hand.h"
#include "installation_fixture.h"

namespace rf::test {

/// The real host and the real program with windows that nobody sees, and a person in front of both.
class ByHand : public Installed {
protected:
    const EnvironmentVariable screen{"QT_QPA_PLATFORM", "offscreen"};
    const EnvironmentVariable plugins{"QT_PLUGIN_PATH", RF_PLUGINS};
    const EnvironmentVariable plugin{"QT_QPA_GENERIC_PLUGINS", "rfhands"};
    const EnvironmentVariable sockets{"RF_HANDS", folder.path()};
    const EnvironmentVariable regional{"LC_ALL", "en_GB.UTF-8"};
    static constexpr const char* bookingBar = "Roomfold for Outlook Booking Info";
    HandsOn atHost{folder.path(), "rfhost"};
    HandsOn atProgram{folder.path(), "RFBookingInfo"};

    void TearDown() override
    {
        if (HasFailure())
            std::cerr << "Programs that run: " << programs().size() << '\n';
        if (HasFailure() && atHost.isThere())
            std::cerr << "The host: " << atHost.everything() << '\n';
        if (HasFailure() && atProgram.isThere())
            std::cerr << "The program: " << atProgram.everything() << '\n';
        // A program that loses its host in the middle of a call shows a report, and nobody would answer it.
        if (host != nullptr) {
            host->terminate();
            static_cast<void>(host->waitForEnd(std::chrono::seconds{5}));
            if (!within(std::chrono::seconds{2}, [&] { return programs().empty(); }))
                dismissLateProgram();
        }
        Installed::TearDown();
    }

    /// The host starts a program whenever it shows the root folder. One that it has started in its last moment loses it
    /// on the way, and waits with a message until somebody has read it.
    void dismissLateProgram() const
    {
        HandsOn late{folder.path(), "RFBookingInfo"};
        for (const char* const button : {"No", "OK"})
            if (!late.look({}, button).isEmpty())
                return late.click({}, button);
        std::cerr << "The program that stays: " << late.everything() << '\n';
    }
    void makeRooms(std::initializer_list<TextView> rooms) const
    {
        host::SqliteStore made{folder.file("store.db")};
        for (const TextView room : rooms)
            host::ensureCalendar(made, host::folderAt(made, rootPath)->id, room);
    }
    void giveSettings(const GivenLists& lists = {}) const
    {
        host::SqliteStore made{folder.file("store.db")};
        writeSettings(made, lists);
    }
    void serveWithWindows(std::vector<std::string> more = {})
    {
        std::vector<std::string> words{
            RF_HOST_PROGRAM, "serve", "--user", person, "--windows", "--program", RF_PROGRAM};
        words.insert(words.end(), more.begin(), more.end());
        host = std::make_unique<Child>(words);
    }

    /// It asks nobody, and its program goes with it.
    void expectHostToEndWhenTold()
    {
        host->terminate();
        EXPECT_EQ(host->waitForEnd(std::chrono::seconds{5}), 0);
        EXPECT_TRUE(within(std::chrono::seconds{5}, [&] { return programs().empty(); }));
    }

    /// Opens a new appointment at the chosen time. A window that comes before the program listens has no bar; it is
    /// closed and opened again, as people do.
    void openNewAppointment()
    {
        constexpr int attempts = 20;
        for (int attempt = 0; attempt < attempts; ++attempt) {
            atHost.click("explorer", "New");
            // The calendar may just have moved to make room for another.
            if (!atHost.sees("inspector", {}, std::chrono::milliseconds{2000}))
                continue;
            if (atHost.sees("inspector", bookingBar, std::chrono::milliseconds{500}))
                return;
            atHost.close("inspector");
            ASSERT_TRUE(atHost.misses("inspector"));
        }
        FAIL() << "no booking bar";
    }
    /// The first thing on the bar, whatever its name is in the language of the person.
    void pressBookingInfo()
    {
        constexpr int inside = 20;
        const int height = atHost.look("inspector", bookingBar)["height"].toInt();
        atHost.clickAt("inspector", bookingBar, {inside, height / 2});
    }
    /// Opens the orders form of the appointment. One that comes while the program still reads its settings has no place
    /// settings yet; it is closed and opened again, as people do.
    void openOrdersForm()
    {
        constexpr int attempts = 20;
        for (int attempt = 0; attempt < attempts; ++attempt) {
            pressBookingInfo();
            ASSERT_TRUE(atProgram.sees({}, "cmdOK"));
            if (atProgram.sees({}, "optPlaceSetting1", std::chrono::milliseconds{500}))
                return;
            atProgram.click({}, "cmdCancel");
            ASSERT_TRUE(atProgram.misses({}, "cmdOK"));
        }
        FAIL() << "no place settings";
    }

    /// Keeps a picture of a window where RF_PICTURES says; dark when RF_DARK is set.
    static void picture(HandsOn& hands, const QString& window, const std::string& name)
    {
        const char* const where = std::getenv("RF_PICTURES");
        if (where == nullptr)
            return;
        const bool dark = std::getenv("RF_DARK") != nullptr;
        if (dark)
            hands.darken();
        hands.grab(window, std::filesystem::path{where} / (name + (dark ? "-dark.png" : ".png")));
    }

    /// The height at which an hour begins in the day that the host shows.
    [[nodiscard]] QPoint placeOf(double hour) { return hours_.placeOf(hour); }

    [[nodiscard]] std::optional<host::ItemRecord> itemIn(TextView path, TextView subject) const
    {
        const auto items = itemsIn(store(), path);
        const auto found = std::ranges::find(items, subject, &host::ItemRecord::subject);
        return found == items.end() ? std::nullopt : std::optional{*found};
    }
    [[nodiscard]] static Text propertyOf(const host::ItemRecord& item, TextView name)
    {
        const auto found = std::ranges::find(item.userProperties, name, &host::UserPropertyRecord::name);
        return found == item.userProperties.end() ? Text{} : found->value.text();
    }

private:
    HoursByHand hours_{atHost};
};

} // namespace rf::test
