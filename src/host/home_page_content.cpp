#include "host/home_page_content.h"

#include "outlook/constants.h"

#include <algorithm>
#include <type_traits>
#include <variant>

namespace rf::host {

namespace {

constexpr TextView homePageName = u"ROOMFOLD.HTM";
constexpr TextView descriptionName = u"strHTMLDesc";

const UserPropertyRecord* findProperty(const ItemRecord& item, TextView name)
{
    const auto found = std::ranges::find_if(item.userProperties,
        [&](const UserPropertyRecord& property) { return equalIgnoringCase(property.name, name); });
    return found == item.userProperties.end() ? nullptr : &*found;
}

/// The highest number behind the name of a piece; below 0 when there is no such text.
int lastPiece(const ItemRecord& item, TextView name)
{
    constexpr double mostPieces = 32767;
    const auto* const count = findProperty(item, Text{name} + u"Count");
    if (count == nullptr)
        return -1;
    return std::visit(
        [](const auto& value) {
            if constexpr (std::is_arithmetic_v<std::decay_t<decltype(value)>>)
                if (const auto number = static_cast<double>(value); number >= 0 && number <= mostPieces)
                    return static_cast<int>(number);
            return -1;
        },
        count->value.value());
}

/// A text that is kept in pieces, since a property of the object model does not hold a long one.
Text longText(const ItemRecord& item, TextView name)
{
    Text text;
    const int last = lastPiece(item, name);
    for (int index = 0; index <= last; ++index)
        if (const auto* piece = findProperty(item, Text{name} + decimal(index)); piece && piece->value.is<Text>())
            text += piece->value.text();
    return text;
}

} // namespace

bool hasHomePage(const FolderRecord& folder)
{
    return folder.webViewOn && upper(folder.webViewUrl).ends_with(homePageName);
}

std::vector<FolderRecord> homePageCalendars(const Store& store, FolderId root)
{
    constexpr auto appointments = static_cast<std::int32_t>(outlook::ItemType::Appointment);
    auto folders = store.folders();
    std::erase_if(folders,
        [&](const FolderRecord& folder) { return folder.parent != root || folder.defaultItemType != appointments; });
    return folders;
}

std::string selectionText(std::span<const Text> names)
{
    std::string text;
    for (const Text& name : names)
        text += toUtf8(name) + "\r\n";
    return text;
}

Text descriptionOf(const Store& store, FolderId root, TextView resource)
{
    for (const ItemId id : store.withSubject(root, resource))
        if (const auto item = store.read(id);
            item && equalIgnoringCase(item->messageClass, outlook::message_class::post))
            return longText(*item, descriptionName);
    return {};
}

Text objectionToName(const Store& store, FolderId root, TextView name)
{
    if (trim(name).empty())
        return u"A resource needs a name.";
    const auto folders = store.folders();
    const bool taken = std::ranges::any_of(folders, [&](const FolderRecord& folder) {
        return folder.parent == root && equalIgnoringCase(folder.name, trim(name));
    });
    return taken ? Text{u"There is a folder of that name already."} : Text{};
}

} // namespace rf::host
