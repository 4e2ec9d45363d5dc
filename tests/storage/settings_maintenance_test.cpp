#include "automation/local_object.h"
#include "host/command_bars.h"
#include "storage/settings_fixture.h"

namespace rf::test {
namespace {

using automation::Arguments;
using automation::LocalMember;
using automation::LocalObject;
using automation::Variant;

/// What a management service was asked to end, in order.
struct Ended {
    std::vector<std::int32_t> ids;
    std::int32_t refusing = 0;
};

class ListedProcess final : public LocalObject<ListedProcess> {
public:
    static constexpr TextView className = u"Process";

    ListedProcess(std::int32_t processId, Text processName, Ended& ended)
        : id_(processId)
        , name_(std::move(processName))
        , ended_(ended)
    {
    }
    static std::span<const LocalMember<ListedProcess>> members()
    {
        static constexpr LocalMember<ListedProcess> table[] = {
            {u"Name", [](ListedProcess& self, const Arguments&) -> Variant { return self.name_; }},
            {u"ProcessId", [](ListedProcess& self, const Arguments&) -> Variant { return self.id_; }},
            {u"Delete_", [](ListedProcess& self, const Arguments&) -> Variant { return self.end(); }},
        };
        return table;
    }

private:
    Variant end() const
    {
        if (id_ == ended_.refusing)
            throw RuntimeError{error_number::invalidCall};
        ended_.ids.push_back(id_);
        return {};
    }

    std::int32_t id_;
    Text name_;
    Ended& ended_;
};

class ManagementService final : public LocalObject<ManagementService> {
public:
    static constexpr TextView className = u"Service";
    std::vector<std::pair<std::int32_t, Text>> processes;
    Ended ended;

    static std::span<const LocalMember<ManagementService>> members()
    {
        using Self = ManagementService;
        static constexpr LocalMember<Self> table[] = {
            {u"InstancesOf",
                [](Self& self, const Arguments& arguments) -> Variant {
                    EXPECT_EQ(arguments[0].text(), u"win32_process");
                    return self.shared_from_this();
                }},
            {u"Count",
                [](Self& self, const Arguments&) -> Variant {
                    return static_cast<std::int32_t>(self.processes.size());
                }},
            {u"ItemIndex",
                [](Self& self, const Arguments& arguments) -> Variant {
                    const auto& [id, name] = self.processes.at(static_cast<std::size_t>(arguments[0].integer32()));
                    return std::make_shared<ListedProcess>(id, name, self.ended);
                }},
        };
        return table;
    }
};

class SettingsMaintenance : public InstallationTest {
protected:
    SettingsMaintenance() { classes.boundObjects[u"winmgmts:"] = automation::Object{service}; }

    std::shared_ptr<ManagementService> service = std::make_shared<ManagementService>();
};

TEST_F(SettingsMaintenance, EndsEveryCopyOfTheProgramThisOneLast)
{
    processes.own = 7;
    service->processes = {{1, u"init"}, {7, u"RFBookingInfo.exe"}, {5, u"RFBookingInfo.exe"},
        {6, u"RFBookingInfo.exe.bak"}, {8, u"rfbookinginfo.EXE"}, {9, u""}};
    settings().subKillORBooking();
    EXPECT_EQ(service->ended.ids, (std::vector<std::int32_t>{5, 8, 7}));
}

TEST_F(SettingsMaintenance, EndsTheOthersWhenOneCannotBeEnded)
{
    processes.own = 7;
    service->processes = {{5, u"RFBookingInfo.exe"}, {6, u"RFBookingInfo.exe"}, {7, u"RFBookingInfo.exe"}};
    service->ended.refusing = 5;
    settings().subKillORBooking();
    EXPECT_EQ(service->ended.ids, (std::vector<std::int32_t>{6, 7}));
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(SettingsMaintenance, EndsNothingWithoutAManagementService)
{
    classes.boundObjects.clear();
    settings().subKillORBooking();
    EXPECT_EQ(classes.asked.back(), u"bind winmgmts:");
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(SettingsMaintenance, LoadsTheShownHomePageAnew)
{
    const auto explorer = host->explorers().add(folder(host::FolderRole::Calendar));
    explorer->activate();
    settings().subRefreshFolderHomePage();
    const auto web = application.activeExplorer().commandBars().item(outlook::host_control::webBar);
    const auto refresh = std::dynamic_pointer_cast<host::CommandBarControl>(web.controls().item(1).object().dispatch());
    ASSERT_NE(refresh, nullptr);
    EXPECT_EQ(refresh->executed(), 1);
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(SettingsMaintenance, SaysWhatToDoWhenTheHomePageCannotBeLoadedAnew)
{
    settings().subRefreshFolderHomePage();
    ASSERT_EQ(toolkit.messages.size(), 1U);
    EXPECT_EQ(toolkit.messages[0].text,
        u"Failed to refresh folder homepage.\r\nPlease switch to another "
        u"folder to force an update of your changes!");
    EXPECT_EQ(toolkit.messages[0].style, (ui::MessageStyle{ui::Buttons::Ok, ui::Icon::Information}));
    EXPECT_EQ(toolkit.messages[0].caption, u"Roomfold for Outlook Booking Info");
}

} // namespace
} // namespace rf::test
