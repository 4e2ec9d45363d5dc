#pragma once

#include "outlook/folder.h"
#include "ui/form.h"

#include <optional>

namespace rf {

class Session;

/// A folder that is to be found again later, also by other users and after it was moved.
class cOutlookFolder {
public:
    explicit cOutlookFolder(Session& session)
        : session_(session)
    {
    }

    /// As `fncGetFolderPath` tells it.
    Text Path;
    Text EntryID;
    Text StoreID;
    Text Name;

    /// Lets the user pick the folder; the form comes back to the front behind the host's dialog. The fields stay as
    /// they are when no folder is chosen, when the host fails, and when the folder is for another kind of item than the
    /// given one, which the user is told. No error leaves it.
    void GetOutlookPathInfo(
        ui::Form* frmFormToReactiveate, std::optional<outlook::ItemType> intFolderType = std::nullopt);

    /// The folder: by its ids, else by its path. A folder that no longer has the name is not taken, whichever way it
    /// was found, unless there is no name to compare. Empty when there is none; no error leaves it.
    [[nodiscard]] outlook::Folder GetFolder() const;

    /// Writes the four fields as user properties of an item, which the caller saves; the name behind theirs lets one
    /// item hold several references. A failure is reported and ends the program.
    void SaveToOutlookProps(const outlook::Item& ouiItem, TextView strExtraName = {}) const;
    /// Reads them; a field that the item lacks becomes empty. No error leaves it.
    void GetFromOutlookProps(const outlook::Item& ouiItem, TextView strExtraName = {});

private:
    Session& session_;
};

} // namespace rf
