#pragma once

#include "outlook/folder.h"
#include "outlook/window.h"

namespace rf::outlook {

/// A window that shows the contents of a folder.
class Explorer : public Window {
public:
    using Window::Window;

    [[nodiscard]] Folder currentFolder(Where where = Where::current()) const
    {
        return face<Folder>(object().get({u"CurrentFolder", where}), where);
    }
    void setCurrentFolder(const Folder& folder, Where where = Where::current()) const
    {
        object().put({u"CurrentFolder", where}, folder);
    }
    void close(Where where = Where::current()) const { object().call({u"Close", where}); }
};

class Explorers : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] std::int32_t count(Where where = Where::current()) const
    {
        return object().get({u"Count", where}).integer32(where);
    }
    /// The window at a position from 1 up.
    [[nodiscard]] Explorer item(std::int32_t position, Where where = Where::current()) const
    {
        return face<Explorer>(object().call({u"Item", where}, position), where);
    }
    /// A new window for a folder; it stays hidden until it is displayed or activated.
    Explorer add(const Folder& folder, FolderDisplayMode mode, Where where = Where::current()) const
    {
        return face<Explorer>(object().call({u"Add", where}, folder, code(mode)), where);
    }
};

} // namespace rf::outlook
