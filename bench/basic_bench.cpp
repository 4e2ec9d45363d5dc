#include "basic/text.h"

#include <benchmark/benchmark.h>

namespace {

constexpr std::size_t textBytes = 10'000'000;

/// Lines as a supply list or a log has them: about forty units each.
rf::Text manyLines()
{
    rf::Text text;
    while (text.size() * sizeof(char16_t) < textBytes) {
        text += u"Coffee and tea for the large meeting room" + rf::Text{rf::lineBreak};
    }
    return text;
}

void splitIntoLines(benchmark::State& state)
{
    const rf::Text text = manyLines();
    for (auto _ : state) {
        benchmark::DoNotOptimize(rf::split(text, rf::lineBreak));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size() * sizeof(char16_t)));
}

BENCHMARK(splitIntoLines)->Unit(benchmark::kMillisecond);

} // namespace
