#pragma once

#include "outlook/proxy.h"

namespace rf::outlook {

/// A person or a mailbox by name.
class Recipient : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] Text name(Where where = Where::current()) const { return object().get({u"Name", where}).text(where); }
    /// Looks the name up in the address books; false when it is unknown or ambiguous.
    bool resolve(Where where = Where::current()) const { return object().call({u"Resolve", where}).boolean(where); }
    [[nodiscard]] bool resolved(Where where = Where::current()) const
    {
        return object().get({u"Resolved", where}).boolean(where);
    }
};

} // namespace rf::outlook
