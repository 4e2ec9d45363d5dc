#pragma once

#include "outlook/command_bars.h"

namespace rf::outlook {

/// What the host's two kinds of window have in common. Positions and sizes are in pixels.
class Window : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] Text caption(Where where = Where::current()) const
    {
        return object().get({u"Caption", where}).text(where);
    }
    [[nodiscard]] CommandBars commandBars(Where where = Where::current()) const
    {
        return face<CommandBars>(object().get({u"CommandBars", where}), where);
    }
    /// Brings the window to the front.
    void activate(Where where = Where::current()) const { object().call({u"Activate", where}); }
    void display(Where where = Where::current()) const { object().call({u"Display", where}); }

    [[nodiscard]] std::int32_t left(Where where = Where::current()) const
    {
        return object().get({u"Left", where}).integer32(where);
    }
    void setLeft(std::int32_t pixels, Where where = Where::current()) const { object().put({u"Left", where}, pixels); }
    [[nodiscard]] std::int32_t top(Where where = Where::current()) const
    {
        return object().get({u"Top", where}).integer32(where);
    }
    void setTop(std::int32_t pixels, Where where = Where::current()) const { object().put({u"Top", where}, pixels); }
    [[nodiscard]] std::int32_t width(Where where = Where::current()) const
    {
        return object().get({u"Width", where}).integer32(where);
    }
    void setWidth(std::int32_t pixels, Where where = Where::current()) const
    {
        object().put({u"Width", where}, pixels);
    }
    [[nodiscard]] std::int32_t height(Where where = Where::current()) const
    {
        return object().get({u"Height", where}).integer32(where);
    }
    void setHeight(std::int32_t pixels, Where where = Where::current()) const
    {
        object().put({u"Height", where}, pixels);
    }
    [[nodiscard]] WindowState windowState(Where where = Where::current()) const
    {
        return constant<WindowState>(object().get({u"WindowState", where}), where);
    }
    void setWindowState(WindowState state, Where where = Where::current()) const
    {
        object().put({u"WindowState", where}, code(state));
    }
};

} // namespace rf::outlook
