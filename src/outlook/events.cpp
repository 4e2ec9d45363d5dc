#include "outlook/events.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace rf::outlook {

namespace {

using automation::Connection;
using automation::EventInterface;
using Arguments = std::span<Variant>;

/// How an event of a set reaches its handler.
template <class Handlers>
struct Route {
    TextView event;
    void (*raise)(const Handlers& handlers, Arguments arguments);
};

void notify(const std::function<void()>& handler)
{
    if (handler)
        handler();
}

template <class Face>
Face faceOf(Arguments arguments, std::size_t index)
{
    return index < arguments.size() ? Face{automation::Object{arguments[index].dereferenced().dispatch()}} : Face{};
}

template <class Face>
void notify(const std::function<void(Face)>& handler, Arguments arguments)
{
    if (handler)
        handler(faceOf<Face>(arguments, 0));
}

/// Runs a step that decides on the Boolean at `index`, and gives the host the decision.
template <class Step>
void decide(Arguments arguments, std::size_t index, const Step& step)
{
    const bool given = index < arguments.size();
    bool decision = given && arguments[index].dereferenced().boolean();
    step(decision);
    if (given)
        arguments[index].assignThrough(decision);
}

void ask(const std::function<void(bool&)>& handler, Arguments arguments)
{
    if (handler)
        decide(arguments, 0, handler);
}

constexpr Route<ApplicationEvents> applicationRoutes[]{
    {u"Quit", [](const ApplicationEvents& handlers, Arguments) { notify(handlers.quit); }},
};

constexpr Route<ExplorerEvents> explorerRoutes[]{
    {u"Activate", [](const ExplorerEvents& handlers, Arguments) { notify(handlers.activate); }},
    {u"FolderSwitch", [](const ExplorerEvents& handlers, Arguments) { notify(handlers.folderSwitch); }},
    {u"Close", [](const ExplorerEvents& handlers, Arguments) { notify(handlers.close); }},
};

constexpr Route<InspectorsEvents> inspectorsRoutes[]{
    {u"NewInspector",
        [](const InspectorsEvents& handlers, Arguments arguments) { notify(handlers.newInspector, arguments); }},
};

constexpr Route<InspectorEvents> inspectorRoutes[]{
    {u"Activate", [](const InspectorEvents& handlers, Arguments) { notify(handlers.activate); }},
    {u"Deactivate", [](const InspectorEvents& handlers, Arguments) { notify(handlers.deactivate); }},
    {u"Close", [](const InspectorEvents& handlers, Arguments) { notify(handlers.close); }},
};

constexpr Route<ItemEvents> itemRoutes[]{
    {u"Read", [](const ItemEvents& handlers, Arguments) { notify(handlers.read); }},
    {u"Write", [](const ItemEvents& handlers, Arguments arguments) { ask(handlers.write, arguments); }},
    {u"Open", [](const ItemEvents& handlers, Arguments arguments) { ask(handlers.open, arguments); }},
    {u"Close", [](const ItemEvents& handlers, Arguments arguments) { ask(handlers.close, arguments); }},
};

constexpr Route<ItemsEvents> itemsRoutes[]{
    {u"ItemAdd", [](const ItemsEvents& handlers, Arguments arguments) { notify(handlers.itemAdd, arguments); }},
    {u"ItemChange", [](const ItemsEvents& handlers, Arguments arguments) { notify(handlers.itemChange, arguments); }},
    {u"ItemRemove", [](const ItemsEvents& handlers, Arguments) { notify(handlers.itemRemove); }},
};

constexpr Route<CommandBarButtonEvents> commandBarButtonRoutes[]{
    {u"Click",
        [](const CommandBarButtonEvents& handlers, Arguments arguments) {
            if (handlers.click)
                decide(arguments, 1,
                    [&](bool& cancel) { handlers.click(faceOf<CommandBarButton>(arguments, 0), cancel); });
        }},
};

constexpr Route<CommandBarComboBoxEvents> commandBarComboBoxRoutes[]{
    {u"Change",
        [](const CommandBarComboBoxEvents& handlers, Arguments arguments) { notify(handlers.change, arguments); }},
};

/// Whether the routes are those of the table's members, one each and in the same order.
template <class Routes>
constexpr bool serves(const Routes& routes, const EventInterface& events)
{
    return std::ranges::equal(
        routes, events.members, [](const auto& route, const auto& member) { return route.event == member.name; });
}

static_assert(serves(applicationRoutes, event_interface::application));
static_assert(serves(explorerRoutes, event_interface::explorer));
static_assert(serves(inspectorsRoutes, event_interface::inspectors));
static_assert(serves(inspectorRoutes, event_interface::inspector));
static_assert(serves(itemRoutes, event_interface::item));
static_assert(serves(itemsRoutes, event_interface::items));
static_assert(serves(commandBarButtonRoutes, event_interface::commandBarButton));
static_assert(serves(commandBarComboBoxRoutes, event_interface::commandBarComboBox));

template <class Handlers, std::size_t count>
Connection connectRoutes(const Proxy& source, const EventInterface& events, const Route<Handlers> (&routes)[count],
    Handlers handlers, Where where)
{
    auto handle
        = [kept = std::make_shared<const Handlers>(std::move(handlers)), &routes](TextView event, Arguments arguments) {
              // A handler that cuts its own connection takes this closure away while it runs.
              // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the copy is what keeps them alive.
              const auto alive = kept;
              const auto route = std::ranges::find(routes, event, &Route<Handlers>::event);
              if (route != std::end(routes))
                  route->raise(*alive, arguments);
          };
    return source.object().advise(events, std::move(handle), where);
}

} // namespace

Connection connect(const Application& application, ApplicationEvents handlers, Where where)
{
    return connectRoutes(application, event_interface::application, applicationRoutes, std::move(handlers), where);
}

Connection connect(const Explorer& explorer, ExplorerEvents handlers, Where where)
{
    return connectRoutes(explorer, event_interface::explorer, explorerRoutes, std::move(handlers), where);
}

Connection connect(const Inspectors& inspectors, InspectorsEvents handlers, Where where)
{
    return connectRoutes(inspectors, event_interface::inspectors, inspectorsRoutes, std::move(handlers), where);
}

Connection connect(const Inspector& inspector, InspectorEvents handlers, Where where)
{
    return connectRoutes(inspector, event_interface::inspector, inspectorRoutes, std::move(handlers), where);
}

Connection connect(const Item& item, ItemEvents handlers, Where where)
{
    return connectRoutes(item, event_interface::item, itemRoutes, std::move(handlers), where);
}

Connection connect(const Items& items, ItemsEvents handlers, Where where)
{
    return connectRoutes(items, event_interface::items, itemsRoutes, std::move(handlers), where);
}

Connection connect(const CommandBarButton& button, CommandBarButtonEvents handlers, Where where)
{
    return connectRoutes(button, event_interface::commandBarButton, commandBarButtonRoutes, std::move(handlers), where);
}

Connection connect(const CommandBarComboBox& combo, CommandBarComboBoxEvents handlers, Where where)
{
    return connectRoutes(
        combo, event_interface::commandBarComboBox, commandBarComboBoxRoutes, std::move(handlers), where);
}

} // namespace rf::outlook
