#include "host/calendar_file.h"
#include "host/command_line.h"
#include "host/commands.h"
#include "host/host_error.h"
#include "host/installation.h"

#include <fstream>
#include <iterator>
#include <map>
#include <ostream>

namespace rf::host {

namespace {

std::string contentsOf(const std::string& path)
{
    std::ifstream file{path, std::ios::binary};
    std::string bytes{std::istreambuf_iterator<char>{file}, {}};
    if (!file)
        throw hostError(host_error::notFound, u"\"" + fromUtf8(path) + u"\" cannot be read.");
    return bytes;
}

/// Where the events of an import go.
class Destination {
public:
    Destination(Store& store, FolderRecord folder, bool byLocation)
        : store_(store)
        , folder_(std::move(folder))
        , byLocation_(byLocation)
    {
    }

    [[nodiscard]] FolderId of(const ItemRecord& item)
    {
        if (!byLocation_)
            return folder_.id;
        const Text name = item.location.empty() ? Text{u"No location"} : item.location;
        const auto [known, isNew] = calendars_.try_emplace(name, FolderId::None);
        if (isNew)
            known->second = ensureCalendar(store_, folder_.id, name);
        return known->second;
    }
    [[nodiscard]] std::size_t calendars() const { return byLocation_ ? calendars_.size() : 1; }

private:
    Store& store_;
    FolderRecord folder_;
    bool byLocation_;
    std::map<Text, FolderId> calendars_;
};

void progress(const CommandContext& context, const std::string& path, std::string_view step)
{
    if (context.showProgress)
        context.problems << '\r' << path << ": " << step << "\033[K" << std::flush;
}

/// One file, all of it in one transaction. Answers whether everything in it could be read.
bool importFile(const CommandContext& context, const std::string& path, Destination& destination)
{
    progress(context, path, "reading");
    CalendarImport import = readCalendar(contentsOf(path));
    std::vector<ItemRecord> items;
    for (ImportedEvent& event : import.events) {
        ItemRecord& item = items.emplace_back(std::move(event.item));
        item.folder = destination.of(item);
        item.creationTime = item.lastModificationTime = context.clock.now();
    }
    progress(context, path, "storing " + std::to_string(items.size()) + " events");
    context.store.saveTogether(items);
    progress(context, path, "");
    if (context.showProgress)
        context.problems << '\r';
    for (const CalendarProblem& problem : import.problems)
        context.problems << path << ':' << problem.line << ": " << toUtf8(problem.sentence) << '\n';
    context.out << path << ": " << items.size() << " events imported, " << import.problems.size() << " problems\n";
    return import.problems.empty();
}

} // namespace

int importCommand(const CommandContext& context, std::span<const std::string> arguments)
{
    const CommandLine line{arguments, {"--into"}, {"--by-location"}};
    if (line.words().empty())
        throw UsageError{"import needs a calendar file"};
    Destination destination{
        context.store, requireFolder(context.store, line.required("--into")), line.has("--by-location")};
    bool whole = true;
    for (const std::string& path : line.words())
        try {
            whole = importFile(context, path, destination) && whole;
        } catch (const automation::Error& error) {
            context.problems << toUtf8(error.description()) << '\n';
            whole = false;
        }
    context.out << "Calendars: " << destination.calendars() << '\n';
    return whole ? 0 : 1;
}

int exportCommand(const CommandContext& context, std::span<const std::string> arguments)
{
    const CommandLine line{arguments, {}, {}};
    if (line.words().size() != 1)
        throw UsageError{"export needs one folder"};
    const FolderRecord folder = requireFolder(context.store, line.words().front());
    std::vector<ItemRecord> items;
    for (const ItemId id : context.store.items(folder.id))
        if (auto item = context.store.read(id))
            items.push_back(std::move(*item));
    const CalendarExport written = writeCalendar(items, context.clock.now());
    context.out << written.bytes;
    for (const CalendarProblem& problem : written.problems)
        context.problems << toUtf8(problem.sentence) << '\n';
    return written.problems.empty() ? 0 : 1;
}

} // namespace rf::host
