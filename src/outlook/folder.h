#pragma once

#include "outlook/items.h"

namespace rf::outlook {

class Application;
class Folder;

/// The folders in a folder, or the stores of the name space.
class Folders : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] std::int32_t count(Where where = Where::current()) const
    {
        return object().get({u"Count", where}).integer32(where);
    }
    /// The folder at a position from 1 up, or of that name; one that is not there is an error.
    [[nodiscard]] Folder item(std::int32_t position, Where where = Where::current()) const;
    [[nodiscard]] Folder item(TextView name, Where where = Where::current()) const;
    /// A new folder that holds what its parent holds, or what the default folder of that type holds.
    Folder add(TextView name, Where where = Where::current()) const;
    Folder add(TextView name, DefaultFolder type, Where where = Where::current()) const;
};

class Folder : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] Text name(Where where = Where::current()) const { return object().get({u"Name", where}).text(where); }
    [[nodiscard]] Text entryId(Where where = Where::current()) const
    {
        return object().get({u"EntryID", where}).text(where);
    }
    [[nodiscard]] Text storeId(Where where = Where::current()) const
    {
        return object().get({u"StoreID", where}).text(where);
    }
    /// The folder around it; the name space for the root of a store.
    [[nodiscard]] Parent parent(Where where = Where::current()) const
    {
        return face<Parent>(object().get({u"Parent", where}), where);
    }
    [[nodiscard]] Folders folders(Where where = Where::current()) const
    {
        return face<Folders>(object().get({u"Folders", where}), where);
    }
    [[nodiscard]] Items items(Where where = Where::current()) const
    {
        return face<Items>(object().get({u"Items", where}), where);
    }
    [[nodiscard]] ItemType defaultItemType(Where where = Where::current()) const
    {
        return constant<ItemType>(object().get({u"DefaultItemType", where}), where);
    }
    /// The address of the folder's home page.
    [[nodiscard]] Text webViewUrl(Where where = Where::current()) const
    {
        return object().get({u"WebViewURL", where}).text(where);
    }
    void setWebViewUrl(TextView address, Where where = Where::current()) const
    {
        object().put({u"WebViewURL", where}, address);
    }
    /// Whether the home page is shown in place of the items.
    [[nodiscard]] bool webViewOn(Where where = Where::current()) const
    {
        return object().get({u"WebViewOn", where}).boolean(where);
    }
    void setWebViewOn(bool on, Where where = Where::current()) const { object().put({u"WebViewOn", where}, on); }
    [[nodiscard]] Application application(Where where = Where::current()) const;
};

inline Folder Folders::item(std::int32_t position, Where where) const
{
    return face<Folder>(object().call({u"Item", where}, position), where);
}

inline Folder Folders::item(TextView name, Where where) const
{
    return face<Folder>(object().call({u"Item", where}, name), where);
}

inline Folder Folders::add(TextView name, Where where) const
{
    return face<Folder>(object().call({u"Add", where}, name), where);
}

inline Folder Folders::add(TextView name, DefaultFolder type, Where where) const
{
    return face<Folder>(object().call({u"Add", where}, name, code(type)), where);
}

} // namespace rf::outlook
