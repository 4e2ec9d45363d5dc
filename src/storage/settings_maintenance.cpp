#include "app/session.h"
#include "diagnostics/product.h"
#include "outlook/explorer.h"
#include "outlook/wmi.h"
#include "storage/settings.h"

#include <algorithm>

namespace rf {

namespace {

void executeRefresh(const outlook::CommandBarControls& controls, PendingError& errors)
{
    const std::int32_t count = errors.attempt([&] { return controls.count(); });
    for (std::int32_t position = 1; position <= count; ++position)
        errors.attempt([&] {
            const auto control = controls.item(position);
            if (control.id() == outlook::host_control::refreshPage)
                control.execute();
        });
}

/// The processes of this program, as the system's management service lists them.
std::vector<outlook::WmiObject> programProcesses(Session& session, PendingError& errors)
{
    std::vector<outlook::WmiObject> found;
    const auto processes = errors.attempt([&] {
        return outlook::WmiService{session.services.classes.bind(outlook::wmiDisplayName)}.instancesOf(
            outlook::wmiProcessClass);
    });
    const std::int32_t count = errors.attempt([&] { return processes.count(); });
    for (std::int32_t position = 0; position < count; ++position)
        errors.attempt([&] {
            const auto process = processes.itemIndex(position);
            if (upper(process.name()) == session.services.processes.programFile())
                found.push_back(process);
        });
    return found;
}

} // namespace

void cSettings::subRefreshFolderHomePage() const
{
    PendingError errors;
    const auto controls = errors.attempt(
        [&] { return session_.ouaApp.activeExplorer().commandBars().item(outlook::host_control::webBar).controls(); });
    executeRefresh(controls, errors);
    if (errors.pending())
        session_.services.toolkit.showMessage(Text{u"Failed to refresh folder homepage."} + Text{lineBreak}
                + u"Please switch to another folder to force an update of your "
                  u"changes!",
            {ui::Buttons::Ok, ui::Icon::Information}, productCaption);
}

void cSettings::subKillORBooking() const
{
    PendingError errors;
    auto processes = programProcesses(session_, errors);
    // Nothing would end the others once this process is gone.
    const auto isOther = [&](const outlook::WmiObject& process) {
        const auto id = errors.attempt([&] { return process.processId(); });
        return static_cast<std::uint32_t>(id) != session_.services.processes.ownId();
    };
    std::stable_partition(processes.begin(), processes.end(), isOther);
    for (const auto& process : processes)
        errors.attempt([&] { process.remove(); });
}

} // namespace rf
