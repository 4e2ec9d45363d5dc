#pragma once

#include "outlook/constants.h"
#include "outlook/proxy.h"

namespace rf::outlook {

/// What every control of a command bar has. Widths are in pixels.
class CommandBarControl : public Proxy {
public:
    using Proxy::Proxy;

    /// The number of a control of the host's own; 1 for a program's.
    [[nodiscard]] std::int32_t id(Where where = Where::current()) const
    {
        return object().get({u"Id", where}).integer32(where);
    }
    [[nodiscard]] ControlType type(Where where = Where::current()) const
    {
        return constant<ControlType>(object().get({u"Type", where}), where);
    }
    [[nodiscard]] Text caption(Where where = Where::current()) const
    {
        return object().get({u"Caption", where}).text(where);
    }
    void setCaption(TextView caption, Where where = Where::current()) const
    {
        object().put({u"Caption", where}, caption);
    }
    [[nodiscard]] Text tag(Where where = Where::current()) const { return object().get({u"Tag", where}).text(where); }
    void setTag(TextView tag, Where where = Where::current()) const { object().put({u"Tag", where}, tag); }
    [[nodiscard]] bool visible(Where where = Where::current()) const
    {
        return object().get({u"Visible", where}).boolean(where);
    }
    void setVisible(bool visible, Where where = Where::current()) const { object().put({u"Visible", where}, visible); }
    [[nodiscard]] std::int32_t width(Where where = Where::current()) const
    {
        return object().get({u"Width", where}).integer32(where);
    }
    void setWidth(std::int32_t pixels, Where where = Where::current()) const
    {
        object().put({u"Width", where}, pixels);
    }
    /// Whether a line sets the control off from the one before it.
    [[nodiscard]] bool beginGroup(Where where = Where::current()) const
    {
        return object().get({u"BeginGroup", where}).boolean(where);
    }
    void setBeginGroup(bool begin, Where where = Where::current()) const
    {
        object().put({u"BeginGroup", where}, begin);
    }
    /// Does what a click on the control does.
    void execute(Where where = Where::current()) const { object().call({u"Execute", where}); }
    /// The host's `Delete`.
    void remove(Where where = Where::current()) const { object().call({u"Delete", where}); }
};

class CommandBarButton : public CommandBarControl {
public:
    using CommandBarControl::CommandBarControl;

    /// The number of the picture on the button.
    [[nodiscard]] std::int32_t faceId(Where where = Where::current()) const
    {
        return object().get({u"FaceId", where}).integer32(where);
    }
    void setFaceId(std::int32_t id, Where where = Where::current()) const { object().put({u"FaceId", where}, id); }
    [[nodiscard]] ButtonStyle style(Where where = Where::current()) const
    {
        return constant<ButtonStyle>(object().get({u"Style", where}), where);
    }
    void setStyle(ButtonStyle style, Where where = Where::current()) const
    {
        object().put({u"Style", where}, code(style));
    }
};

class CommandBarComboBox : public CommandBarControl {
public:
    using CommandBarControl::CommandBarControl;

    [[nodiscard]] ComboStyle style(Where where = Where::current()) const
    {
        return constant<ComboStyle>(object().get({u"Style", where}), where);
    }
    void setStyle(ComboStyle style, Where where = Where::current()) const
    {
        object().put({u"Style", where}, code(style));
    }
    [[nodiscard]] Text text(Where where = Where::current()) const { return object().get({u"Text", where}).text(where); }
    void setText(TextView text, Where where = Where::current()) const { object().put({u"Text", where}, text); }
    void clear(Where where = Where::current()) const { object().call({u"Clear", where}); }
    /// Adds a line behind the others.
    void addItem(TextView line, Where where = Where::current()) const { object().call({u"AddItem", where}, line); }
    [[nodiscard]] std::int32_t listCount(Where where = Where::current()) const
    {
        return object().get({u"ListCount", where}).integer32(where);
    }
    /// The line at a position from 1 up.
    [[nodiscard]] Text list(std::int32_t position, Where where = Where::current()) const
    {
        return object().get({u"List", where}, position).text(where);
    }
};

class CommandBarControls : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] std::int32_t count(Where where = Where::current()) const
    {
        return object().get({u"Count", where}).integer32(where);
    }
    /// The control at a position from 1 up.
    [[nodiscard]] CommandBarControl item(std::int32_t position, Where where = Where::current()) const
    {
        return face<CommandBarControl>(object().get({u"Item", where}, position), where);
    }
    /// A new control behind the others; a temporary one goes with its window.
    CommandBarControl add(ControlType type, bool temporary, Where where = Where::current()) const
    {
        return face<CommandBarControl>(
            object().call({u"Add", where}, code(type), Missing{}, Missing{}, Missing{}, temporary), where);
    }
    CommandBarButton addButton(bool temporary, Where where = Where::current()) const
    {
        return add(ControlType::Button, temporary, where).as<CommandBarButton>();
    }
    CommandBarComboBox addComboBox(bool temporary, Where where = Where::current()) const
    {
        return add(ControlType::ComboBox, temporary, where).as<CommandBarComboBox>();
    }
};

class CommandBar : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] Text name(Where where = Where::current()) const { return object().get({u"Name", where}).text(where); }
    [[nodiscard]] BarPosition position(Where where = Where::current()) const
    {
        return constant<BarPosition>(object().get({u"Position", where}), where);
    }
    void setPosition(BarPosition position, Where where = Where::current()) const
    {
        object().put({u"Position", where}, code(position));
    }
    [[nodiscard]] bool visible(Where where = Where::current()) const
    {
        return object().get({u"Visible", where}).boolean(where);
    }
    void setVisible(bool visible, Where where = Where::current()) const { object().put({u"Visible", where}, visible); }
    [[nodiscard]] CommandBarControls controls(Where where = Where::current()) const
    {
        return face<CommandBarControls>(object().get({u"Controls", where}), where);
    }
    /// The first control of this bar with that number; empty when there is none.
    [[nodiscard]] CommandBarControl findControl(std::int32_t id, Where where = Where::current()) const
    {
        return face<CommandBarControl>(object().call({u"FindControl", where}, Missing{}, id), where);
    }
    /// The host's `Delete`.
    void remove(Where where = Where::current()) const { object().call({u"Delete", where}); }
};

/// The command bars of one window.
class CommandBars : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] std::int32_t count(Where where = Where::current()) const
    {
        return object().get({u"Count", where}).integer32(where);
    }
    /// The bar at a position from 1 up, or of that name; one that is not there is an error.
    [[nodiscard]] CommandBar item(std::int32_t position, Where where = Where::current()) const
    {
        return face<CommandBar>(object().get({u"Item", where}, position), where);
    }
    [[nodiscard]] CommandBar item(TextView name, Where where = Where::current()) const
    {
        return face<CommandBar>(object().get({u"Item", where}, name), where);
    }
    /// A new bar, hidden at first; a temporary one goes with its window.
    CommandBar add(
        TextView name, BarPosition position, bool menuBar, bool temporary, Where where = Where::current()) const
    {
        return face<CommandBar>(object().call({u"Add", where}, name, code(position), menuBar, temporary), where);
    }
    /// The first control on any bar with that number; empty when there is none.
    [[nodiscard]] CommandBarControl findControl(std::int32_t id, Where where = Where::current()) const
    {
        return face<CommandBarControl>(object().call({u"FindControl", where}, Missing{}, id), where);
    }
};

} // namespace rf::outlook
