#include "linux/scripting.h"
#include "outlook/scripting.h"

#include <benchmark/benchmark.h>

namespace rf {
namespace {

using outlook::CompareMode;
using outlook::Dictionary;

Dictionary caseInsensitiveDictionary()
{
    Dictionary values{native::makeScriptingObject(outlook::dictionaryClass)};
    values.setCompareMode(CompareMode::Text);
    return values;
}

std::vector<Text> keysOf(std::int64_t count)
{
    std::vector<Text> keys;
    for (std::int64_t number = 0; number < count; ++number)
        keys.push_back(u"Conference Room " + decimal(number));
    return keys;
}

void fill(const Dictionary& values, const std::vector<Text>& keys)
{
    for (const auto& key : keys)
        values.add(key, key);
}

void buildDictionary(benchmark::State& state)
{
    const auto keys = keysOf(state.range(0));
    for (auto _ : state) {
        const auto values = caseInsensitiveDictionary();
        fill(values, keys);
        benchmark::DoNotOptimize(values.count());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void readDictionary(benchmark::State& state)
{
    const auto keys = keysOf(state.range(0));
    const auto values = caseInsensitiveDictionary();
    fill(values, keys);
    for (auto _ : state)
        for (const auto& key : keys)
            benchmark::DoNotOptimize(values.item(key));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(buildDictionary)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(readDictionary)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace rf
