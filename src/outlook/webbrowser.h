#pragma once

#include "outlook/proxy.h"

namespace rf::outlook {

/// The control's class on every system.
inline constexpr TextView webBrowserClass = u"Shell.Explorer.2";

/// The page that a browser control shows.
class HtmlDocument : public Proxy {
public:
    using Proxy::Proxy;

    /// Runs a command such as "print" on the page; false when it did nothing.
    bool execCommand(TextView command, Where where = Where::current()) const
    {
        return object().call({u"execCommand", where}, command).boolean(where);
    }
};

class WebBrowser : public Proxy {
public:
    using Proxy::Proxy;

    void navigate2(TextView address, Where where = Where::current()) const
    {
        object().call({u"Navigate2", where}, address);
    }
    [[nodiscard]] HtmlDocument document(Where where = Where::current()) const
    {
        return face<HtmlDocument>(object().get({u"Document", where}), where);
    }
};

} // namespace rf::outlook
