#include "host/command_line.h"
#include "host/commands.h"
#include "host/sqlite_store.h"
#include "linux/dbus_activation.h"
#include "linux/regional.h"
#include "linux/rfhost/serve.h"
#include "outlook/constants.h"

#include <QApplication>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <pwd.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using namespace rf;

constexpr std::string_view usage = R"(Usage: rfhost [--store FILE] COMMAND

The embedded host: calendars, mailboxes and public folders in one file, offered
to programs through the object model on the session bus.

Commands:
  init [--root NAME] [--home-page URL] [PERSON...]
        make an installation: public folders, the root folder of the calendar
        product with its home page, a mailbox for each person
  import FILE... --into FOLDER [--by-location]
        read calendar files into a calendar; with --by-location into one
        calendar below FOLDER for each location, made as needed
  export FOLDER
        write a calendar as a calendar file to standard output
  list [FOLDER...]
        list the folders, or the items of folders with their ids
  show ID...
        show items with all their properties
  serve [--user NAME] [--show FOLDER] [--program FILE] [--accept-alerts]
        [--windows]
        serve programs on the session bus until told to end, or until the last
        window is closed; when the root folder is shown, the program in FILE is
        started beside the host. Without a screen there are no windows, unless
        --windows asks for them, and alerts go to standard error and are
        declined. With --accept-alerts they are agreed to and nobody is asked
  activation [--user NAME] [--program FILE] [--into DIRECTORY]
        write the file by which the session bus starts this host with this
        store when a program asks for it and none runs

FOLDER is a path such as "Public Folders/All Public Folders/Roomfold".
The store is --store, else $RFHOST_STORE, else rfhost/store.db in the user's
data folder. The exit status is 0 when all was done, 1 when something was not,
2 for a wrong command line.
)";

fs::path dataFolder()
{
    if (const char* folder = std::getenv("XDG_DATA_HOME"); folder != nullptr && *folder != '\0')
        return folder;
    const char* home = std::getenv("HOME");
    return fs::path{home == nullptr ? "." : home} / ".local" / "share";
}

fs::path defaultStore()
{
    if (const char* file = std::getenv("RFHOST_STORE"); file != nullptr && *file != '\0')
        return file;
    return dataFolder() / "rfhost" / "store.db";
}

/// The person's full name as the system knows it, else the log-on name.
std::string fullName()
{
    const passwd* user = getpwuid(getuid());
    if (user == nullptr)
        return "user";
    const std::string details = user->pw_gecos == nullptr ? "" : user->pw_gecos;
    const std::string name = details.substr(0, details.find(','));
    return name.empty() ? user->pw_name : name;
}

int serveCommand(const host::CommandContext& context, std::span<const std::string> arguments)
{
    const host::CommandLine line{arguments, {"--user", "--show", "--program"}, {"--accept-alerts", "--windows"}};
    return native::serve(context,
        {fromUtf8(line.value("--user", fullName())), line.value("--show", ""), line.value("--program", ""),
            line.has("--accept-alerts"), native::wantsWindows(line.has("--windows"))});
}

/// The bus passes no environment of the asker on, so the store is named in full.
int writeActivation(const fs::path& store, std::span<const std::string> arguments)
{
    const host::CommandLine line{arguments, {"--user", "--program", "--into"}, {}};
    std::vector<std::string> command{fs::read_symlink("/proc/self/exe"), "--store", fs::absolute(store), "serve",
        "--user", line.value("--user", fullName())};
    if (line.has("--program"))
        command.insert(command.end(), {"--program", fs::absolute(line.required("--program"))});
    const fs::path folder = line.value("--into", dataFolder() / "dbus-1" / "services");
    std::cout << native::dbus::writeServiceFile(folder, outlook::applicationClass, command).string() << '\n';
    return 0;
}

struct NamedCommand {
    std::string_view name;
    host::Command run;
};
constexpr std::array commands{NamedCommand{"init", host::initCommand}, NamedCommand{"import", host::importCommand},
    NamedCommand{"export", host::exportCommand}, NamedCommand{"list", host::listCommand},
    NamedCommand{"show", host::showCommand}, NamedCommand{"serve", serveCommand}};

int run(const host::Command command, const fs::path& file, std::span<const std::string> arguments)
{
    if (file.has_parent_path())
        fs::create_directories(file.parent_path());
    host::SqliteStore store{file};
    const auto regional = native::makeRegional();
    const SystemClock clock;
    return command({store, *regional, clock, std::cout, std::cerr, isatty(STDERR_FILENO) != 0}, arguments);
}

/// Only a host that serves has windows; all else works without the libraries of a screen being asked for one.
std::unique_ptr<QCoreApplication> makeApplication(int& count, char** list)
{
    const std::vector<std::string> words{list + 1, list + count};
    const bool serves = std::ranges::find(words, "serve") != words.end();
    if (!serves || !native::wantsWindows(std::ranges::find(words, "--windows") != words.end()))
        return std::make_unique<QCoreApplication>(count, list);
    auto application = std::make_unique<QApplication>(count, list);
    QApplication::setApplicationName(QStringLiteral("rfhost"));
    QApplication::setApplicationDisplayName(QString{});
    // The host decides when it ends: a dialog may be the last window for a moment.
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setQuitLockEnabled(false);
    return application;
}

} // namespace

int main(int argumentCount, char** argumentList)
{
    const auto application = makeApplication(argumentCount, argumentList);
    std::vector<std::string> words{argumentList + 1, argumentList + argumentCount};
    fs::path store = defaultStore();
    if (words.size() >= 2 && words[0] == "--store") {
        store = words[1];
        words.erase(words.begin(), words.begin() + 2);
    }
    if (words.empty() || words[0] == "--help" || words[0] == "-h") {
        (words.empty() ? std::cerr : std::cout) << usage;
        return words.empty() ? 2 : 0;
    }
    const std::span arguments = std::span{words}.subspan(1);
    const bool isActivation = words[0] == "activation";
    const auto* const command = std::ranges::find(commands, words[0], &NamedCommand::name);
    if (command == commands.end() && !isActivation) {
        std::cerr << "rfhost: unknown command " << words[0] << "\n\n" << usage;
        return 2;
    }
    try {
        return isActivation ? writeActivation(store, arguments) : run(command->run, store, arguments);
    } catch (const host::UsageError& error) {
        std::cerr << "rfhost " << words[0] << ": " << error.what() << "\n\n" << usage;
        return 2;
    } catch (const RuntimeError& error) {
        std::cerr << "rfhost: " << toUtf8(error.description()) << '\n';
    } catch (const fs::filesystem_error& error) {
        std::cerr << "rfhost: " << error.what() << '\n';
    }
    return 1;
}
