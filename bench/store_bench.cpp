#include "host/sqlite_codec.h"
#include "host/sqlite_schema.h"
#include "host/sqlite_store.h"

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <map>
#include <random>
#include <string>

namespace {

using namespace rf;
using namespace rf::host;
using Clock = std::chrono::steady_clock;

constexpr std::int64_t minute = 60;
constexpr std::int64_t hour = 60 * minute;
constexpr std::int64_t day = 24 * hour;
/// The first appointment, in the year 2001.
constexpr std::int64_t beginning = 36923 * day;
/// Every so many hours a booking of twenty days begins; the days behind it are free between the appointments.
constexpr std::int64_t hoursOfABlock = 1000;
constexpr std::int64_t longBooking = 20 * day;

std::filesystem::path benchFolder()
{
    return std::filesystem::temp_directory_path() / ("rf-store-bench-" + std::to_string(getpid()));
}

/// An appointment of half an hour in every hour, and long ones over them.
ItemRecord appointmentAt(FolderId folder, std::int64_t index)
{
    ItemRecord item;
    item.folder = folder;
    item.messageClass = u"IPM.Appointment";
    item.subject = u"Meeting " + decimal(index);
    item.body = u"Agenda of the meeting, as long as such things are: one or two lines of text.";
    item.location = u"Large meeting room";
    const std::int64_t start = beginning + index * hour;
    item.start = Date::fromSeconds(start);
    item.end = Date::fromSeconds(start + (index % hoursOfABlock == 0 ? longBooking : hour / 2));
    item.creationTime = item.lastModificationTime = item.start;
    item.userProperties = {
        {u"LinkID", 1, u"00000000A1B2C3D4" + decimal(index)}, {u"Resource", 1, Text{u"Room 1"}}, {u"Persons", 3, 12.0}};
    return item;
}

/// The same calendar in the store, in a plain table with the best index for the question, and in an R*Tree.
struct Calendar {
    explicit Calendar(std::int64_t count)
        : store((std::filesystem::create_directories(benchFolder()), benchFolder() / std::to_string(count)))
        , plain(benchFolder() / (std::to_string(count) + "-plain"), Database::Access::Create, std::chrono::seconds{10})
        , folder(store.addFolder({.id = {},
              .parent = {},
              .role = {},
              .name = u"Room",
              .defaultItemType = 1,
              .webViewUrl = {},
              .webViewOn = {},
              .fields = {}}))
        , size(count)
    {
        plain.execute("PRAGMA journal_mode = WAL");
        plain.execute(connectionSettings);
        plain.execute(R"(CREATE TABLE booking(id INTEGER PRIMARY KEY, folder, first, last);
            CREATE VIRTUAL TABLE tree USING rtree_i32(id, first, last);
            CREATE TABLE whole(id INTEGER PRIMARY KEY AUTOINCREMENT, folder, subject, body, message_class, location,
                start, end, creation_time, modification_time, properties))");
        constexpr std::int64_t atOnce = 10'000;
        for (std::int64_t index = 0; index < count; index += atOnce)
            fill(index, std::min(index + atOnce, count));
        plain.execute("CREATE INDEX booking_by_time ON booking(folder, first, last)");
    }

    void fill(std::int64_t from, std::int64_t to)
    {
        std::vector<ItemRecord> items;
        for (std::int64_t index = from; index < to; ++index)
            items.push_back(appointmentAt(folder, index));
        store.saveTogether(items);
        Transaction transaction{plain};
        for (const ItemRecord& item : items) {
            const Stretch stretch = stretchOf(item);
            Query{plain, Sql{insertBooking}}.bind(item.id).bind(folder).bind(stretch.first).bind(stretch.last).run();
            Query{plain, Sql{insertTree}}.bind(item.id).bind(stretch.first / minute).bind(stretch.last / minute).run();
        }
        transaction.commit();
    }

    static constexpr const char* insertBooking = "INSERT INTO booking VALUES(?1, ?2, ?3, ?4)";
    static constexpr const char* insertTree = "INSERT INTO tree VALUES(?1, ?2, ?3)";

    SqliteStore store;
    Database plain;
    FolderId folder;
    std::int64_t size;
};

Calendar& calendarOf(std::int64_t count)
{
    static std::map<std::int64_t, Calendar> calendars;
    return calendars.try_emplace(count, count).first->second;
}

/// Times of one operation in microseconds.
class Times {
public:
    template <class Step>
    double take(const Step& step)
    {
        const auto start = Clock::now();
        step();
        times_.push_back(std::chrono::duration<double, std::micro>(Clock::now() - start).count());
        return times_.back() / 1e6;
    }
    [[nodiscard]] double percentile(double share)
    {
        std::ranges::sort(times_);
        return times_.empty() ? 0 : times_[static_cast<std::size_t>(share * static_cast<double>(times_.size() - 1))];
    }
    void report(benchmark::State& state, const std::string& name)
    {
        state.counters[name + "_p50_us"] = percentile(0.5);
        state.counters[name + "_p99_us"] = percentile(0.99);
    }

private:
    std::vector<double> times_;
};

std::size_t answers(Query& query)
{
    std::size_t count = 0;
    while (query.next())
        ++count;
    return count;
}

constexpr Sql askBooking{"SELECT id FROM booking WHERE folder = ?1 AND first <= ?3 AND last >= ?2 ORDER BY first"};
constexpr Sql askTree{"SELECT id FROM tree WHERE first <= ?2 AND last >= ?1"};

struct Slot {
    std::int64_t from = 0;
    std::int64_t to = 0;
};

/// Slots anywhere in the calendar where no long booking lies.
std::vector<Slot> slotsOf(const Calendar& calendar, std::size_t count, bool isTaken)
{
    std::mt19937_64 random{2001};
    std::uniform_int_distribution<std::int64_t> anywhere{0, calendar.size - 1};
    std::vector<Slot> slots;
    while (slots.size() < count) {
        std::int64_t index = anywhere(random);
        index += std::max<std::int64_t>(0, hoursOfABlock / 2 - index % hoursOfABlock);
        const std::int64_t from = beginning + index * hour + (isTaken ? minute : hour / 2 + minute);
        slots.push_back({from, from + hour / 3});
    }
    return slots;
}

/// The store against the better of the two plain ways, and against itself in the smallest calendar.
void reportRatios(benchmark::State& state, Times& store, Times& plain, Times& tree, bool isTaken)
{
    static std::map<bool, std::pair<std::int64_t, double>> smallest;
    const auto against = [&](double share) {
        return store.percentile(share) / std::min(plain.percentile(share), tree.percentile(share));
    };
    state.counters["ratio_p50"] = against(0.5);
    state.counters["ratio_p99"] = against(0.99);
    const double median = store.percentile(0.5);
    auto& [size, medianThere] = smallest.try_emplace(isTaken, state.range(0), median).first->second;
    if (size == state.range(0))
        medianThere = median;
    state.counters["growth"] = median / medianThere;
}

/// The ways are asked one after the other: a look through a whole table would empty the processor's cache for the
/// others.
void askForSlots(benchmark::State& state, bool isTaken)
{
    // The plain index answers by a walk through half of a calendar, so of a large one it is asked less often.
    constexpr std::size_t usualPlainQuestions = 2000;
    constexpr std::size_t fewPlainQuestions = 100;
    const std::size_t plainQuestions = state.range(0) > 10'000 ? fewPlainQuestions : usualPlainQuestions;
    Calendar& calendar = calendarOf(state.range(0));
    const std::vector<Slot> slots = slotsOf(calendar, static_cast<std::size_t>(state.max_iterations), isTaken);
    std::size_t found = 0;
    std::size_t asked = 0;
    Times store;
    for (auto _ : state) {
        const Slot& slot = slots[asked++ % slots.size()];
        const Date from = Date::fromSeconds(slot.from);
        const Date to = Date::fromSeconds(slot.to);
        state.SetIterationTime(
            store.take([&] { found += calendar.store.overlapping(calendar.folder, from, to).size(); }));
    }
    std::size_t unexpected = 0;
    Times plain;
    Times tree;
    for (const Slot& slot : std::span{slots}.first(std::min(plainQuestions, slots.size()))) {
        plain.take([&] {
            Query query{calendar.plain, askBooking};
            unexpected
                += answers(query.bind(calendar.folder).bind(slot.from).bind(slot.to)) == (isTaken ? 1 : 0) ? 0 : 1;
        });
    }
    for (const Slot& slot : slots) {
        tree.take([&] {
            Query query{calendar.plain, askTree};
            benchmark::DoNotOptimize(answers(query.bind(slot.from / minute).bind(slot.to / minute)));
        });
    }
    if (unexpected != 0 || found != (isTaken ? slots.size() : 0))
        state.SkipWithError("wrong answer");
    store.report(state, "store");
    plain.report(state, "sql");
    tree.report(state, "rtree");
    reportRatios(state, store, plain, tree, isTaken);
}

void overlappingFreeSlot(benchmark::State& state) { askForSlots(state, false); }
void overlappingTakenSlot(benchmark::State& state) { askForSlots(state, true); }

constexpr Sql insertWhole{
    R"(INSERT INTO whole(folder, subject, body, message_class, location, start, end, creation_time,
    modification_time, properties) VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10))"};

void insertPlain(Database& database, const ItemRecord& item)
{
    const Bytes properties = encode(item.userProperties);
    Transaction transaction{database};
    Query{database, insertWhole}
        .bind(item.folder)
        .bind(TextView{item.subject})
        .bind(TextView{item.body})
        .bind(TextView{item.messageClass})
        .bind(TextView{item.location})
        .bind(item.start.days())
        .bind(item.end.days())
        .bind(item.creationTime.days())
        .bind(item.lastModificationTime.days())
        .bind(std::span{properties})
        .run();
    transaction.commit();
}

void saveNewItem(benchmark::State& state)
{
    Calendar& calendar = calendarOf(state.range(0));
    std::int64_t index = calendar.size + hoursOfABlock;
    Times store;
    Times plain;
    for (auto _ : state) {
        ItemRecord item = appointmentAt(calendar.folder, ++index);
        state.SetIterationTime(store.take([&] { calendar.store.save(item); }));
        plain.take([&] { insertPlain(calendar.plain, item); });
    }
    store.report(state, "store");
    plain.report(state, "sql");
    state.counters["ratio_p50"] = store.percentile(0.5) / plain.percentile(0.5);
}

void readItem(benchmark::State& state)
{
    Calendar& calendar = calendarOf(state.range(0));
    const std::vector<ItemId> items = calendar.store.items(calendar.folder);
    std::mt19937_64 random{2001};
    Times store;
    for (auto _ : state) {
        const ItemId item = items[random() % items.size()];
        state.SetIterationTime(store.take([&] { benchmark::DoNotOptimize(calendar.store.read(item)); }));
    }
    store.report(state, "store");
}

void leaseTakenAndGivenUp(benchmark::State& state)
{
    Calendar& calendar = calendarOf(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            calendar.store.takeLease(calendar.folder, std::chrono::seconds{10}, std::chrono::seconds{1}));
        calendar.store.giveUpLease(calendar.folder);
    }
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(1000)->Arg(10'000)->Arg(100'000)->Arg(1'000'000);
}

void manySizes(benchmark::internal::Benchmark* benchmark)
{
    sizes(benchmark);
    benchmark->UseManualTime()->Unit(benchmark::kMicrosecond);
}

BENCHMARK(overlappingFreeSlot)->Apply(manySizes)->Iterations(2000);
BENCHMARK(overlappingTakenSlot)->Apply(manySizes)->Iterations(2000);
BENCHMARK(readItem)->Apply(manySizes)->Iterations(10'000);
BENCHMARK(saveNewItem)->Apply(manySizes)->Iterations(500);
BENCHMARK(leaseTakenAndGivenUp)->Arg(1000)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    std::error_code ignored;
    std::filesystem::remove_all(benchFolder(), ignored);
    return 0;
}
