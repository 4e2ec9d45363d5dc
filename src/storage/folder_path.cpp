#include "storage/folder_path.h"

#include "app/session.h"
#include "diagnostics/pending_error.h"

#include <algorithm>

namespace rf {

namespace {

constexpr TextView separator = u"\\";
constexpr TextView storeMark = u"\\\\";
/// Two empty pieces stand before the store's name.
constexpr std::size_t storePiece = 2;

std::vector<Text> storeNames(const outlook::NameSpace& mapi, PendingError& errors)
{
    std::vector<Text> names;
    const auto stores = errors.attempt([&] { return mapi.folders(); });
    const auto count = errors.attempt([&] { return stores.count(); });
    for (std::int32_t position = 1; position <= count; ++position)
        errors.attempt([&] { names.push_back(stores.item(position).name()); });
    return names;
}

} // namespace

Text fncGetFolderPath(Session& session, const outlook::Folder& folder, const outlook::NameSpace& mapi)
{
    session.trace.subTrace(u"Looping folder tree in order to get the full folder path");
    PendingError errors;
    Text path = errors.attempt([&] { return folder.name(); });
    const auto stores = storeNames(mapi, errors);
    const auto isStore = [&](const Text& name) { return std::ranges::find(stores, name) != stores.end(); };
    errors.clear();
    auto ancestor = errors.attempt([&] { return folder.parent(); });
    // Beyond the root of a store stands the name space, which has no name.
    Text name = errors.attempt([&] { return ancestor.name(); });
    if (errors.pending())
        return isStore(path) ? Text{storeMark} + path : Text{};
    // A folder named like a store ends the path wherever it lies: references have always been kept in this form.
    while (!isStore(name)) {
        path.insert(0, separator).insert(0, name);
        ancestor = errors.attempt([&] { return ancestor.parent(); });
        name = errors.attempt([&] { return ancestor.name(); });
        if (errors.pending())
            return {};
    }
    return Text{storeMark} + name + Text{separator} + path;
}

outlook::Folder fncGetFolderFromPath(Session& session, TextView path)
{
    if (trim(path).empty())
        return {};
    const auto mapi = session.ouaApp.getNamespace();
    const auto pieces = split(path, separator);
    if (pieces.size() == 1)
        // Type 6 is the inbox, not the calendar; the folder of a person is kept so.
        return mapi.getSharedDefaultFolder(mapi.createRecipient(path), outlook::DefaultFolder::Inbox);
    if (pieces.size() <= storePiece)
        throw RuntimeError{error_number::subscriptOutOfRange};
    auto folder = mapi.folders().item(pieces[storePiece]);
    for (auto position = storePiece + 1; position < pieces.size(); ++position)
        folder = folder.folders().item(pieces[position]);
    return folder;
}

} // namespace rf
