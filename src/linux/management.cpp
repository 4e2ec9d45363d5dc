#include "linux/management.h"

#include "automation/local_object.h"
#include "linux/process_table.h"

#include <filesystem>
#include <utility>

namespace rf::native {

namespace {

using automation::Arguments;
using automation::LocalMember;
using automation::LocalObject;
using automation::Variant;

constexpr TextView displayNameOfService = u"winmgmts:";
constexpr TextView processClass = u"win32_process";
/// The service's number for a class that it does not have.
constexpr std::int32_t invalidClass = static_cast<std::int32_t>(0x80041010);

class ManagedProcess final : public LocalObject<ManagedProcess> {
public:
    static constexpr TextView className = u"SWbemObject";

    explicit ManagedProcess(ProcessEntry entry)
        : entry_(std::move(entry))
    {
    }

    static std::span<const LocalMember<ManagedProcess>> members()
    {
        static constexpr LocalMember<ManagedProcess> table[] = {
            {u"Name", [](ManagedProcess& self, const Arguments&) -> Variant { return self.entry_.executable; }},
            {u"ProcessId",
                [](ManagedProcess& self, const Arguments&) -> Variant {
                    return static_cast<std::int32_t>(self.entry_.id);
                }},
            {u"Delete_",
                [](ManagedProcess& self, const Arguments&) -> Variant {
                    LinuxProcessTable{}.terminate(self.entry_.id);
                    return {};
                }},
        };
        return table;
    }

private:
    ProcessEntry entry_;
};

std::vector<ProcessEntry> processes()
{
    const LinuxProcessTable table;
    std::vector<ProcessEntry> found;
    table.walk([&](const ProcessEntry& entry) {
        found.push_back(entry);
        return false;
    });
    std::error_code error;
    found.push_back(
        {table.ownId(), fromUtf8(std::filesystem::read_symlink("/proc/self/exe", error).filename().string())});
    return found;
}

/// A snapshot, as the service's sets are.
class ManagedSet final : public LocalObject<ManagedSet> {
public:
    static constexpr TextView className = u"SWbemObjectSet";

    static std::span<const LocalMember<ManagedSet>> members()
    {
        static constexpr LocalMember<ManagedSet> table[] = {
            {u"Count",
                [](ManagedSet& self, const Arguments&) -> Variant {
                    return static_cast<std::int32_t>(self.entries_.size());
                }},
            {u"ItemIndex",
                [](ManagedSet& self, const Arguments& arguments) -> Variant {
                    return self.item(arguments[0].integer32());
                }},
        };
        return table;
    }

private:
    [[nodiscard]] std::shared_ptr<ManagedProcess> item(std::int32_t position) const
    {
        if (position < 0 || std::cmp_greater_equal(position, entries_.size()))
            throw automation::Error{error_number::subscriptOutOfRange,
                {Text{errorDescription(error_number::subscriptOutOfRange)}, Text{className}, u"ItemIndex"}};
        return std::make_shared<ManagedProcess>(entries_[static_cast<std::size_t>(position)]);
    }

    std::vector<ProcessEntry> entries_ = processes();
};

class ManagementService final : public LocalObject<ManagementService> {
public:
    static constexpr TextView className = u"SWbemServices";

    static std::span<const LocalMember<ManagementService>> members()
    {
        static constexpr LocalMember<ManagementService> table[] = {
            {u"InstancesOf",
                [](ManagementService&, const Arguments& arguments) -> Variant {
                    return instancesOf(arguments[0].text());
                }},
        };
        return table;
    }

private:
    [[nodiscard]] static std::shared_ptr<ManagedSet> instancesOf(TextView name)
    {
        if (!equalIgnoringCase(name, processClass))
            throw automation::Error{invalidClass, {u"Invalid class", Text{className}, u"InstancesOf"}};
        return std::make_shared<ManagedSet>();
    }
};

} // namespace

automation::Object makeManagementService(TextView displayName)
{
    if (!equalIgnoringCase(displayName, displayNameOfService))
        return {};
    return automation::Object{std::make_shared<ManagementService>()};
}

} // namespace rf::native
