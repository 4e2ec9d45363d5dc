#include "linux/rfhost/home_page.h"

#include "linux/spawn.h"
#include "outlook/constants.h"

#include <fstream>
#include <iostream>

namespace rf::native {

namespace {

constexpr TextView homePageName = u"ROOMFOLD.HTM";
constexpr const char* selectionFile = "RFSel.txt";

} // namespace

HomePage::HomePage(host::Application& host, std::filesystem::path program)
    : host_(host)
    , program_(std::move(program))
{
}

void HomePage::folderShown(const host::FolderRecord& folder) const
{
    if (!folder.webViewOn || !upper(folder.webViewUrl).ends_with(homePageName))
        return;
    writeSelection(folder.id);
    if (program_.empty())
        return;
    if (const auto process = startProgram({program_.string()}))
        leaveProgram(*process);
    else
        std::cerr << "rfhost: cannot start " << program_ << '\n';
}

void HomePage::writeSelection(host::FolderId root) const
{
    constexpr auto appointments = static_cast<std::int32_t>(outlook::ItemType::Appointment);
    const std::filesystem::path path = std::filesystem::temp_directory_path() / selectionFile;
    const std::filesystem::path fresh = path.string() + ".new";
    std::ofstream file{fresh, std::ios::binary};
    for (const host::FolderRecord& folder : host_.model().folders())
        if (folder.parent == root && folder.defaultItemType == appointments)
            file << toUtf8(folder.name) << "\r\n";
    file.close();
    // A reader sees the old list or the new one, never half of one.
    std::error_code error;
    if (file)
        std::filesystem::rename(fresh, path, error);
    if (!file || error)
        std::cerr << "rfhost: cannot write " << path << '\n';
}

} // namespace rf::native
