#include "automation/local_object.h"
#include "linux/dbus_names.h"
#include "linux/dbus_processes.h"
#include "linux/dbus_server.h"

#include <QCoreApplication>
#include <QDBusVirtualObject>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <csignal>
#include <iostream>
#include <optional>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace rf::native::dbus {
namespace {

using automation::Object;
using automation::Variant;

constexpr automation::EventMember meterMembers[] = {{u"Read", 1}};
constexpr automation::EventInterface meterEvents{u"MeterEvents", 1, meterMembers};
constexpr const automation::EventInterface* offeredEvents[] = {&meterEvents};
constexpr TextView meterClass = u"Bench.Meter";

class Meter final : public automation::LocalObject<Meter> {
public:
    static constexpr TextView className = u"Meter";
    static std::span<const automation::LocalMember<Meter>> members()
    {
        using automation::Arguments;
        static constexpr automation::LocalMember<Meter> table[] = {
            {u"Level", [](Meter&, const Arguments&) -> Variant { return 20; }},
            {u"Name", [](Meter&, const Arguments&) -> Variant { return u"Conference Room 1"; }},
            {u"Part", [](Meter&, const Arguments&) -> Variant { return std::make_shared<Meter>(); }},
            {u"Raise",
                [](Meter& self, const Arguments&) -> Variant {
                    Variant cancel{false};
                    Variant arguments[] = {automation::Reference{&cancel}};
                    self.events_.raise(u"Read", arguments);
                    return cancel;
                }},
        };
        return table;
    }

protected:
    automation::EventSource* eventSource(const automation::EventInterface&) override { return &events_; }

private:
    automation::EventSource events_;
};

/// Answers a method without arguments with nothing, as little as a call can be.
class EmptyMethod final : public QDBusVirtualObject {
public:
    [[nodiscard]] QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        connection.send(message.createReply());
        return true;
    }
};

QString emptyPath() { return QStringLiteral("/empty"); }

/// Another process, which ends with this one at the latest.
class Fork {
public:
    template <class Body>
    explicit Fork(Body&& body)
        : id_(fork())
    {
        if (id_ != 0)
            return;
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        body();
        _exit(127);
    }
    Fork(const Fork&) = delete;
    Fork& operator=(const Fork&) = delete;
    ~Fork()
    {
        kill(id_, SIGKILL);
        waitpid(id_, nullptr, 0);
    }

private:
    pid_t id_;
};

int serve()
{
    const auto bridge = Bridge::connect(offeredEvents);
    const auto meter = std::make_shared<Meter>();
    Server server{bridge};
    EmptyMethod empty;
    auto connection = bridge->connection();
    return connection.registerVirtualObject(emptyPath(), &empty)
            && server.exportClass(meterClass, [&] { return meter; })
        ? QCoreApplication::exec()
        : 1;
}

struct Client {
    std::shared_ptr<Bridge> bridge = Bridge::connect();
    QString host;
    Object meter;

    Client()
    {
        const QString name = busName(meterClass);
        while (!meter)
            try {
                host = findOwner(*bridge, name);
                meter = Object{bridge->root(host, name)};
            } catch (const RuntimeError&) {
                usleep(10'000);
            }
    }

    void callEmpty() const
    {
        callAndWait(bridge->connection(), makeCall(host, emptyPath(), QStringLiteral("Empty")),
            [](const QDBusMessage& reply) { benchmark::DoNotOptimize(reply.type()); });
    }
};

/// That of the running benchmark; it goes before Qt does.
const Client* current = nullptr;

const Client& client() { return *current; }

int run(int argumentCount, char** arguments)
{
    const PrivateBus bus;
    if (!bus.isThere()) {
        std::cerr << "no dbus-daemon; install it with: apt-get install dbus-daemon\n";
        return 1;
    }
    const Fork host{[&] {
        const QCoreApplication application{argumentCount, arguments};
        _exit(serve());
    }};
    const QCoreApplication application{argumentCount, arguments};
    const Client own;
    current = &own;
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

void callEmpty(benchmark::State& state)
{
    for (auto _ : state)
        client().callEmpty();
}

void readProperty(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(client().meter.get(u"Level"));
}

void readText(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(client().meter.get(u"Name"));
}

void readObject(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(client().meter.get(u"Part"));
}

void callWithEvent(benchmark::State& state)
{
    const auto connection = client().meter.advise(
        meterEvents, [](TextView, std::span<Variant> arguments) { arguments[0].assignThrough(true); });
    for (auto _ : state)
        benchmark::DoNotOptimize(client().meter.call(u"Raise"));
}

/// The two turn by turn, so that both see the same machine.
void readPropertyAgainstEmptyCall(benchmark::State& state)
{
    using Clock = std::chrono::steady_clock;
    std::vector<double> empty;
    std::vector<double> read;
    const auto measure = [](std::vector<double>& times, auto&& call) {
        const auto start = Clock::now();
        call();
        times.push_back(std::chrono::duration<double, std::micro>(Clock::now() - start).count());
    };
    for (auto _ : state) {
        measure(empty, [] { client().callEmpty(); });
        measure(read, [] { benchmark::DoNotOptimize(client().meter.get(u"Level")); });
    }
    const auto median = [](std::vector<double>& times) {
        std::ranges::nth_element(times, times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2));
        return times[times.size() / 2];
    };
    state.counters["empty_us"] = median(empty);
    state.counters["read_us"] = median(read);
    state.counters["ratio"] = median(read) / median(empty);
}

BENCHMARK(callEmpty)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(readProperty)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(readText)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(readObject)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(callWithEvent)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(readPropertyAgainstEmptyCall)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace
} // namespace rf::native::dbus

int main(int argumentCount, char** arguments) { return rf::native::dbus::run(argumentCount, arguments); }
