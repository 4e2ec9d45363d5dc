#include "storage/outlook_folder.h"

#include "app/session.h"
#include "diagnostics/pending_error.h"
#include "diagnostics/product.h"
#include "storage/folder_path.h"
#include "storage/folder_picker.h"
#include "storage/outlook_value.h"

#include <array>

namespace rf {

namespace {

struct StoredField {
    TextView property;
    Text cOutlookFolder::*field;
};

/// In the order in which they are written and read.
constexpr std::array storedFields{
    StoredField{u"OutlookFolderName", &cOutlookFolder::Name},
    StoredField{u"OutlookFolderEntryID", &cOutlookFolder::EntryID},
    StoredField{u"OutlookFolderStoreID", &cOutlookFolder::StoreID},
    StoredField{u"OutlookFolderPath", &cOutlookFolder::Path},
};

} // namespace

void cOutlookFolder::GetOutlookPathInfo(ui::Form* frmFormToReactiveate, std::optional<outlook::ItemType> intFolderType)
{
    const auto folder = fncPickFolder(session_, frmFormToReactiveate);
    if (!folder)
        return;
    PendingError errors;
    if (intFolderType && errors.attempt([&] { return folder.defaultItemType(); }) != *intFolderType) {
        if (!errors.pending())
            session_.services.toolkit.showMessage(
                session_.phrasesAtAnyTime().LNGWRONGFOLDERTYPE, {ui::Buttons::Ok, ui::Icon::Warning}, productCaption);
        return;
    }
    cOutlookFolder chosen{session_};
    errors.attempt([&] {
        chosen.Name = folder.name();
        chosen.EntryID = folder.entryId();
        chosen.StoreID = folder.storeId();
        chosen.Path = fncGetFolderPath(session_, folder, session_.ouaApp.getNamespace());
    });
    if (errors.pending())
        return;
    for (const StoredField& stored : storedFields)
        this->*stored.field = std::move(chosen.*stored.field);
}

outlook::Folder cOutlookFolder::GetFolder() const
{
    PendingError errors;
    const auto isNamedSo = [&](const outlook::Folder& folder) {
        return Name.empty() || errors.attempt([&] { return folder.name(); }) == Name;
    };
    if (!EntryID.empty()) {
        auto byIds = errors.attempt([&] { return session_.ounNameSpace.getFolderFromId(EntryID, StoreID); });
        if (byIds && isNamedSo(byIds))
            return byIds;
    }
    // The ids lead nowhere or to another folder, as after a restore; the path counts now, and its errors alone.
    errors.clear();
    const auto byPath = errors.attempt([&] { return fncGetFolderFromPath(session_, Path); });
    return byPath && isNamedSo(byPath) && !errors.pending() ? byPath : outlook::Folder{};
}

void cOutlookFolder::SaveToOutlookProps(const outlook::Item& ouiItem, TextView strExtraName) const
{
    for (const StoredField& stored : storedFields)
        subSetOutlookValue(session_, ouiItem, Text{stored.property} + Text{strExtraName}, this->*stored.field,
            ValueKind::String, false);
}

void cOutlookFolder::GetFromOutlookProps(const outlook::Item& ouiItem, TextView strExtraName)
{
    for (const StoredField& stored : storedFields)
        this->*stored.field
            = fncGetOutlookValue(session_, ouiItem, Text{stored.property} + Text{strExtraName}, ValueKind::String, u"")
                  .text();
}

} // namespace rf
