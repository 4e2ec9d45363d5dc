#include "app/session.h"
#include "basic/clock.h"
#include "language/locale_columns.h"
#include "linux/regional.h"
#include "linux/system.h"
#include "support/recording_toolkit.h"
#include "support/test_classes.h"
#include "support/test_system.h"

#include <benchmark/benchmark.h>

namespace rf {
namespace {

/// The table that is built into the program, as the start of the program loads it.
void loadPhraseTable(benchmark::State& state)
{
    const auto regional = native::makeRegional();
    const SystemClock clock;
    test::TestClasses classes;
    native::LinuxSystem system{{}, {}};
    test::TestProcesses processes;
    test::RecordingToolkit toolkit;
    Session session{{*regional, clock, classes, system, processes, toolkit}};
    for (auto _ : state) {
        session.language.LoadLanguages(static_cast<std::int16_t>(LanguageColumn::German));
        benchmark::DoNotOptimize(session.language.phrases().LNGADD);
    }
}

BENCHMARK(loadPhraseTable)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace rf
