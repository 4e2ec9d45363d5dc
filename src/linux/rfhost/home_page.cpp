#include "linux/rfhost/home_page.h"

#include "host/home_page_content.h"
#include "host/host_error.h"
#include "host/installation.h"
#include "linux/spawn.h"

#include <fstream>
#include <iostream>

namespace rf::native {

namespace {

constexpr const char* selectionFile = "RFSel.txt";
constexpr const char* descriptionFile = "RFDescription.htm";

/// Writes a file of the temporary folder. A reader sees the old one or the new one, never half of one.
std::filesystem::path writeTemporary(const char* name, const std::string& content)
{
    std::filesystem::path path = std::filesystem::temp_directory_path() / name;
    const std::filesystem::path fresh = path.string() + ".new";
    std::ofstream file{fresh, std::ios::binary};
    file << content;
    file.close();
    std::error_code error;
    if (file)
        std::filesystem::rename(fresh, path, error);
    if (!file || error)
        std::cerr << "rfhost: cannot write " << path << '\n';
    return path;
}

} // namespace

HomePage::HomePage(host::Application& host, std::filesystem::path program)
    : host_(host)
    , program_(std::move(program))
{
}

void HomePage::folderShown(const host::FolderRecord& folder) const
{
    if (!host::hasHomePage(folder))
        return;
    writeSelection(folder.id);
    start({});
}

std::vector<HomePage::Calendar> HomePage::calendars(host::FolderId root) const
{
    std::vector<Calendar> calendars;
    for (const host::FolderRecord& folder : host::homePageCalendars(host_.model().store(), root))
        calendars.push_back({folder.id, folder.name, !unticked_.contains(folder.id)});
    return calendars;
}

void HomePage::tick(host::FolderId root, host::FolderId calendar, bool ticked)
{
    if (ticked)
        unticked_.erase(calendar);
    else
        unticked_.insert(calendar);
    writeSelection(root);
}

host::FolderId HomePage::addResource(host::FolderId root, const Text& name)
{
    host::Store& store = host_.model().store();
    if (const Text objection = host::objectionToName(store, root, name); !objection.empty())
        throw host::hostError(host::host_error::badArgument, objection);
    const host::FolderId added = host::ensureCalendar(store, root, trim(name));
    writeSelection(root);
    return added;
}

void HomePage::showDescription(host::FolderId root, const Text& resource) const
{
    // A mark of the encoding stands before the page, for it is a text of the object model and names none itself.
    const std::string mark = "\xEF\xBB\xBF";
    const Text page = host::descriptionOf(host_.model().store(), root, resource);
    const auto path
        = writeTemporary(descriptionFile, mark + toUtf8(page.empty() ? u"<p>There is no description.</p>" : page));
    start({"1", path.string()});
}

void HomePage::start(const std::vector<std::string>& arguments) const
{
    if (program_.empty())
        return;
    std::vector<std::string> words{program_.string()};
    words.insert(words.end(), arguments.begin(), arguments.end());
    if (const auto process = startProgram(words))
        leaveProgram(*process);
    else
        std::cerr << "rfhost: cannot start " << program_ << '\n';
}

void HomePage::writeSelection(host::FolderId root) const
{
    std::vector<Text> names;
    for (const Calendar& calendar : calendars(root))
        if (calendar.ticked)
            names.push_back(calendar.name);
    writeTemporary(selectionFile, host::selectionText(names));
}

} // namespace rf::native
