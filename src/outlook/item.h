#pragma once

#include "outlook/constants.h"
#include "outlook/parent.h"
#include "outlook/user_properties.h"
#include "outlook/window.h"

namespace rf::outlook {

/// What every item of the host has, whatever its kind.
class Item : public Proxy {
public:
    using Proxy::Proxy;

    /// Empty until the item has been saved for the first time.
    [[nodiscard]] Text entryId(Where where = Where::current()) const
    {
        return object().get({u"EntryID", where}).text(where);
    }
    [[nodiscard]] Parent parent(Where where = Where::current()) const
    {
        return face<Parent>(object().get({u"Parent", where}), where);
    }
    /// The window of the item, which is made when there is none; it is not on the screen then.
    [[nodiscard]] Window getInspector(Where where = Where::current()) const
    {
        return face<Window>(object().get({u"GetInspector", where}), where);
    }
    [[nodiscard]] ObjectClass objectClass(Where where = Where::current()) const
    {
        return constant<ObjectClass>(object().get({u"Class", where}), where);
    }
    [[nodiscard]] Text messageClass(Where where = Where::current()) const
    {
        return object().get({u"MessageClass", where}).text(where);
    }
    [[nodiscard]] Text subject(Where where = Where::current()) const
    {
        return object().get({u"Subject", where}).text(where);
    }
    void setSubject(TextView subject, Where where = Where::current()) const
    {
        object().put({u"Subject", where}, subject);
    }
    [[nodiscard]] Text body(Where where = Where::current()) const { return object().get({u"Body", where}).text(where); }
    void setBody(TextView body, Where where = Where::current()) const { object().put({u"Body", where}, body); }
    [[nodiscard]] Text categories(Where where = Where::current()) const
    {
        return object().get({u"Categories", where}).text(where);
    }
    void setCategories(TextView categories, Where where = Where::current()) const
    {
        object().put({u"Categories", where}, categories);
    }
    /// In bytes; 0 until the item has been saved for the first time.
    [[nodiscard]] std::int32_t size(Where where = Where::current()) const
    {
        return object().get({u"Size", where}).integer32(where);
    }
    /// Whether nothing has changed since the last save.
    [[nodiscard]] bool saved(Where where = Where::current()) const
    {
        return object().get({u"Saved", where}).boolean(where);
    }
    /// `noDate` while there is none.
    [[nodiscard]] Date creationTime(Where where = Where::current()) const
    {
        return object().get({u"CreationTime", where}).date(where);
    }
    [[nodiscard]] UserProperties userProperties(Where where = Where::current()) const
    {
        return face<UserProperties>(object().get({u"UserProperties", where}), where);
    }

    void save(Where where = Where::current()) const { object().call({u"Save", where}); }
    void close(CloseMode mode, Where where = Where::current()) const { object().call({u"Close", where}, code(mode)); }
    /// The host's `Delete`.
    void remove(Where where = Where::current()) const { object().call({u"Delete", where}); }
    /// Shows the item in a window without waiting for it.
    void display(Where where = Where::current()) const { object().call({u"Display", where}); }
    void display(bool modal, Where where = Where::current()) const { object().call({u"Display", where}, modal); }
};

} // namespace rf::outlook
