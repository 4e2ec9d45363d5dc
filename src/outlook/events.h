#pragma once

#include "outlook/application.h"
#include "outlook/appointment_item.h"
#include "outlook/event_interfaces.h"

#include "automation/events.h"

#include <functional>

namespace rf::outlook {

/// The handlers of one set each; an empty one lets its event pass. `cancel` tells what the host or an earlier handler
/// has decided, and carries the handler's decision back.
struct ApplicationEvents {
    std::function<void()> quit = {};
};

struct ExplorerEvents {
    std::function<void()> activate = {};
    std::function<void()> folderSwitch = {};
    std::function<void()> close = {};
};

struct InspectorsEvents {
    std::function<void(Inspector inspector)> newInspector = {};
};

struct InspectorEvents {
    std::function<void()> activate = {};
    std::function<void()> deactivate = {};
    std::function<void()> close = {};
};

struct ItemEvents {
    std::function<void()> read = {};
    std::function<void(bool& cancel)> write = {};
    std::function<void(bool& cancel)> open = {};
    std::function<void(bool& cancel)> close = {};
};

struct ItemsEvents {
    std::function<void(Item item)> itemAdd = {};
    std::function<void(Item item)> itemChange = {};
    std::function<void()> itemRemove = {};
};

struct CommandBarButtonEvents {
    std::function<void(CommandBarButton button, bool& cancelDefault)> click = {};
};

struct CommandBarComboBoxEvents {
    std::function<void(CommandBarComboBox combo)> change = {};
};

/// Connects handlers to an object until the connection goes; a handler may cut its own connection. The caller keeps
/// the object as well: the host raises no events of an object that nobody holds.
[[nodiscard]] automation::Connection connect(
    const Application& application, ApplicationEvents handlers, Where where = Where::current());
[[nodiscard]] automation::Connection connect(
    const Explorer& explorer, ExplorerEvents handlers, Where where = Where::current());
[[nodiscard]] automation::Connection connect(
    const Inspectors& inspectors, InspectorsEvents handlers, Where where = Where::current());
[[nodiscard]] automation::Connection connect(
    const Inspector& inspector, InspectorEvents handlers, Where where = Where::current());
[[nodiscard]] automation::Connection connect(const Item& item, ItemEvents handlers, Where where = Where::current());
[[nodiscard]] automation::Connection connect(const Items& items, ItemsEvents handlers, Where where = Where::current());
[[nodiscard]] automation::Connection connect(
    const CommandBarButton& button, CommandBarButtonEvents handlers, Where where = Where::current());
[[nodiscard]] automation::Connection connect(
    const CommandBarComboBox& combo, CommandBarComboBoxEvents handlers, Where where = Where::current());

} // namespace rf::outlook
