#include "host/name_space.h"

#include "host/entry_id.h"
#include "host/folder.h"
#include "host/host_error.h"
#include "host/item_factory.h"
#include "host/model.h"
#include "outlook/constants.h"

#include <array>

namespace rf::host {

using automation::Arguments;
using automation::Dispatch;
using automation::LocalMember;
using automation::Variant;

namespace {

FolderRole roleOf(std::int32_t defaultFolder)
{
    switch (static_cast<outlook::DefaultFolder>(defaultFolder)) {
    case outlook::DefaultFolder::Inbox:
        return FolderRole::Inbox;
    case outlook::DefaultFolder::Calendar:
        return FolderRole::Calendar;
    }
    throw hostError(host_error::badArgument, u"There is no default folder of that number.");
}

automation::Error idNotFound()
{
    return hostError(host_error::notFound, u"The operation failed. An object could not be found.");
}

} // namespace

bool Recipient::resolved() const
{
    try {
        return model_->defaultFolder(FolderRole::Inbox, name_).id != FolderId::None;
    } catch (const automation::Error& error) {
        if (error.number() == host_error::notFound)
            return false;
        throw;
    }
}

std::span<const LocalMember<Recipient>> Recipient::members()
{
    using Self = Recipient;
    static constexpr std::array table{
        LocalMember<Self>{u"Name", [](Self& self, const Arguments&) -> Variant { return self.name_; }},
        LocalMember<Self>{u"Resolve", [](Self& self, const Arguments&) -> Variant { return self.resolved(); }},
        LocalMember<Self>{u"Resolved", [](Self& self, const Arguments&) -> Variant { return self.resolved(); }},
    };
    return table;
}

std::shared_ptr<Dispatch> NameSpace::defaultFolder(std::int32_t number, TextView person) const
{
    return std::make_shared<Folder>(model_, model_->defaultFolder(roleOf(number), person).id);
}

std::shared_ptr<Dispatch> NameSpace::folderById(TextView entryId) const
{
    const auto id = folderIdOf(entryId);
    if (!id)
        throw idNotFound();
    return std::make_shared<Folder>(model_, model_->folder(*id).id);
}

std::shared_ptr<Dispatch> NameSpace::itemById(TextView entryId) const
{
    const auto id = itemIdOf(entryId);
    auto record = id ? model_->store().read(*id) : std::nullopt;
    if (!record)
        throw idNotFound();
    return makeItem(model_, std::move(*record));
}

std::shared_ptr<Dispatch> NameSpace::pickFolder() const
{
    model_->askingPerson();
    const auto id = model_->windows().pickFolder(model_->folders());
    return id ? std::make_shared<Folder>(model_, *id) : nullptr;
}

std::span<const LocalMember<NameSpace>> NameSpace::members()
{
    using Self = NameSpace;
    static constexpr std::array table{
        LocalMember<Self>{u"Folders",
            [](Self& self, const Arguments&) -> Variant {
                return std::make_shared<Folders>(self.model_, FolderId::None);
            }},
        LocalMember<Self>{u"GetDefaultFolder",
            [](Self& self, const Arguments& arguments) -> Variant {
                return self.defaultFolder(arguments[0].integer32(), self.model_->settings().user);
            }},
        LocalMember<Self>{u"CreateRecipient",
            [](Self& self, const Arguments& arguments) -> Variant {
                return std::make_shared<Recipient>(self.model_, arguments[0].text());
            }},
        LocalMember<Self>{u"GetSharedDefaultFolder",
            [](Self& self, const Arguments& arguments) -> Variant {
                const auto recipient = std::dynamic_pointer_cast<Recipient>(arguments[0].dispatch());
                if (recipient == nullptr)
                    throw RuntimeError{error_number::typeMismatch};
                return self.defaultFolder(arguments[1].integer32(), recipient->name());
            }},
        LocalMember<Self>{u"GetFolderFromID",
            [](Self& self, const Arguments& arguments) -> Variant { return self.folderById(arguments[0].text()); }},
        LocalMember<Self>{u"GetItemFromID",
            [](Self& self, const Arguments& arguments) -> Variant { return self.itemById(arguments[0].text()); }},
        LocalMember<Self>{u"PickFolder", [](Self& self, const Arguments&) -> Variant { return self.pickFolder(); }},
        LocalMember<Self>{u"Class",
            [](Self&, const Arguments&) -> Variant {
                return static_cast<std::int32_t>(outlook::ObjectClass::NameSpace);
            }},
    };
    return table;
}

} // namespace rf::host
