#include "basic/clock.h"
#include "basic/pattern_regional.h"
#include "host/commands.h"
#include "host/installation.h"
#include "host/sqlite_store.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <unistd.h>

namespace rf::host {
namespace {

/// One calendar for each location, in a new store on disk, as `rfhost import --by-location` does it.
void importConference(benchmark::State& state)
{
    const auto folder = std::filesystem::temp_directory_path() / ("rf-calendar-bench-" + std::to_string(getpid()));
    std::filesystem::create_directories(folder);
    const std::string words[] = {
        RF_TEST_DATA "/conference-2019.ics", "--by-location", "--into", "Public Folders/All Public Folders/Roomfold"};
    const PatternRegional regional{englishSettings()};
    const SystemClock clock;
    int run = 0;
    for (auto _ : state) {
        state.PauseTiming();
        SqliteStore store{folder / std::to_string(++run)};
        ensureRoomfoldRoot(store, u"Roomfold", u"file:///Roomfold.htm");
        std::ostringstream said;
        state.ResumeTiming();
        if (importCommand({store, regional, clock, said, std::cerr, false}, words) != 0)
            state.SkipWithError("not everything was imported");
    }
    std::filesystem::remove_all(folder);
}

BENCHMARK(importConference)->Iterations(3)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace rf::host
