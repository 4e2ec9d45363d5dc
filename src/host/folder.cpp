#include "host/folder.h"

#include "host/entry_id.h"
#include "host/host_error.h"
#include "host/items.h"
#include "host/model.h"
#include "host/name_space.h"
#include "outlook/constants.h"

#include <array>
#include <utility>

namespace rf::host {

using automation::Arguments;
using automation::LocalMember;
using automation::Variant;

namespace {

std::shared_ptr<automation::Dispatch> parentOf(const std::shared_ptr<Model>& model, const FolderRecord& record)
{
    if (record.parent == FolderId::None)
        return std::make_shared<NameSpace>(model);
    return std::make_shared<Folder>(model, record.parent);
}

std::int32_t itemTypeOf(std::int32_t defaultFolder, std::int32_t parentsType)
{
    switch (static_cast<outlook::DefaultFolder>(defaultFolder)) {
    case outlook::DefaultFolder::Inbox:
        return static_cast<std::int32_t>(outlook::ItemType::Mail);
    case outlook::DefaultFolder::Calendar:
        return static_cast<std::int32_t>(outlook::ItemType::Appointment);
    }
    if (defaultFolder == 0)
        return parentsType;
    throw hostError(host_error::badArgument, u"Folders of that type are not kept here.");
}

} // namespace

FolderRecord Folder::record() const { return model_->folder(id_); }

const void* Folder::identity() const { return model_->identityOf(id_); }

void Folder::update(void (*change)(FolderRecord& record, const Variant& value), const Variant& value) const
{
    model_->change(id_, [&](FolderRecord& record) { change(record, value); });
}

std::span<const LocalMember<Folder>> Folder::members()
{
    using Self = Folder;
    static constexpr std::array table{
        LocalMember<Self>{u"Name", [](Self& self, const Arguments&) -> Variant { return self.record().name; },
            [](Self& self, const Arguments& arguments) {
                self.update(
                    [](FolderRecord& folder, const Variant& value) { folder.name = value.text(); }, arguments.value());
            }},
        LocalMember<Self>{
            u"EntryID", [](Self& self, const Arguments&) -> Variant { return entryIdOf(self.record().id); }},
        LocalMember<Self>{u"StoreID",
            [](Self& self, const Arguments&) -> Variant { return entryIdOf(self.model_->storeOf(self.id_).id); }},
        LocalMember<Self>{
            u"Parent", [](Self& self, const Arguments&) -> Variant { return parentOf(self.model_, self.record()); }},
        LocalMember<Self>{u"Folders",
            [](Self& self, const Arguments&) -> Variant { return std::make_shared<Folders>(self.model_, self.id_); }},
        LocalMember<Self>{u"Items",
            [](Self& self, const Arguments&) -> Variant { return Items::make(self.model_, self.record().id); }},
        LocalMember<Self>{
            u"DefaultItemType", [](Self& self, const Arguments&) -> Variant { return self.record().defaultItemType; }},
        LocalMember<Self>{u"WebViewURL",
            [](Self& self, const Arguments&) -> Variant { return self.record().webViewUrl; },
            [](Self& self, const Arguments& arguments) {
                self.update([](FolderRecord& folder, const Variant& value) { folder.webViewUrl = value.text(); },
                    arguments.value());
            }},
        LocalMember<Self>{u"WebViewOn", [](Self& self, const Arguments&) -> Variant { return self.record().webViewOn; },
            [](Self& self, const Arguments& arguments) {
                self.update([](FolderRecord& folder, const Variant& value) { folder.webViewOn = value.boolean(); },
                    arguments.value());
            }},
        LocalMember<Self>{
            u"Application", [](Self& self, const Arguments&) -> Variant { return self.model_->application(); }},
        LocalMember<Self>{u"Class",
            [](Self&, const Arguments&) -> Variant { return static_cast<std::int32_t>(outlook::ObjectClass::Folder); }},
        LocalMember<Self>{u"Delete",
            [](Self& self, const Arguments&) -> Variant {
                self.model_->store().removeFolder(self.id_);
                self.model_->changed();
                return {};
            }},
    };
    return table;
}

std::optional<FolderId> Folders::find(const Variant& index) const
{
    const Store& store = model_->store();
    if (index.is<Text>())
        return store.folderNamed(parent_, index.text());
    const auto position = index.integer32();
    return position < 1 ? std::nullopt : store.folderAt(parent_, static_cast<std::size_t>(position) - 1);
}

std::shared_ptr<Folder> Folders::item(const Variant& index) const
{
    const auto found = find(index);
    if (!found)
        throw hostError(host_error::notFound, u"The operation failed. An object could not be found.");
    return std::make_shared<Folder>(model_, *found);
}

std::shared_ptr<Folder> Folders::add(const Text& name, std::int32_t defaultFolder) const
{
    if (trim(name).empty() || model_->store().folderNamed(parent_, name))
        throw hostError(host_error::badArgument, u"A folder needs a name that no other folder beside it has.");
    if (parent_ == FolderId::None)
        throw hostError(host_error::badArgument, u"Message stores are not made this way.");
    FolderRecord record;
    record.parent = parent_;
    record.name = name;
    record.defaultItemType = itemTypeOf(defaultFolder, model_->folder(parent_).defaultItemType);
    return std::make_shared<Folder>(model_, model_->store().addFolder(record));
}

std::span<const LocalMember<Folders>> Folders::members()
{
    using Self = Folders;
    static constexpr std::array table{
        LocalMember<Self>{u"Count",
            [](Self& self, const Arguments&) -> Variant {
                return static_cast<std::int32_t>(self.model_->store().countFolders(self.parent_));
            }},
        LocalMember<Self>{
            u"Item", [](Self& self, const Arguments& arguments) -> Variant { return self.item(arguments[0]); }},
        LocalMember<Self>{u"Add",
            [](Self& self, const Arguments& arguments) -> Variant {
                return self.add(arguments[0].text(), arguments.has(1) ? arguments[1].integer32() : 0);
            }},
    };
    return table;
}

} // namespace rf::host
