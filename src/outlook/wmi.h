#pragma once

#include "outlook/proxy.h"

namespace rf::outlook {

/// The display name under which the system's management service is bound.
inline constexpr TextView wmiDisplayName = u"winmgmts:";
inline constexpr TextView wmiProcessClass = u"win32_process";

/// One instance of a management class, such as a process.
class WmiObject : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] Text name(Where where = Where::current()) const { return object().get({u"Name", where}).text(where); }
    [[nodiscard]] std::int32_t processId(Where where = Where::current()) const
    {
        return object().get({u"ProcessId", where}).integer32(where);
    }
    /// The service's `Delete_`; it ends a process.
    void remove(Where where = Where::current()) const { object().call({u"Delete_", where}); }
};

class WmiObjectSet : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] std::int32_t count(Where where = Where::current()) const
    {
        return object().get({u"Count", where}).integer32(where);
    }
    /// The instance at a position from 0 up.
    [[nodiscard]] WmiObject itemIndex(std::int32_t position, Where where = Where::current()) const
    {
        return face<WmiObject>(object().call({u"ItemIndex", where}, position), where);
    }
};

class WmiService : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] WmiObjectSet instancesOf(TextView className, Where where = Where::current()) const
    {
        return face<WmiObjectSet>(object().call({u"InstancesOf", where}, className), where);
    }
};

} // namespace rf::outlook
