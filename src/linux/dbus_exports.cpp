#include "linux/dbus_exports.h"

#include <numeric>
#include <utility>
#include <vector>

namespace rf::native::dbus {

using automation::Connection;
using automation::Dispatch;

Exports::Number Exports::hold(const std::shared_ptr<Dispatch>& object, const Holder& holder)
{
    const auto [known, isNew] = numbers_.try_emplace(object->identity(), lastNumber_ + 1);
    if (isNew)
        objects_.emplace(++lastNumber_, Entry{object});
    const Number number = known->second;
    hold(number, holder);
    return number;
}

bool Exports::hold(Number number, const Holder& holder)
{
    const auto entry = objects_.find(number);
    if (entry == objects_.end())
        return false;
    if (holders_[holder].references[number]++ == 0)
        ++entry->second.holders;
    return true;
}

void Exports::release(Number number, const Holder& holder, std::uint64_t count)
{
    const auto possessions = holders_.find(holder);
    if (possessions == holders_.end())
        return;
    auto& references = possessions->second.references;
    const auto held = references.find(number);
    if (held == references.end())
        return;
    if (held->second > count) {
        held->second -= count;
        return;
    }
    references.erase(held);
    const auto gone = leave(number);
}

std::shared_ptr<Dispatch> Exports::leave(Number number)
{
    const auto entry = objects_.find(number);
    if (--entry->second.holders != 0)
        return nullptr;
    auto object = std::move(entry->second.object);
    numbers_.erase(object->identity());
    objects_.erase(entry);
    return object;
}

void Exports::connect(const Holder& holder, std::uint64_t sink, Connection connection)
{
    const auto replaced = std::exchange(holders_[holder].sinks[sink], std::move(connection));
}

void Exports::disconnect(const Holder& holder, std::uint64_t sink)
{
    if (const auto possessions = holders_.find(holder); possessions != holders_.end())
        const auto gone = possessions->second.sinks.extract(sink);
}

void Exports::drop(const Holder& holder)
{
    const auto possessions = holders_.extract(holder);
    if (possessions.empty())
        return;
    std::vector<std::shared_ptr<Dispatch>> gone;
    for (const auto& [number, count] : possessions.mapped().references)
        gone.push_back(leave(number));
}

void Exports::clear()
{
    const auto holders = std::exchange(holders_, {});
    const auto objects = std::exchange(objects_, {});
    numbers_.clear();
}

std::shared_ptr<Dispatch> Exports::find(Number number) const
{
    const auto entry = objects_.find(number);
    return entry == objects_.end() ? nullptr : entry->second.object;
}

std::size_t Exports::sinkCount() const
{
    return std::accumulate(holders_.begin(), holders_.end(), std::size_t{},
        [](std::size_t sum, const auto& holder) { return sum + holder.second.sinks.size(); });
}

std::size_t Exports::sinkCount(const Holder& holder) const
{
    const auto possessions = holders_.find(holder);
    return possessions == holders_.end() ? 0 : possessions->second.sinks.size();
}

} // namespace rf::native::dbus
