#pragma once

#include "outlook/item.h"
#include "outlook/window.h"

namespace rf::outlook {

/// A window that shows one item.
class Inspector : public Window {
public:
    using Window::Window;

    [[nodiscard]] Item currentItem(Where where = Where::current()) const
    {
        return face<Item>(object().get({u"CurrentItem", where}), where);
    }
    void close(CloseMode mode, Where where = Where::current()) const { object().call({u"Close", where}, code(mode)); }
    using Window::display;
    void display(bool modal, Where where = Where::current()) const { object().call({u"Display", where}, modal); }
    /// Hides a page of the form by the name that it shows; an unknown page is an error.
    void hideFormPage(TextView pageName, Where where = Where::current()) const
    {
        object().call({u"HideFormPage", where}, pageName);
    }
};

class Inspectors : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] std::int32_t count(Where where = Where::current()) const
    {
        return object().get({u"Count", where}).integer32(where);
    }
    /// The window at a position from 1 up.
    [[nodiscard]] Inspector item(std::int32_t position, Where where = Where::current()) const
    {
        return face<Inspector>(object().call({u"Item", where}, position), where);
    }
};

} // namespace rf::outlook
