#include "linux/demo/host_client.h"

#include "linux/dbus_names.h"
#include "linux/dbus_protocol.h"
#include "linux/demo/waiting.h"
#include "outlook/event_interfaces.h"
#include "outlook/events.h"

#include <algorithm>
#include <vector>

namespace rf::demo {

namespace dbus = native::dbus;

namespace {

outlook::Application applicationOf(automation::ClassRegistry& classes, bool startIt)
try {
    return outlook::Application{
        startIt ? classes.create(outlook::applicationClass) : classes.running(outlook::applicationClass)};
} catch (const RuntimeError&) {
    return {};
}

} // namespace

HostClient::HostClient()
    : bridge_(dbus::Bridge::connect())
    , classes_(bridge_)
{
    if (bridge_ == nullptr)
        throw DemoError{"there is no session bus (dbus-run-session starts one)"};
    bridge_->setFarewells(outlook::farewells);
}

void HostClient::attach(std::chrono::milliseconds limit)
{
    constexpr std::chrono::milliseconds step{20};
    const bool runs = waitUntil(
        [&] {
            application_ = applicationOf(classes_, false);
            return static_cast<bool>(application_);
        },
        limit, step);
    if (!runs)
        application_ = applicationOf(classes_, true);
    if (!application_)
        throw DemoError{"no host runs on the session bus (rfhost serve starts one)"};
    host_ = dbus::findOwner(*bridge_, dbus::busName(outlook::applicationClass));
    applicationEvents_ = outlook::connect(application_, outlook::ApplicationEvents{.quit = [this] { quit_ = true; }});
}

void HostClient::requireHost() const
{
    if (quit_)
        throw DemoError{"the host has ended"};
}

dbus::Traffic HostClient::traffic(const QString& process) const
{
    dbus::Traffic traffic;
    auto question = dbus::makeCall(host_, dbus::rootPath(), QStringLiteral("Traffic"));
    question << process;
    bridge_->ask(question, QLatin1StringView{"ttt"}, {}, [&](const QList<QVariant>& reply) {
        traffic = {reply.at(0).toULongLong(), reply.at(1).toULongLong(), reply.at(2).toULongLong()};
    });
    return traffic;
}

dbus::Traffic HostClient::trafficOfOthers() const
{
    // The own share first: what this question adds to the whole must not look like another's.
    const dbus::Traffic own = traffic(bridge_->ownName());
    const dbus::Traffic whole = traffic({});
    return {whole.calls - own.calls - 1, whole.events - own.events, whole.handlers - own.handlers};
}

double HostClient::latency() const
{
    constexpr std::size_t calls = 201;
    std::vector<double> times;
    times.reserve(calls);
    while (times.size() < calls) {
        const auto start = std::chrono::steady_clock::now();
        static_cast<void>(application_.version());
        const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
        times.push_back(time.count());
    }
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(calls / 2);
    std::ranges::nth_element(times, middle);
    return *middle;
}

} // namespace rf::demo
