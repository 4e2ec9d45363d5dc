#pragma once

#include "outlook/folder.h"
#include "outlook/recipient.h"

namespace rf::outlook {

/// The host's session with its message stores.
class NameSpace : public Proxy {
public:
    using Proxy::Proxy;

    /// The root folders of the stores.
    [[nodiscard]] Folders folders(Where where = Where::current()) const
    {
        return face<Folders>(object().get({u"Folders", where}), where);
    }
    [[nodiscard]] Folder getDefaultFolder(DefaultFolder folder, Where where = Where::current()) const
    {
        return face<Folder>(object().call({u"GetDefaultFolder", where}, code(folder)), where);
    }
    [[nodiscard]] Recipient createRecipient(TextView name, Where where = Where::current()) const
    {
        return face<Recipient>(object().call({u"CreateRecipient", where}, name), where);
    }
    /// The default folder of another person's mailbox.
    [[nodiscard]] Folder getSharedDefaultFolder(
        const Recipient& recipient, DefaultFolder folder, Where where = Where::current()) const
    {
        return face<Folder>(object().call({u"GetSharedDefaultFolder", where}, recipient, code(folder)), where);
    }
    /// Lets the user choose a folder; empty when the user cancels.
    [[nodiscard]] Folder pickFolder(Where where = Where::current()) const
    {
        return face<Folder>(object().call({u"PickFolder", where}), where);
    }
    [[nodiscard]] Folder getFolderFromId(TextView entryId, TextView storeId, Where where = Where::current()) const
    {
        return face<Folder>(object().call({u"GetFolderFromID", where}, entryId, storeId), where);
    }
    /// The item that was saved under that id; one that is gone is an error.
    [[nodiscard]] Item getItemFromId(TextView entryId, Where where = Where::current()) const
    {
        return face<Item>(object().call({u"GetItemFromID", where}, entryId), where);
    }
};

} // namespace rf::outlook
