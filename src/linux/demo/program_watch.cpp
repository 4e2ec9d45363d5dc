#include "linux/demo/program_watch.h"

#include "linux/demo/waiting.h"
#include "outlook/explorer.h"

namespace rf::demo {

namespace {

/// Those of the application, the explorer and the windows.
constexpr quint64 handlersBesideRooms = 3;
/// For one start, and for as many as it takes: one that ends on the way is tried again.
constexpr std::chrono::seconds startLimit{15};
constexpr std::chrono::seconds patience{90};
constexpr std::chrono::milliseconds step{10};

} // namespace

quint64 ProgramWatch::handlersOfProgram() const { return installation_.rooms.size() + handlersBesideRooms; }

bool ProgramWatch::watches() const { return host_.trafficOfOthers().handlers >= handlersOfProgram(); }

void ProgramWatch::showRoot() const
{
    const outlook::Application& application = host_.application();
    const outlook::Explorer explorer = application.activeExplorer();
    if (!explorer)
        return application.explorers().add(installation_.root, outlook::FolderDisplayMode::Normal).activate();
    // One that runs already knows neither new rooms nor new projects; it ends with the switch, and another begins.
    if (explorer.currentFolder().entryId() == installation_.root.entryId())
        explorer.setCurrentFolder(installation_.personal);
    static_cast<void>(waitUntil([&] { return !isThere(); }, startLimit, step));
    explorer.setCurrentFolder(installation_.root);
}

bool ProgramWatch::comesUp() const
{
    bool wasThere = false;
    static_cast<void>(waitUntil(
        [&] {
            host_.requireHost();
            const auto handlers = host_.trafficOfOthers().handlers;
            const bool isGone = wasThere && handlers == 0;
            wasThere = handlers > 0;
            return isGone || handlers >= handlersOfProgram();
        },
        startLimit, step));
    return watches();
}

std::chrono::milliseconds ProgramWatch::start() const
{
    const auto begin = std::chrono::steady_clock::now();
    while (std::chrono::steady_clock::now() - begin < patience) {
        showRoot();
        if (comesUp())
            return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - begin);
    }
    throw DemoError{"RFBookingInfo does not watch the rooms; another one of this user may be running"};
}

} // namespace rf::demo
