#include "basic/clock.h"
#include "basic/pattern_regional.h"
#include "host/application.h"
#include "host/entry_id.h"
#include "host/installation.h"
#include "host/recurrence.h"
#include "host/sqlite_store.h"
#include "outlook/application.h"
#include "outlook/appointment_item.h"
#include "outlook/events.h"
#include "outlook/items.h"

#include "sqlite_fixture.h"

#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace rf::host {
namespace {

constexpr int processes = 20;

/// More of them in the slow run.
int rounds()
{
    constexpr int quick = 3;
    constexpr int slow = 20;
    return std::getenv("RF_SLOW_TESTS") == nullptr ? quick : slow;
}

/// Programs of several users at work on one store, each a process with a host of its own.
class RulesAtWork : public ::testing::Test {
protected:
    RulesAtWork()
    {
        SqliteStore store{file};
        const FolderId root = ensureRoomfoldRoot(store, u"Roomfold", u"file:///Roomfold.htm");
        room = ensureCalendar(store, root, u"Room 1");
        ensureMailbox(store, u"Jane Doe");
    }

    /// Runs a step in many processes that start together. Answers how many of them the step was true in.
    template <class Step>
    int together(Step&& step)
    {
        std::array<int, 2> gate{};
        EXPECT_EQ(pipe(gate.data()), 0);
        std::vector<pid_t> children;
        for (int i = 0; i < processes; ++i) {
            const pid_t child = fork();
            if (child == 0) {
                close(gate[1]);
                char byte = 0;
                // The gate opens for all at once, when its other end is closed.
                static_cast<void>(read(gate[0], &byte, 1));
                _exit(step(i) ? 1 : 0);
            }
            children.push_back(child);
        }
        close(gate[0]);
        close(gate[1]);
        int count = 0;
        for (const pid_t child : children) {
            int status = 0;
            waitpid(child, &status, 0);
            EXPECT_TRUE(WIFEXITED(status)) << "a process crashed";
            count += WEXITSTATUS(status);
        }
        return count;
    }

    test::TemporaryFolder folder;
    const std::filesystem::path file = folder.file();
    FolderId room{};
};

/// One user's program beside its host.
struct Program {
    explicit Program(const std::filesystem::path& file, FolderId room)
        : store(file)
        , host(Application::make({store, regional, clock, windows, recurrence.get()}, {u"11.0", u"Jane Doe"}))
        , calendar(outlook::Application{automation::Object{host}}.getNamespace().getFolderFromId(entryIdOf(room), {}))
    {
    }

    /// What has a moment in common with a time between full hours.
    [[nodiscard]] static Text overlapping(Date from, Date to)
    {
        const auto literal = [](Date date) {
            const auto fields = date.fields();
            return u"\"#" + decimal(fields.year) + u"-" + decimal(fields.month) + u"-" + decimal(fields.day) + u" "
                + decimal(fields.hour) + u":00#\"";
        };
        return u"[Start] < " + literal(to) + u" and [End] > " + literal(from);
    }
    [[nodiscard]] bool isTaken(Date from, Date to) const
    {
        return static_cast<bool>(calendar.items().find(overlapping(from, to)));
    }

    PatternRegional regional{englishSettings()};
    SystemClock clock;
    HeadlessWindows windows;
    std::unique_ptr<RecurrenceEngine> recurrence = makeRecurrenceEngine();
    SqliteStore store;
    std::shared_ptr<Application> host;
    outlook::Folder calendar;
};

TEST_F(RulesAtWork, LetExactlyOneOfManyWindowsBookASlot)
{
    for (int round = 0; round < rounds(); ++round) {
        const Date from = Date::fromFields({2024, 3, 1, 8 + round % 10, 0, 0}).plusMinutes(1440LL * (round / 10));
        const int won = together([&](int) {
            const Program program{file, room};
            const auto item = program.calendar.items().add().as<outlook::AppointmentItem>();
            item.setStart(from);
            item.setDuration(60);
            outlook::ItemEvents rules;
            rules.write = [&](bool& cancel) { cancel = program.isTaken(from, from.plusMinutes(60)); };
            const auto connection = outlook::connect(item, rules);
            item.save();
            return item.saved();
        });
        EXPECT_EQ(won, 1) << "in round " << round;
    }
    EXPECT_EQ(SqliteStore{file}.count(room), static_cast<std::size_t>(rounds()));
}

TEST_F(RulesAtWork, LetExactlyOneOfManyProgramsReplaceAnAddedItem)
{
    constexpr std::chrono::milliseconds listening{1500};
    std::array<int, 2> ready{};
    ASSERT_EQ(pipe(ready.data()), 0);
    const pid_t dropper = fork();
    if (dropper == 0) {
        // Another client drops the item when every program listens.
        std::array<char, processes> heard{};
        for (int count = 0; count < processes;)
            count += static_cast<int>(std::max<ssize_t>(read(ready[0], heard.data(), heard.size()), 0));
        SqliteStore store{file};
        ItemRecord item;
        item.folder = room;
        item.messageClass = u"IPM.Appointment";
        item.subject = u"dropped";
        store.save(item);
        _exit(0);
    }
    const int acted = together([&](int) {
        const Program program{file, room};
        const auto items = program.calendar.items();
        int replaced = 0;
        outlook::ItemsEvents rules;
        rules.itemAdd = [&](const outlook::Item& added) {
            if (added.subject() != u"dropped")
                return;
            added.remove();
            const auto replacement = program.calendar.items().add();
            replacement.setSubject(u"replaced");
            replacement.save();
            ++replaced;
        };
        const auto connection = outlook::connect(items, rules);
        static_cast<void>(write(ready[1], "", 1) == 1);
        const auto end = std::chrono::steady_clock::now() + listening;
        while (std::chrono::steady_clock::now() < end) {
            program.host->model().followChanges();
            std::this_thread::sleep_for(std::chrono::milliseconds{20});
        }
        return replaced == 1;
    });
    waitpid(dropper, nullptr, 0);
    close(ready[0]);
    close(ready[1]);
    EXPECT_EQ(acted, 1);
    const SqliteStore store{file};
    ASSERT_EQ(store.count(room), 1U);
    EXPECT_EQ(store.read(store.items(room).front())->subject, u"replaced");
}

TEST_F(RulesAtWork, LoseNoneOfTheOccurrencesThatManyProgramsChange)
{
    ItemRecord series;
    series.folder = room;
    series.messageClass = u"IPM.Appointment";
    series.start = Date::fromFields({.year = 2024, .month = 3, .day = 1, .hour = 9});
    series.end = series.start.plusMinutes(60);
    series.recurrence.emplace().rule = u"FREQ=DAILY;COUNT=" + decimal(processes);
    SqliteStore{file}.save(series);
    const int saved = together([&](int number) {
        const Program program{file, room};
        const auto items = program.calendar.items();
        items.sort(u"[Start]", false);
        items.setIncludeRecurrences(true);
        const Date start = series.start.plusMinutes(1440LL * number);
        const auto occurrence = items.find(Program::overlapping(start, start.plusMinutes(60)));
        occurrence.userProperties().add(u"Field " + decimal(number), outlook::UserPropertyType::Text, true);
        occurrence.setSubject(decimal(number));
        occurrence.save();
        return true;
    });
    EXPECT_EQ(saved, processes);
    const SqliteStore store{file};
    const auto changed = store.read(series.id);
    ASSERT_TRUE(changed && changed->recurrence);
    EXPECT_EQ(changed->recurrence->changes.size(), std::size_t{processes});
    EXPECT_EQ(store.folder(room)->fields.size(), std::size_t{processes});
}

} // namespace
} // namespace rf::host
