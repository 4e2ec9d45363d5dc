#pragma once

#include "hands_client.h"
#include "installation_fixture.h"

#include "host/entry_id.h"

#include <QRegularExpression>

namespace rf::test {

inline constexpr TextView room1 = u"\\\\Public Folders\\All Public Folders\\Roomfold\\Room 1";

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
        if (HasFailure() && atHost.isThere())
            std::cerr << "The host: " << atHost.everything();
        if (HasFailure() && atProgram.isThere())
            std::cerr << "The program: " << atProgram.everything();
        // A program that loses its host in the middle of a call shows a report, and nobody would answer it.
        if (host != nullptr) {
            host->terminate();
            static_cast<void>(host->waitForEnd(5s));
        }
        Installed::TearDown();
    }

    void makeRooms(std::initializer_list<TextView> rooms) const
    {
        host::SqliteStore made{folder.file("store.db")};
        for (const TextView room : rooms)
            host::ensureCalendar(made, host::folderAt(made, rootPath)->id, room);
    }
    /// The settings that an administrator has made: projects, supplies, place settings, every rule, both copies.
    void giveSettings(const Text& placeSettings = u"Theatre\r\nClassroom\r\nU shape\r\nBoardroom") const
    {
        host::SqliteStore made{folder.file("store.db")};
        const auto root = host::folderAt(made, rootPath)->id;
        const auto master = host::ensureCalendar(made, host::folderAt(made, rootPath)->parent, u"All bookings");
        host::ItemRecord post;
        post.folder = root;
        post.messageClass = u"IPM.Post";
        post.subject = u"Settings";
        const auto text = [&](const Text& name, const Text& value) { post.userProperties.push_back({name, 1, value}); };
        const auto longText = [&](const Text& name, const Text& value) {
            text(name + u"0", value);
            post.userProperties.push_back({name + u"Count", 3, 0.0});
        };
        longText(u"strSupply", u"Coffee\t2.5\r\nTea\t2\r\nMineral water\t1.5\r\nSandwich\t4.75\r\nFlip chart\t0\r\n");
        longText(u"strProjects", u"Annual report;255\r\nNew building;128\r\nSummer party;32768\r\n");
        longText(u"strPlaceSettings", placeSettings);
        text(u"strDefaultPlaceSetting", u"Theatre");
        text(u"strMasterName", u"All bookings");
        text(u"strMasterPath", Text{masterPath});
        text(u"strMasterEntryID", host::entryIdOf(master));
        for (const char16_t* rule : {u"blnNoDoubles", u"blnProjectMandatory", u"blnNoRecurring", u"blnPersonalCopy",
                 u"blnMasterCopy", u"blnKCWithOrder"})
            post.userProperties.push_back({rule, 6, true});
        text(u"strKCFormat", u"1");
        made.save(post);
    }
    void serveWithWindows(std::vector<std::string> more = {})
    {
        std::vector<std::string> words{
            RF_HOST_PROGRAM, "serve", "--user", person, "--windows", "--program", RF_PROGRAM};
        words.insert(words.end(), more.begin(), more.end());
        host = std::make_unique<Child>(words);
    }

    /// Opens a new appointment at the chosen time. A window that comes before the program listens has no bar, and one
    /// that comes while it reads its settings has half of one; it is closed and opened again, as people do.
    void openNewAppointment()
    {
        constexpr int attempts = 20;
        for (int attempt = 0; attempt < attempts; ++attempt) {
            atHost.click("explorer", "New");
            ASSERT_TRUE(atHost.sees("inspector"));
            if (atHost.sees("inspector", bookingBar, 500ms) && hasNamedBox())
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

    /// The host calls a box "Command" that has no name.
    [[nodiscard]] bool hasNamedBox()
    {
        return within(500ms, [&] { return atHost.look("inspector", "Command").isEmpty(); });
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
    [[nodiscard]] QPoint placeOf(double hour)
    {
        if (!scale_)
            scale_ = measure();
        return {atHost.look("explorer", "hours")["width"].toInt() / 2,
            static_cast<int>(scale_->eight + (hour - 8) * scale_->hour)};
    }

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
    /// Where eight o'clock stands, and how high an hour is, in pixels.
    struct Scale {
        double eight = 0;
        double hour = 0;
    };

    /// The hour that a click at a height chooses, as the calendar tells it.
    [[nodiscard]] double hourAt(int y)
    {
        static const QRegularExpression times{QStringLiteral("(\\d\\d):(\\d\\d) . ")};
        atHost.clickAt("explorer", "hours", {atHost.look("explorer", "hours")["width"].toInt() / 2, y});
        const auto match = times.match(atHost.look("explorer", "hours")["told"].toString());
        EXPECT_TRUE(match.hasMatch()) << atHost.look("explorer", "hours")["told"].toString().toStdString();
        return match.captured(1).toDouble() + match.captured(2).toDouble() / 60;
    }
    /// The first height at which that hour is chosen.
    [[nodiscard]] int topOf(double hour)
    {
        int above = 0;
        int below = atHost.look("explorer", "hours")["height"].toInt() - 1;
        while (below - above > 1) {
            const int middle = (above + below) / 2;
            (hourAt(middle) < hour ? above : below) = middle;
        }
        return below;
    }
    [[nodiscard]] Scale measure()
    {
        const int nine = topOf(9);
        const double hour = (topOf(13) - nine) / 4.0;
        return {nine - hour, hour};
    }

    std::optional<Scale> scale_;
};

} // namespace rf::test
