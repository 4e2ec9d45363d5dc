#include "basic/clock.h"
#include "basic/pattern_regional.h"
#include "host/application.h"
#include "host/installation.h"
#include "host/recurrence.h"
#include "host/sqlite_store.h"
#include "linux/rfhost/windows/calendar_pane.h"

#include <QApplication>
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <random>

namespace {

using namespace rf;
using namespace rf::host;

constexpr std::int64_t minute = 60;
constexpr std::int64_t hour = 60 * minute;
constexpr std::int64_t day = 24 * hour;
/// The first booking, in the year 2001; in every working hour of each day from then on there is one, with some beside
/// it.
constexpr std::int64_t beginning = 36923 * day;
constexpr std::int64_t bookingsOfADay = 12;
constexpr std::int64_t firstHour = 7;
constexpr QSize usualSize{1100, 720};

std::filesystem::path benchFolder()
{
    return std::filesystem::temp_directory_path() / ("rf-window-bench-" + std::to_string(getpid()));
}

ItemRecord bookingAt(FolderId folder, std::int64_t index)
{
    ItemRecord item;
    item.folder = folder;
    item.messageClass = u"IPM.Appointment";
    item.subject = u"Meeting " + decimal(index);
    item.location = u"Large meeting room";
    const std::int64_t start = beginning + index / bookingsOfADay * day + (firstHour + index % bookingsOfADay) * hour;
    item.start = Date::fromSeconds(start);
    item.end = Date::fromSeconds(start + (index % 3 == 0 ? 2 * hour : hour));
    return item;
}

/// A host with one calendar of that many bookings.
struct Calendar {
    explicit Calendar(std::int64_t count)
        : store((std::filesystem::create_directories(benchFolder()), benchFolder() / std::to_string(count)))
        , room(ensureCalendar(store, ensureRoomfoldRoot(store, u"Roomfold", u"file:///Roomfold.htm"), u"Room 1"))
        , days(count / bookingsOfADay)
    {
        constexpr std::int64_t atOnce = 10'000;
        for (std::int64_t index = 0; index < count; index += atOnce) {
            std::vector<ItemRecord> items;
            for (std::int64_t next = index; next < std::min(index + atOnce, count); ++next)
                items.push_back(bookingAt(room, next));
            store.saveTogether(items);
        }
    }

    SqliteStore store;
    FolderId room;
    std::int64_t days;
    PatternRegional regional{englishSettings()};
    FixedClock clock{Date::fromSeconds(beginning)};
    HeadlessWindows windows;
    std::unique_ptr<RecurrenceEngine> recurrence = makeRecurrenceEngine();
    std::shared_ptr<Application> host
        = Application::make({store, regional, clock, windows, recurrence.get()}, {u"11.0.8169", u"Jane Doe"});
};

/// From the wish to see another week to its picture: read, arranged and drawn.
void drawWeek(benchmark::State& state)
{
    Calendar calendar{state.range(0)};
    native::CalendarPane pane{calendar.host->model().shared_from_this()};
    pane.resize(usualSize);
    pane.setView(CalendarView::Week);
    pane.show(*calendar.store.folder(calendar.room));
    QImage picture{usualSize, QImage::Format_ARGB32_Premultiplied};
    pane.render(&picture);
    std::mt19937_64 random{2001};
    std::uniform_int_distribution<std::int64_t> anyDay{0, calendar.days - 1};
    for (auto _ : state) {
        pane.setDay(Date::fromSeconds(beginning + anyDay(random) * day));
        pane.render(&picture);
        benchmark::DoNotOptimize(picture.constBits());
    }
}

BENCHMARK(drawWeek)->Arg(1000)->Arg(100'000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const QApplication application{argc, argv};
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    std::error_code ignored;
    std::filesystem::remove_all(benchFolder(), ignored);
    return 0;
}
