#include "linux/demo/host_client.h"
#include "outlook/appointment_item.h"
#include "system/linux/office.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <iostream>
#include <optional>

namespace {

using namespace rf;
using test::HandsOn;

constexpr int suppliesOfTheForm = 99;
constexpr std::int64_t rounds = 15;
constexpr const char* inspector = "inspector";
/// The box of the projects comes onto the booking bar last.
constexpr const char* lastOfTheBar = "Projects";
constexpr const char* button = "Booking info";

Text supplies()
{
    Text text;
    for (int number = 1; number <= suppliesOfTheForm; ++number)
        text += u"Supply " + decimal(number) + u"\t1\r\n";
    return text;
}

/// The office with a room whose form has that many supplies, and this process as one more program beside the host.
class MeasuredOffice {
public:
    MeasuredOffice()
    {
        client_.attach(patience);
        hands.atHost.clickEntry("explorer", "calendars", "Room 1");
        // Those of the application, the explorer, the windows, and the room.
        constexpr quint64 handlers = 4;
        const auto end = std::chrono::steady_clock::now() + patience;
        while (client_.trafficOfOthers().handlers < handlers)
            require(std::chrono::steady_clock::now() < end, "RFBookingInfo does not watch");
    }

    /// The automation calls of the program so far. It goes on for a moment when its window is there already.
    [[nodiscard]] quint64 callsOfProgram() const
    {
        constexpr std::chrono::milliseconds quiet{20};
        quint64 calls = client_.trafficOfOthers().calls;
        for (quint64 before = calls + 1; before != calls;) {
            before = calls;
            std::this_thread::sleep_for(quiet);
            calls = client_.trafficOfOthers().calls;
        }
        return calls;
    }
    [[nodiscard]] outlook::Folder folder(TextView path) const
    {
        std::optional<outlook::Folder> found;
        for (const Text& name : split(path.substr(2), u"\\"))
            found = (found ? found->folders() : client_.application().getNamespace().folders()).item(name);
        return *found;
    }
    /// The window of a new appointment with its bar.
    void openAppointment()
    {
        hands.eyesOnHost.awaitDrawn(inspector, lastOfTheBar);
        hands.atHost.beginClick("explorer", "New");
        require(hands.eyesOnHost.isTold(), "no booking bar");
    }
    void closeAppointment()
    {
        hands.atHost.close(inspector);
        require(hands.atHost.misses(inspector), "the window stays");
    }

private:
    static constexpr std::chrono::seconds patience{20};

    static void require(bool isSo, const char* otherwise)
    {
        if (!isSo)
            throw std::runtime_error{otherwise};
    }

public:
    test::Office hands{{RF_HOST_PROGRAM, RF_PROGRAM, RF_PLUGINS}, {.supplies = supplies()}, {u"Room 1"}};

private:
    demo::HostClient client_;
};

/// That of the running benchmark; it goes before Qt does.
MeasuredOffice* current = nullptr;

template <class Number>
double medianOf(std::vector<Number>& numbers)
{
    const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
    std::ranges::nth_element(numbers, middle);
    return static_cast<double>(*middle);
}

/// The rounds of one benchmark: what each takes, and what the program asks of the host meanwhile.
class Rounds {
public:
    explicit Rounds(benchmark::State& state)
        : state_(state)
    {
    }
    /// From what a person does until they see what `eyes` were asked to await.
    template <class Act>
    void measure(HandsOn& eyes, const Act& act)
    {
        const auto before = current->callsOfProgram();
        const auto begin = std::chrono::steady_clock::now();
        act();
        if (!eyes.isTold())
            state_.SkipWithError("it does not come about");
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
        state_.SetIterationTime(time.count());
        times_.push_back(time.count() * millisecondsPerSecond);
        calls_.push_back(current->callsOfProgram() - before);
    }
    void tell()
    {
        state_.counters["median_ms"] = medianOf(times_);
        state_.counters["calls"] = medianOf(calls_);
    }

private:
    static constexpr double millisecondsPerSecond = 1000;

    benchmark::State& state_;
    std::vector<double> times_;
    std::vector<quint64> calls_;
};

void openAppointmentWindow(benchmark::State& state)
{
    Rounds all{state};
    for (auto _ : state) {
        current->hands.eyesOnHost.awaitDrawn(inspector, lastOfTheBar);
        all.measure(current->hands.eyesOnHost, [] { current->hands.atHost.beginClick("explorer", "New"); });
        current->closeAppointment();
    }
    all.tell();
}

void pressBookingInfo(benchmark::State& state)
{
    current->openAppointment();
    Rounds all{state};
    for (auto _ : state) {
        current->hands.eyesOnProgram.awaitDrawn({}, "cmdOK");
        all.measure(current->hands.eyesOnProgram, [] { current->hands.atHost.beginClick(inspector, button); });
        current->hands.atProgram.click({}, "cmdCancel");
        if (!current->hands.atProgram.misses({}, "cmdOK"))
            state.SkipWithError("the form stays");
    }
    all.tell();
    current->closeAppointment();
}

void typeQuantityByHand(benchmark::State& state)
{
    current->openAppointment();
    current->hands.atHost.click(inspector, button);
    if (!current->hands.atProgram.sees({}, "cmdOK"))
        state.SkipWithError("no form");
    Rounds all{state};
    constexpr int digits = 9;
    int round = 0;
    for (auto _ : state) {
        const QString quantity = QString::number(1 + round++ % digits);
        current->hands.atProgram.clickCell({}, "exsOrders", 1, 2);
        current->hands.eyesOnProgram.awaitDrawn({}, "lblSum", QStringLiteral("£%1.00").arg(quantity));
        all.measure(current->hands.eyesOnProgram, [&] {
            current->hands.atProgram.beginType(quantity);
            current->hands.atProgram.beginPress("Return");
        });
    }
    all.tell();
    current->hands.atProgram.click({}, "cmdCancel");
    current->closeAppointment();
}

void saveBookingByHand(benchmark::State& state)
{
    const auto room = current->folder(test::room1);
    const auto copies = [](TextView path) { return current->folder(path).items().count(); };
    const auto personal = copies(test::personalPath);
    const auto master = copies(test::masterPath);
    // In the year 2025; no two bookings, of whichever repetition, share a slot.
    constexpr double firstDay = 46000;
    static double day = firstDay;
    std::int32_t count = 0;
    Rounds all{state};
    for (auto _ : state) {
        const auto item = room.items().add().as<outlook::AppointmentItem>();
        item.setSubject(u"Board meeting");
        item.setCategories(u"New building");
        item.setStart(Date{++day});
        item.setDuration(60);
        current->hands.eyesOnHost.awaitDrawn(inspector, lastOfTheBar);
        item.display();
        if (!current->hands.eyesOnHost.isTold())
            state.SkipWithError("no booking bar");
        current->hands.eyesOnHost.awaitGone(inspector);
        all.measure(current->hands.eyesOnHost, [] { current->hands.atHost.beginClick(inspector, "Save and Close"); });
        ++count;
    }
    all.tell();
    if (copies(test::personalPath) != personal + count || copies(test::masterPath) != master + count)
        state.SkipWithError("not every booking has its copies");
}

BENCHMARK(openAppointmentWindow)->Iterations(rounds)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(pressBookingInfo)->Iterations(rounds)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(typeQuantityByHand)->Iterations(rounds)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(saveBookingByHand)->Iterations(rounds)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argumentCount, char** arguments)
try {
    const QCoreApplication application{argumentCount, arguments};
    MeasuredOffice office;
    current = &office;
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
