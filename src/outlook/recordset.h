#pragma once

#include "outlook/proxy.h"

namespace rf::outlook {

/// One column of the current row.
class RecordsetField : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] Text name(Where where = Where::current()) const { return object().get({u"Name", where}).text(where); }
    [[nodiscard]] Variant value(Where where = Where::current()) const { return object().get({u"Value", where}); }
    void setValue(Variant value, Where where = Where::current()) const
    {
        object().put({u"Value", where}, std::move(value));
    }
};

class RecordsetFields : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] std::int32_t count(Where where = Where::current()) const
    {
        return object().get({u"Count", where}).integer32(where);
    }
    /// The column at a position from 0 up.
    [[nodiscard]] RecordsetField item(std::int32_t position, Where where = Where::current()) const
    {
        return face<RecordsetField>(object().get({u"Item", where}, position), where);
    }
};

/// Rows of a database, one of them current.
class Recordset : public Proxy {
public:
    using Proxy::Proxy;

    /// Whether the current row is behind the last one.
    [[nodiscard]] bool eof(Where where = Where::current()) const
    {
        return object().get({u"EOF", where}).boolean(where);
    }
    /// Whether the current row is before the first one; without any row both are true.
    [[nodiscard]] bool bof(Where where = Where::current()) const
    {
        return object().get({u"BOF", where}).boolean(where);
    }
    [[nodiscard]] RecordsetFields fields(Where where = Where::current()) const
    {
        return face<RecordsetFields>(object().get({u"Fields", where}), where);
    }
    void moveFirst(Where where = Where::current()) const { object().call({u"MoveFirst", where}); }
    void moveNext(Where where = Where::current()) const { object().call({u"MoveNext", where}); }
    /// Goes from the current row on to the first that meets the criterion, or behind the last.
    void find(TextView criterion, Where where = Where::current()) const { object().call({u"Find", where}, criterion); }
    void addNew(Where where = Where::current()) const { object().call({u"AddNew", where}); }
    /// Stores the changes of the current row.
    void update(Where where = Where::current()) const { object().call({u"Update", where}); }
};

} // namespace rf::outlook
