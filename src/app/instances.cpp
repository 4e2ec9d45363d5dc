#include "app/instances.h"

#include "app/session.h"

namespace rf {

std::uint32_t GetRFProcess(Session& session)
{
    const ProcessTable& processes = session.services.processes;
    std::uint32_t id = 0;
    processes.walk([&](const ProcessEntry& process) {
        session.services.toolkit.yieldToEvents();
        // Some systems hand the name over in a field of fixed length.
        const Text executable = upper(TextView{process.executable}.substr(0, process.executable.find(u'\0')));
        const bool found = executable == processes.programFile();
        if (found)
            id = process.id;
        return found;
    });
    return id;
}

void KillRFProcess(Session& session)
{
    if (const std::uint32_t id = GetRFProcess(session); id != 0)
        session.services.processes.terminate(id);
    session.services.toolkit.yieldToEvents();
}

bool fncHasArguments(const Session& session)
{
    return trim(session.services.system.commandLine()).find(u' ') != Text::npos;
}

} // namespace rf
