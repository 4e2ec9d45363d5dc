#include "app/session.h"
#include "basic/pattern_regional.h"
#include "booking/acceptance.h"
#include "booking/app_copy.h"
#include "booking/app_items.h"
#include "booking/outlook_booking.h"
#include "booking/overlap_filter.h"
#include "booking/validation.h"
#include "host/application.h"
#include "host/entry_id.h"
#include "host/installation.h"
#include "host/recurrence.h"
#include "host/sqlite_store.h"
#include "linux/scripting.h"
#include "storage/long_property.h"
#include "storage/settings.h"
#include "support/faulty_dispatch.h"
#include "support/recording_toolkit.h"
#include "support/test_classes.h"
#include "support/test_system.h"

#include <benchmark/benchmark.h>
#include <ctime>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <random>

namespace rf {
namespace {

constexpr std::int64_t hour = 3600;
/// The first booking, in the year 2001.
constexpr std::int64_t beginning = 36923LL * 24 * hour;

/// A program beside a host of its own process, whose store lies on the disk.
class Program {
public:
    Program()
        : folder_(std::filesystem::temp_directory_path() / ("rf-booking-bench-" + std::to_string(getpid())))
        , store_((std::filesystem::create_directories(folder_), folder_ / "store.db"))
    {
        host::ensureMailbox(store_, u"Jane Doe");
        const auto root = host::ensureRoomfoldRoot(store_, u"Roomfold", u"Roomfold.htm");
        room = host::ensureCalendar(store_, root, u"Room 1");
        all = host::ensureCalendar(store_, root, u"All bookings");
        host_ = host::Application::make(
            {store_, regional_, clock_, windows_, recurrence_.get()}, {.version = u"11.0.8169", .user = u"Jane Doe"});
        classes_.factories[Text{outlook::dictionaryClass}]
            = [] { return native::makeScriptingObject(outlook::dictionaryClass); };
        session.ouaApp = outlook::Application{automation::Object{host_}};
        session.ounNameSpace = session.ouaApp.getNamespace();
        session.strUserName = u"Jane Doe";
        session.objSettings = std::make_unique<cSettings>(session);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program()
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    /// Every rule and both copies.
    void demandEverything()
    {
        cSettings& settings = *session.objSettings;
        settings.NoDoubles = settings.NoRecurring = settings.ProjectMandatory = true;
        settings.PersonalCopy = settings.MasterCopy = true;
        settings.Projects.FromString(u"Alpha;255\r\n");
        settings.objOUMasterFolder.EntryID = host::entryIdOf(all);
    }

    /// A booking of half an hour in every hour.
    void fill(std::int64_t count)
    {
        constexpr std::int64_t atOnce = 10'000;
        for (std::int64_t from = 0; from < count; from += atOnce) {
            std::vector<host::ItemRecord> items;
            for (std::int64_t index = from; index < std::min(from + atOnce, count); ++index)
                items.push_back(booking(index));
            store_.saveTogether(items);
        }
    }

    [[nodiscard]] outlook::Folder calendar() const
    {
        return session.ouaApp.getNamespace().getFolderFromId(host::entryIdOf(room), {});
    }
    [[nodiscard]] outlook::AppointmentItem newBooking(Date start) const
    {
        const auto item = calendar().items().add().as<outlook::AppointmentItem>();
        item.setSubject(u"Board");
        item.setCategories(u"Alpha");
        item.setStart(start);
        return item;
    }

    host::FolderId room{};
    host::FolderId all{};

private:
    [[nodiscard]] host::ItemRecord booking(std::int64_t index) const
    {
        host::ItemRecord item;
        item.folder = room;
        item.messageClass = u"IPM.Appointment";
        item.subject = u"Meeting " + decimal(index);
        item.categories = u"Alpha";
        item.start = Date::fromSeconds(beginning + index * hour);
        item.end = Date::fromSeconds(beginning + index * hour + hour / 2);
        item.userProperties = {{u"SafeOrganizer", 1, Text{u"Jane Doe"}}, {u"OriginalStartDate", 5, item.start},
            {u"OriginalDuration", 3, 30.0}, {u"OCID", 1, u"2001-2-3:8.0." + decimal(index) + u"_Jane Doe"}};
        return item;
    }

    std::filesystem::path folder_;
    PatternRegional regional_{englishSettings()};
    SystemClock clock_;
    host::HeadlessWindows windows_;
    std::unique_ptr<host::RecurrenceEngine> recurrence_ = host::makeRecurrenceEngine();
    host::SqliteStore store_;
    std::shared_ptr<host::Application> host_;
    test::TestClasses classes_;
    test::TestSystem system_;
    test::TestProcesses processes_;
    test::RecordingToolkit toolkit_;

public:
    Session session{{regional_, clock_, classes_, system_, processes_, toolkit_}};
};

/// The processor time of single steps, since other work on the machine does not count.
class StepTimes {
public:
    template <class Step>
    double take(const Step& step)
    {
        const double start = now();
        step();
        microseconds_.push_back((now() - start) * 1e6);
        return microseconds_.back() / 1e6;
    }
    [[nodiscard]] double percentile(double share)
    {
        std::ranges::sort(microseconds_);
        return microseconds_[static_cast<std::size_t>(share * static_cast<double>(microseconds_.size() - 1))];
    }

private:
    [[nodiscard]] static double now()
    {
        std::timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
    }

    std::vector<double> microseconds_;
};

/// One program for all repetitions: filling its calendar takes longer than what is measured.
Program& programBesideCalendarOf(std::int64_t bookings)
{
    static std::map<std::int64_t, std::unique_ptr<Program>> programs;
    auto& program = programs[bookings];
    if (!program) {
        program = std::make_unique<Program>();
        program->demandEverything();
        program->fill(bookings);
    }
    return *program;
}

/// Free half hours anywhere in the calendar; the search and the whole validation are asked for the same ones.
void validateBooking(benchmark::State& state)
{
    Program& program = programBesideCalendarOf(state.range(0));
    const auto calendar = program.calendar();
    std::mt19937_64 random{2001};
    std::uniform_int_distribution<std::int64_t> anywhere{0, state.range(0) - 1};
    StepTimes validations;
    StepTimes searches;
    for (auto _ : state) {
        const Date start = Date::fromSeconds(beginning + anywhere(random) * hour + hour / 2);
        const auto item = program.newBooking(start);
        const Text filter = fncMakeOverlapFilter(program.session.services.regional, item.start(), item.end());
        searches.take([&] {
            const auto items = calendar.items();
            items.sort(outlook::field::start);
            items.setIncludeRecurrences(true);
            benchmark::DoNotOptimize(items.find(filter));
        });
        Text reason;
        state.SetIterationTime(validations.take([&] { reason = fncValidateBooking(program.session, item); }));
        if (!reason.empty())
            state.SkipWithError("a free slot was refused");
    }
    state.counters["p99_us"] = validations.percentile(0.99);
    state.counters["ratio"] = validations.percentile(0.5) / searches.percentile(0.5);
}

void readBookingRecord(benchmark::State& state)
{
    Program program;
    const auto item = program.newBooking(Date::fromFields({2024, 2, 3, 9, 0, 0}));
    fncAddBookingProps(item);
    Text orders;
    for (int line = 0; line < 50; ++line)
        orders += u"Conference supply " + decimal(line) + u"\t" + decimal(line) + u"\r\n";
    subFixLongProperty(program.session, item, orders, u"strOrders");
    item.save();
    OutlookBooking booking{program.session};
    for (auto _ : state)
        booking.subGetAppData(item);
    if (booking.orderRows.rows() != 50)
        state.SkipWithError("the order was not read");
}

/// Counts the calls that a step makes to the host, its item and all that the program reaches from the application.
template <class Step>
void countCalls(benchmark::State& state, Program& program, const outlook::Item& item, const Step& step)
{
    const auto fault = std::make_shared<test::Fault>();
    const auto application = program.session.ouaApp;
    const auto nameSpace = program.session.ounNameSpace;
    program.session.ouaApp = outlook::Application{test::FaultyDispatch::wrap(application.object(), fault)};
    program.session.ounNameSpace = outlook::NameSpace{test::FaultyDispatch::wrap(nameSpace.object(), fault)};
    step(outlook::AppointmentItem{test::FaultyDispatch::wrap(item.object(), fault)});
    program.session.ouaApp = application;
    program.session.ounNameSpace = nameSpace;
    state.counters["calls"] = fault->uses;
}

void callsToValidate(benchmark::State& state)
{
    for (auto _ : state) {
        Program program;
        program.demandEverything();
        countCalls(state, program, program.newBooking(Date::fromFields({2024, 2, 3, 9, 0, 0})),
            [&](const auto& item) { benchmark::DoNotOptimize(fncValidateBooking(program.session, item)); });
    }
}

/// What the save of a window does with a new booking.
void callsToAcceptSave(benchmark::State& state)
{
    for (auto _ : state) {
        Program program;
        program.demandEverything();
        countCalls(state, program, program.newBooking(Date::fromFields({2024, 2, 3, 9, 0, 0})), [&](const auto& item) {
            BookingItem booking{item};
            CopyCalendars copies{program.session};
            if (fncValidateBooking(program.session, booking).empty())
                copies.copyBooking(booking, acceptBooking(program.session, booking, copies), u"Room 1");
        });
    }
}

void callsOfItemAdd(benchmark::State& state)
{
    for (auto _ : state) {
        Program program;
        program.demandEverything();
        const auto item = program.newBooking(Date::fromFields({2024, 2, 3, 9, 0, 0}));
        item.save();
        cAppItems watcher{program.session};
        watcher.setFolderName(u"Room 1");
        countCalls(state, program, item, [&](const auto& added) { watcher.ouisItems_ItemAdd(added); });
    }
}

void callsOfItemChange(benchmark::State& state)
{
    for (auto _ : state) {
        Program program;
        program.demandEverything();
        const auto item = program.newBooking(Date::fromFields({2024, 2, 3, 9, 0, 0}));
        BookingItem booking{item};
        CopyCalendars copies{program.session};
        copies.copyBooking(booking, acceptBooking(program.session, booking, copies), u"Room 1");
        item.save();
        cAppItems watcher{program.session};
        watcher.setFolderName(u"Room 1");
        countCalls(state, program, item, [&](const auto& changed) { watcher.ouisItems_ItemChange(changed); });
    }
}

BENCHMARK(validateBooking)->Arg(100'000)->UseManualTime()->Iterations(2000)->Unit(benchmark::kMicrosecond);
BENCHMARK(readBookingRecord)->Unit(benchmark::kMicrosecond);
BENCHMARK(callsToValidate)->Iterations(1);
BENCHMARK(callsToAcceptSave)->Iterations(1);
BENCHMARK(callsOfItemAdd)->Iterations(1);
BENCHMARK(callsOfItemChange)->Iterations(1);

} // namespace
} // namespace rf
