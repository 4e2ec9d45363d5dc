#pragma once

#include "outlook/constants.h"
#include "outlook/proxy.h"

namespace rf::outlook {

/// What holds an item or a folder: a folder, another item (the series of an exception) or the name space.
/// `as<Folder>()` and its like give it the face that fits.
class Parent : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] ObjectClass objectClass(Where where = Where::current()) const
    {
        return constant<ObjectClass>(object().get({u"Class", where}), where);
    }
    [[nodiscard]] bool isFolder(Where where = Where::current()) const
    {
        return objectClass(where) == ObjectClass::Folder;
    }
    [[nodiscard]] bool isAppointment(Where where = Where::current()) const
    {
        return objectClass(where) == ObjectClass::Appointment;
    }

    [[nodiscard]] Text name(Where where = Where::current()) const { return object().get({u"Name", where}).text(where); }
    [[nodiscard]] Text entryId(Where where = Where::current()) const
    {
        return object().get({u"EntryID", where}).text(where);
    }
    [[nodiscard]] Text storeId(Where where = Where::current()) const
    {
        return object().get({u"StoreID", where}).text(where);
    }
    [[nodiscard]] Parent parent(Where where = Where::current()) const
    {
        return face<Parent>(object().get({u"Parent", where}), where);
    }
};

} // namespace rf::outlook
