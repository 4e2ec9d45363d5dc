#include "host/sqlite_leases.h"

#include <unistd.h>

#include <algorithm>
#include <ctime>
#include <fstream>
#include <sstream>
#include <thread>

namespace rf::host {
namespace {

using std::chrono::milliseconds;

constexpr Sql readLease{"SELECT owner, process, expires FROM lease WHERE folder = ?1"};
constexpr Sql writeLease{"INSERT OR REPLACE INTO lease(folder, owner, process, expires) VALUES(?1, ?2, ?3, ?4)"};
constexpr Sql deleteLease{"DELETE FROM lease WHERE folder = ?1 AND owner = ?2"};
constexpr Sql deleteLeasesOfOwner{"DELETE FROM lease WHERE owner = ?1"};
constexpr int shortestPause = 500;
constexpr int longestPause = 4000;

/// Milliseconds since the machine started, the same for all its processes and not moved when its clock is set.
std::int64_t machineTime()
{
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    constexpr std::int64_t nanosecondsPerMillisecond = 1'000'000;
    return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / nanosecondsPerMillisecond;
}

std::string machineStart()
{
    std::ifstream file{"/proc/sys/kernel/random/boot_id"};
    std::string id;
    file >> id;
    return id;
}

/// When a process started, in the system's ticks; 0 when it has ended, though its parent may not know it yet.
std::uint64_t startOf(long process)
{
    std::ifstream file{"/proc/" + std::to_string(process) + "/stat"};
    std::string line;
    std::getline(file, line);
    // The name of the program stands in parentheses and may hold anything.
    std::istringstream behindName{line.substr(std::min(line.rfind(')') + 1, line.size()))};
    char state = 'X';
    behindName >> state;
    if (state == 'X' || state == 'Z')
        return 0;
    constexpr int fieldsBetween = 18;
    std::string skipped;
    for (int field = 0; field < fieldsBetween; ++field)
        behindName >> skipped;
    std::uint64_t start = 0;
    behindName >> start;
    return start;
}

/// The machine's run, the number and the start of this process: together they are never those of another.
std::string thisProcess()
{
    const long id = getpid();
    return machineStart() + ' ' + std::to_string(id) + ' ' + std::to_string(startOf(id));
}

bool lives(const std::string& process)
{
    std::istringstream parts{process};
    std::string machine;
    long id = 0;
    std::uint64_t start = 0;
    parts >> machine >> id >> start;
    return machine == machineStart() && startOf(id) == start && start != 0;
}

std::string asString(std::span<const std::byte> bytes)
{
    std::string text(bytes.size(), '\0');
    std::ranges::transform(bytes, text.begin(), [](std::byte byte) { return static_cast<char>(byte); });
    return text;
}

/// While it lives, another process's lock is waited for as long as given.
class BusyLimit {
public:
    BusyLimit(Database& database, milliseconds limit)
        : database_(database)
        , before_(database.busyLimit())
    {
        database_.setBusyLimit(limit);
    }
    ~BusyLimit() { database_.setBusyLimit(before_); }
    BusyLimit(const BusyLimit&) = delete;
    BusyLimit& operator=(const BusyLimit&) = delete;

private:
    Database& database_;
    milliseconds before_;
};

} // namespace

Leases::Leases(Database& database, std::int64_t owner)
    : database_(database)
    , owner_(owner)
    , process_(thisProcess())
    , pauses_(static_cast<std::minstd_rand::result_type>(getpid()))
{
}

Leases::~Leases()
{
    if (!isUsed_)
        return;
    try {
        Transaction transaction{database_, Durability::System};
        Query{database_, deleteLeasesOfOwner}.bind(owner_).run();
        transaction.commit();
    } catch (const StoreError&) {
        // The leases end with their time.
        isUsed_ = false;
    }
}

bool Leases::take(FolderId folder, milliseconds duration, milliseconds limit)
{
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + limit;
    std::uniform_int_distribution<int> pause{shortestPause, longestPause};
    for (;;) {
        const auto left = std::chrono::duration_cast<milliseconds>(end - Clock::now());
        if (isFree(folder) && takeIfFree(folder, duration, std::max(left, milliseconds{1})))
            return true;
        if (Clock::now() >= end)
            return false;
        std::this_thread::sleep_for(std::chrono::microseconds{pause(pauses_)});
    }
}

bool Leases::holds(FolderId folder)
{
    Query query{database_, readLease};
    return query.bind(folder).next() && query.integer(0) == owner_ && machineTime() < query.integer(2);
}

void Leases::giveUp(FolderId folder)
{
    if (!isUsed_)
        return;
    Transaction transaction{database_, Durability::System};
    Query{database_, deleteLease}.bind(folder).bind(owner_).run();
    transaction.commit();
}

bool Leases::isFree(FolderId folder)
{
    Query query{database_, readLease};
    if (!query.bind(folder).next())
        return true;
    return query.integer(0) == owner_ || machineTime() >= query.integer(2) || !lives(asString(query.bytes(1)));
}

bool Leases::takeIfFree(FolderId folder, milliseconds duration, milliseconds busyLimit)
{
    try {
        const BusyLimit patience{database_, busyLimit};
        Transaction transaction{database_, Durability::System};
        if (!isFree(folder))
            return false;
        Query{database_, writeLease}
            .bind(folder)
            .bind(owner_)
            .bind(std::as_bytes(std::span{process_}))
            .bind(machineTime() + duration.count())
            .run();
        transaction.commit();
    } catch (const StoreError& error) {
        if (error.fault() != StoreFault::Busy)
            throw;
        return false;
    }
    isUsed_ = true;
    return true;
}

} // namespace rf::host
