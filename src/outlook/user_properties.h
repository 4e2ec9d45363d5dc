#pragma once

#include "outlook/constants.h"
#include "outlook/proxy.h"

namespace rf::outlook {

/// One named value that a program has attached to an item.
class UserProperty : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] Text name(Where where = Where::current()) const { return object().get({u"Name", where}).text(where); }
    [[nodiscard]] UserPropertyType type(Where where = Where::current()) const
    {
        return constant<UserPropertyType>(object().get({u"Type", where}), where);
    }
    [[nodiscard]] Variant value(Where where = Where::current()) const { return object().get({u"Value", where}); }
    void setValue(Variant value, Where where = Where::current()) const
    {
        object().put({u"Value", where}, std::move(value));
    }
};

/// The named values of one item. Names compare without regard to case.
class UserProperties : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] std::int32_t count(Where where = Where::current()) const
    {
        return object().get({u"Count", where}).integer32(where);
    }
    /// The property of that name; empty when the item has none.
    [[nodiscard]] UserProperty find(TextView name, Where where = Where::current()) const
    {
        return face<UserProperty>(object().call({u"Find", where}, name), where);
    }
    /// The property of that name, or at a position from 1 up; one that is not there is an error.
    [[nodiscard]] UserProperty item(TextView name, Where where = Where::current()) const
    {
        return face<UserProperty>(object().call({u"Item", where}, name), where);
    }
    [[nodiscard]] UserProperty item(std::int32_t position, Where where = Where::current()) const
    {
        return face<UserProperty>(object().call({u"Item", where}, position), where);
    }
    /// A new property, or the one that has this name and type already.
    UserProperty add(TextView name, UserPropertyType type, Where where = Where::current()) const
    {
        return face<UserProperty>(object().call({u"Add", where}, name, code(type)), where);
    }
    /// The flag tells whether the folder's fields get it too, which makes it searchable there; the host takes a flag
    /// that is left out as true.
    UserProperty add(TextView name, UserPropertyType type, bool addToFolderFields, Where where = Where::current()) const
    {
        return face<UserProperty>(object().call({u"Add", where}, name, code(type), addToFolderFields), where);
    }
};

} // namespace rf::outlook
