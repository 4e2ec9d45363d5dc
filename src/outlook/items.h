#pragma once

#include "outlook/item.h"

namespace rf::outlook {

/// The items of one folder. Each time a folder is asked for them it gives a collection of its own, with its own
/// order and its own search.
class Items : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] std::int32_t count(Where where = Where::current()) const
    {
        return object().get({u"Count", where}).integer32(where);
    }
    /// The item at a position from 1 up, or with that subject; one that is not there is an error.
    [[nodiscard]] Item item(std::int32_t position, Where where = Where::current()) const
    {
        return face<Item>(object().call({u"Item", where}, position), where);
    }
    [[nodiscard]] Item item(TextView subject, Where where = Where::current()) const
    {
        return face<Item>(object().call({u"Item", where}, subject), where);
    }
    /// A new item, unsaved, of the folder's own kind or of a message class.
    [[nodiscard]] Item add(Where where = Where::current()) const
    {
        return face<Item>(object().call({u"Add", where}), where);
    }
    [[nodiscard]] Item add(TextView messageClass, Where where = Where::current()) const
    {
        return face<Item>(object().call({u"Add", where}, messageClass), where);
    }

    /// The first item that meets the restriction, then the next one each time; empty when there is none.
    [[nodiscard]] Item find(TextView restriction, Where where = Where::current()) const
    {
        return face<Item>(object().call({u"Find", where}, restriction), where);
    }
    [[nodiscard]] Item findNext(Where where = Where::current()) const
    {
        return face<Item>(object().call({u"FindNext", where}), where);
    }
    [[nodiscard]] Items restrict(TextView restriction, Where where = Where::current()) const
    {
        return face<Items>(object().call({u"Restrict", where}, restriction), where);
    }
    /// By one field, ascending.
    void sort(TextView fieldName, Where where = Where::current()) const { object().call({u"Sort", where}, fieldName); }
    void sort(TextView fieldName, bool descending, Where where = Where::current()) const
    {
        object().call({u"Sort", where}, fieldName, descending);
    }
    /// Whether a series counts as its single occurrences; it takes effect on items that are sorted by start.
    [[nodiscard]] bool includeRecurrences(Where where = Where::current()) const
    {
        return object().get({u"IncludeRecurrences", where}).boolean(where);
    }
    void setIncludeRecurrences(bool include, Where where = Where::current()) const
    {
        object().put({u"IncludeRecurrences", where}, include);
    }
};

} // namespace rf::outlook
