#include "automation/local_object.h"
#include "basic/clock.h"
#include "basic/pattern_regional.h"
#include "host/application.h"
#include "host/installation.h"
#include "host/memory_store.h"
#include "outlook/application.h"

#include <benchmark/benchmark.h>

#include <array>

namespace rf {
namespace {

constexpr int manyReads = 1'000'000;

/// A host of this process with one mailbox and a number of resource calendars.
class Host {
public:
    explicit Host(std::int64_t calendars)
    {
        host::ensureMailbox(store_, u"Jane Doe");
        host::ensurePublicFolders(store_);
        const auto root = host::ensureRoomfoldRoot(store_, u"Roomfold", u"ROOMFOLD.HTM");
        for (std::int64_t number = 1; number <= calendars; ++number)
            host::ensureCalendar(store_, root, u"Conference Room " + decimal(number));
    }

    [[nodiscard]] outlook::Application application() const
    {
        return outlook::Application{automation::Object{application_}};
    }

private:
    host::MemoryStore store_;
    PatternRegional regional_{englishSettings()};
    SystemClock clock_;
    host::HeadlessWindows windows_;
    std::shared_ptr<host::Application> application_ = host::Application::make(
        {store_, regional_, clock_, windows_, nullptr}, {.version = u"11.0.8169", .user = u"Jane Doe"});
};

/// An object that only answers: what is left is the price of the call itself.
class Room final : public automation::LocalObject<Room> {
public:
    static constexpr TextView className = u"Room";

    [[nodiscard]] static std::span<const automation::LocalMember<Room>> members()
    {
        static constexpr std::array table{
            automation::LocalMember<Room>{
                u"Name", [](Room& self, const automation::Arguments&) -> automation::Variant { return self.name_; }},
        };
        return table;
    }

private:
    Text name_ = u"Conference Room 12";
};

template <class Read>
void readManyTimes(benchmark::State& state, Read read)
{
    for (auto _ : state)
        for (int count = 0; count < manyReads; ++count)
            benchmark::DoNotOptimize(read());
    state.SetItemsProcessed(state.iterations() * manyReads);
}

void readBareObject(benchmark::State& state)
{
    const outlook::Folder folder{automation::Object{std::make_shared<Room>()}};
    readManyTimes(state, [&] { return folder.name(); });
}

void readHostItem(benchmark::State& state)
{
    const Host host{0};
    const auto item = host.application().createItem(outlook::ItemType::Appointment);
    item.setSubject(u"Conference Room 12");
    readManyTimes(state, [&] { return item.subject(); });
}

/// The argument is the number of calendars beside the folder.
void readHostFolder(benchmark::State& state)
{
    const Host host{state.range(0)};
    const auto folder = host.application().getNamespace().getDefaultFolder(outlook::DefaultFolder::Calendar);
    readManyTimes(state, [&] { return folder.name(); });
}

BENCHMARK(readBareObject)->Unit(benchmark::kMillisecond);
BENCHMARK(readHostItem)->Unit(benchmark::kMillisecond);
BENCHMARK(readHostFolder)->Arg(0)->Arg(20)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace rf
