#include "storage/folder_path.h"
#include "storage/long_property.h"
#include "storage/outlook_value.h"
#include "storage/projects.h"
#include "storage/resource_description.h"
#include "storage/simple_list.h"
#include "support/bare_session.h"

#include <benchmark/benchmark.h>

namespace rf {
namespace {

/// Half a million units, two bytes each.
constexpr std::size_t megabyte = 500'000;

Text linesOf(std::int64_t count, TextView ending)
{
    Text text;
    for (std::int64_t line = 1; line <= count; ++line)
        text += u"Conference " + decimal(line) + Text{ending} + Text{lineBreak};
    return text;
}

void writeAndReadLongText(benchmark::State& state)
{
    test::BareSession bare;
    const Text text = linesOf(40'000, u"").substr(0, megabyte);
    for (auto _ : state) {
        const auto item = bare.newPost();
        subFixLongProperty(bare.session, item, text, u"strSupply");
        benchmark::DoNotOptimize(fncGetLongProperty(bare.session, item, u"strSupply"));
    }
}

void readValue(benchmark::State& state)
{
    test::BareSession bare;
    const auto item = bare.newPost();
    subSetOutlookValue(bare.session, item, u"blnManage", true, ValueKind::Boolean, false);
    for (auto _ : state)
        benchmark::DoNotOptimize(fncGetOutlookValue(bare.session, item, u"blnManage", ValueKind::Boolean, false));
    state.SetItemsProcessed(state.iterations());
}

void loadSimpleList(benchmark::State& state)
{
    test::BareSession bare;
    const Text text = linesOf(state.range(0), u"");
    cSimpleList list{bare.session};
    for (auto _ : state)
        list.FromString(text);
}

void loadProjects(benchmark::State& state)
{
    test::BareSession bare;
    const Text text = linesOf(state.range(0), u";255");
    for (auto _ : state) {
        cProjects projects{bare.session};
        projects.FromString(text);
    }
}

void folderFromPath(benchmark::State& state)
{
    test::BareSession bare;
    const Text path = fncGetFolderPath(bare.session, bare.session.objRootFolder, bare.session.ounNameSpace);
    for (auto _ : state)
        benchmark::DoNotOptimize(fncGetFolderFromPath(bare.session, path));
    state.SetItemsProcessed(state.iterations());
}

void loadResourceDescription(benchmark::State& state)
{
    test::BareSession bare;
    cResourceDescription description{bare.session};
    for (auto _ : state)
        description.setResourceName(u"Conference Room 12");
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(writeAndReadLongText)->Unit(benchmark::kMillisecond);
BENCHMARK(readValue);
BENCHMARK(loadSimpleList)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(loadProjects)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(folderFromPath);
BENCHMARK(loadResourceDescription);

} // namespace
} // namespace rf
