#pragma once

#include "host/entry_id.h"
#include "host/installation.h"
#include "host/sqlite_store.h"

namespace rf::test {

inline constexpr const char* person = "Jane Doe";
inline constexpr TextView rootPath = u"\\\\Public Folders\\All Public Folders\\Roomfold";
inline constexpr TextView masterPath = u"\\\\Public Folders\\All Public Folders\\All bookings";
inline constexpr TextView personalPath = u"\\\\Mailbox - Jane Doe\\Calendar";
inline constexpr TextView room1 = u"\\\\Public Folders\\All Public Folders\\Roomfold\\Room 1";

/// The lists that an administrator has made.
struct GivenLists {
    Text supplies = u"Coffee\t2.5\r\nTea\t2\r\nMineral water\t1.5\r\nSandwich\t4.75\r\nFlip chart\t0\r\n";
    Text projects = u"Annual report;255\r\nNew building;128\r\nSummer party;32768\r\n";
    Text placeSettings = u"Theatre\r\nClassroom\r\nU shape\r\nBoardroom";
};

/// Writes the settings that a program finds: the lists, every rule, a cost center in one field, both copies.
inline void writeSettings(host::Store& store, const GivenLists& lists)
{
    const auto root = host::folderAt(store, rootPath)->id;
    const auto master = host::ensureCalendar(store, host::folderAt(store, rootPath)->parent, u"All bookings");
    host::ItemRecord post;
    post.folder = root;
    post.messageClass = u"IPM.Post";
    post.subject = u"Settings";
    const auto text = [&](const Text& name, const Text& value) { post.userProperties.push_back({name, 1, value}); };
    const auto longText = [&](const Text& name, const Text& value) {
        constexpr std::size_t pieceLength = 1000;
        std::size_t pieces = 0;
        for (std::size_t start = 0; start == 0 || start < value.size(); start += pieceLength)
            text(name + decimal(static_cast<long long>(pieces++)), value.substr(start, pieceLength));
        post.userProperties.push_back({name + u"Count", 3, static_cast<double>(pieces - 1)});
    };
    longText(u"strSupply", lists.supplies);
    longText(u"strProjects", lists.projects);
    longText(u"strPlaceSettings", lists.placeSettings);
    text(u"strDefaultPlaceSetting", u"Theatre");
    text(u"strMasterName", u"All bookings");
    text(u"strMasterPath", Text{masterPath});
    text(u"strMasterEntryID", host::entryIdOf(master));
    for (const char16_t* rule : {u"blnNoDoubles", u"blnProjectMandatory", u"blnNoRecurring", u"blnPersonalCopy",
             u"blnMasterCopy", u"blnKCWithOrder"})
        post.userProperties.push_back({rule, 6, true});
    text(u"strKCFormat", u"1");
    store.save(post);
}

} // namespace rf::test
