#include "storage/settings.h"
#include "support/bare_session.h"
#include "support/faulty_dispatch.h"

#include <benchmark/benchmark.h>

namespace rf {
namespace {

/// Settings as people have them after the first start: the post and the descriptions of the calendars are there.
void install(Session& session, std::int64_t calendars)
{
    const auto folders = session.objRootFolder.folders();
    for (std::int64_t number = 1; number <= calendars; ++number)
        folders.add(u"Conference Room " + decimal(number), outlook::DefaultFolder::Calendar);
    session.objSettings = std::make_unique<cSettings>(session);
    session.objSettings->GetSettings(true);
    session.objSettings->subFillSupply(u"Coffee\t2.5\r\n");
    session.objSettings->SaveSettings();
}

/// How often one load uses a member of the host.
int callsOfOneLoad(Session& session)
{
    const auto root = session.objRootFolder;
    const auto counter = std::make_shared<test::Fault>();
    session.objRootFolder = outlook::Folder{test::FaultyDispatch::wrap(root.object(), counter)};
    session.objSettings->GetSettings(true);
    session.objRootFolder = root;
    return counter->uses;
}

/// The argument is the number of resource calendars.
void loadSettings(benchmark::State& state)
{
    test::BareSession bare;
    install(bare.session, state.range(0));
    for (auto _ : state) {
        bare.session.objSettings->GetSettings(true);
        benchmark::DoNotOptimize(bare.session.objSettings->Calendars.count());
    }
    state.counters["calls"] = callsOfOneLoad(bare.session);
}

void saveSettings(benchmark::State& state)
{
    test::BareSession bare;
    install(bare.session, 1);
    for (auto _ : state)
        bare.session.objSettings->SaveSettings();
}

BENCHMARK(loadSettings)->Arg(1)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(saveSettings)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace rf
