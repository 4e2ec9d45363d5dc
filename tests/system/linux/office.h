#pragma once

#include "given_settings.h"
#include "hands_client.h"
#include "linux/dbus_processes.h"
#include "support/environment_variable.h"

#include <fcntl.h>
#include <optional>

namespace rf::test {

/// The programs and the plugin of tests/hands, as they were built.
struct Built {
    std::string host;
    std::string program;
    std::string plugins;
};

/// The real host and the real program on a bus of their own, with a store and temporary files of their own, with
/// windows that nobody sees, and a person in front of both. All of it goes with this object.
class Office {
public:
    /// A `std::runtime_error` when something does not come up.
    Office(const Built& built, const GivenLists& lists, std::initializer_list<TextView> rooms)
        : plugins_("QT_PLUGIN_PATH", built.plugins)
    {
        using native::dbus::Child;
        require(bus_.isThere(), "no dbus-daemon; install it with: apt-get install dbus-daemon");
        require(Child({built.host, "init", person}, nowhere_.file()).waitForEnd(patience) == 0, "no installation");
        {
            host::SqliteStore store{file("store.db")};
            for (const TextView room : rooms)
                host::ensureCalendar(store, host::folderAt(store, rootPath)->id, room);
            writeSettings(store, lists);
        }
        host_.emplace(
            std::vector<std::string>{built.host, "serve", "--user", person, "--windows", "--program", built.program},
            nowhere_.file());
        require(atHost.sees("explorer", "calendars"), "rfhost does not come up");
        require(until([&] { return atProgram.isThere(); }),
            "RFBookingInfo does not come up; another one of this user may be running");
    }
    Office(const Office&) = delete;
    Office& operator=(const Office&) = delete;
    ~Office()
    {
        if (!host_)
            return;
        host_->terminate();
        static_cast<void>(host_->waitForEnd(patience));
        // It ends with its host, and what it leaves in the folder goes with that.
        static_cast<void>(until([&] { return !atProgram.isAlive(); }));
    }

private:
    static constexpr std::chrono::seconds patience{20};

    /// A folder that goes with this object.
    class Folder {
    public:
        explicit Folder(const std::filesystem::path& parent)
        {
            std::string name = (parent / "rf-office-XXXXXX").string();
            require(mkdtemp(name.data()) != nullptr, "no temporary folder");
            path_ = name;
        }
        ~Folder()
        {
            std::error_code ignored;
            std::filesystem::remove_all(path_, ignored);
        }
        Folder(const Folder&) = delete;
        Folder& operator=(const Folder&) = delete;
        [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    private:
        std::filesystem::path path_;
    };

    /// Where the words of the programs go.
    class Nowhere {
    public:
        Nowhere() = default;
        ~Nowhere() { close(file_); }
        Nowhere(const Nowhere&) = delete;
        Nowhere& operator=(const Nowhere&) = delete;
        [[nodiscard]] int file() const { return file_; }

    private:
        int file_ = open("/dev/null", O_WRONLY | O_CLOEXEC);
    };

    [[nodiscard]] std::string file(const char* name) const { return folder_.path() / name; }
    static void require(bool isSo, const char* otherwise)
    {
        if (!isSo)
            throw std::runtime_error{otherwise};
    }
    template <class Condition>
    static bool until(Condition&& condition)
    {
        constexpr std::chrono::milliseconds step{20};
        const auto end = std::chrono::steady_clock::now() + patience;
        while (!condition() && std::chrono::steady_clock::now() < end)
            std::this_thread::sleep_for(step);
        return condition();
    }

    Folder folder_{std::filesystem::temp_directory_path()};
    /// The name of a socket may not be long, wherever temporary files are.
    Folder sockets_{"/tmp"};
    EnvironmentVariable temporary_{"TMPDIR", folder_.path()};
    EnvironmentVariable runtime_{"XDG_RUNTIME_DIR", folder_.path()};
    EnvironmentVariable store_{"RFHOST_STORE", file("store.db")};
    EnvironmentVariable platform_{"QT_QPA_PLATFORM", "offscreen"};
    EnvironmentVariable plugins_;
    EnvironmentVariable plugin_{"QT_QPA_GENERIC_PLUGINS", "rfhands"};
    // A platform without a screen warns of what it cannot do.
    EnvironmentVariable quiet_{"QT_LOGGING_RULES", "default.warning=false"};
    EnvironmentVariable hands_{"RF_HANDS", sockets_.path()};
    EnvironmentVariable regional_{"LC_ALL", "en_GB.UTF-8"};
    Nowhere nowhere_;
    native::dbus::PrivateBus bus_;
    std::optional<native::dbus::Child> host_;

public:
    HandsOn atHost{sockets_.path(), "rfhost"};
    HandsOn atProgram{sockets_.path(), "RFBookingInfo"};
    /// Those who wait for what the others bring about.
    HandsOn eyesOnHost{sockets_.path(), "rfhost"};
    HandsOn eyesOnProgram{sockets_.path(), "RFBookingInfo"};
};

} // namespace rf::test
