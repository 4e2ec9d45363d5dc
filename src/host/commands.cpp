#include "host/commands.h"

#include "host/command_line.h"
#include "host/entry_id.h"
#include "host/host_error.h"
#include "host/installation.h"

#include <algorithm>
#include <ostream>

namespace rf::host {

namespace {

constexpr auto appointments = 1;

Text indented(std::size_t depth, const Text& text) { return Text(2 * depth, u' ') + text; }

void listFolders(
    const CommandContext& context, const std::vector<FolderRecord>& folders, FolderId parent, std::size_t depth)
{
    for (const FolderRecord& folder : folders) {
        if (folder.parent != parent)
            continue;
        const auto count = context.store.count(folder.id);
        context.out << toUtf8(indented(depth, folder.name)) << (count == 0 ? "" : "  (" + std::to_string(count) + ")")
                    << '\n';
        listFolders(context, folders, folder.id, depth + 1);
    }
}

Text span(const CommandContext& context, const ItemRecord& item)
{
    return context.regional.formatDate(item.start) + u" - " + context.regional.formatDate(item.end);
}

void listItems(const CommandContext& context, const FolderRecord& folder)
{
    for (const ItemId id : context.store.items(folder.id))
        if (const auto item = context.store.read(id)) {
            const Text when = folder.defaultItemType == appointments ? span(context, *item) + u"  " : Text{};
            context.out << toUtf8(entryIdOf(id)) << "  " << toUtf8(when + item->subject) << '\n';
        }
}

Text valueText(const CommandContext& context, const automation::Variant& value)
{
    if (const auto* text = value.getIf<Text>())
        return *text;
    if (const auto* date = value.getIf<Date>())
        return context.regional.formatDate(*date);
    if (const auto* truth = value.getIf<bool>())
        return *truth ? u"yes" : u"no";
    return context.regional.formatNumber(value.number());
}

void showLine(const CommandContext& context, TextView name, const Text& value)
{
    if (!value.empty())
        context.out << toUtf8(name) << ": " << toUtf8(value) << '\n';
}

} // namespace

FolderRecord requireFolder(const Store& store, const std::string& path)
{
    const auto folder = folderAt(store, replaceAll(fromUtf8(path), u"/", u"\\"));
    if (!folder)
        throw hostError(host_error::notFound, u"There is no folder \"" + fromUtf8(path) + u"\".");
    return *folder;
}

int initCommand(const CommandContext& context, std::span<const std::string> arguments)
{
    const CommandLine line{arguments, {"--root", "--home-page"}, {}};
    const Text root = fromUtf8(line.value("--root", "Roomfold"));
    ensureRoomfoldRoot(
        context.store, root, fromUtf8(line.value("--home-page", "file:///usr/share/roomfold/Roomfold.htm")));
    for (const std::string& person : line.words())
        ensureMailbox(context.store, fromUtf8(person));
    context.out << "The installation has the root folder \"" << toUtf8(root) << "\" and these folders:\n";
    listFolders(context, context.store.folders(), FolderId::None, 1);
    return 0;
}

int listCommand(const CommandContext& context, std::span<const std::string> arguments)
{
    const CommandLine line{arguments, {}, {}};
    if (line.words().empty())
        listFolders(context, context.store.folders(), FolderId::None, 0);
    for (const std::string& path : line.words())
        listItems(context, requireFolder(context.store, path));
    return 0;
}

int showCommand(const CommandContext& context, std::span<const std::string> arguments)
{
    const CommandLine line{arguments, {}, {}};
    if (line.words().empty())
        throw UsageError{"show needs the id of an item, as list prints it"};
    for (const std::string& word : line.words()) {
        const auto id = itemIdOf(fromUtf8(word));
        const auto item = id ? context.store.read(*id) : std::nullopt;
        if (!item)
            throw hostError(host_error::notFound, u"There is no item \"" + fromUtf8(word) + u"\".");
        showLine(context, u"Subject", item->subject);
        showLine(context, u"Class", item->messageClass);
        showLine(context, u"Folder", pathOf(context.store, item->folder));
        if (item->start != Date{})
            showLine(context, u"Time", span(context, *item));
        showLine(context, u"Location", item->location);
        showLine(context, u"Categories", item->categories);
        if (item->recurrence)
            showLine(context, u"Repeats", item->recurrence->rule);
        for (const UserPropertyRecord& property : item->userProperties)
            showLine(context, property.name, valueText(context, property.value));
        showLine(context, u"Body", item->body);
    }
    return 0;
}

} // namespace rf::host
