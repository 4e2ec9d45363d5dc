#pragma once

#include "automation/events.h"
#include "automation/farewell.h"

#include <array>
#include <span>

namespace rf::outlook {

/// The sets of events that the host raises. One table each, for the program's handlers, for the host that raises them
/// and for every transport.
namespace event_interface {

inline constexpr std::array<automation::EventMember, 1> applicationMembers{{{u"Quit", 0xF007}}};
inline constexpr std::array<automation::EventMember, 3> explorerMembers{
    {{u"Activate", 0xF001}, {u"FolderSwitch", 0xF002}, {u"Close", 0xF008}}};
inline constexpr std::array<automation::EventMember, 1> inspectorsMembers{{{u"NewInspector", 0xF001}}};
inline constexpr std::array<automation::EventMember, 3> inspectorMembers{
    {{u"Activate", 0xF001}, {u"Deactivate", 0xF006}, {u"Close", 0xF008}}};
inline constexpr std::array<automation::EventMember, 4> itemMembers{
    {{u"Read", 0xF001}, {u"Write", 0xF002}, {u"Open", 0xF003}, {u"Close", 0xF004}}};
inline constexpr std::array<automation::EventMember, 3> itemsMembers{
    {{u"ItemAdd", 0xF001}, {u"ItemChange", 0xF002}, {u"ItemRemove", 0xF003}}};
inline constexpr std::array<automation::EventMember, 1> commandBarButtonMembers{{{u"Click", 1}}};
inline constexpr std::array<automation::EventMember, 1> commandBarComboBoxMembers{{{u"Change", 1}}};

inline constexpr automation::EventInterface application{u"ApplicationEvents", 0x0006304E, applicationMembers};
inline constexpr automation::EventInterface explorer{u"ExplorerEvents", 0x0006304F, explorerMembers};
inline constexpr automation::EventInterface inspectors{u"InspectorsEvents", 0x00063079, inspectorsMembers};
inline constexpr automation::EventInterface inspector{u"InspectorEvents", 0x0006307D, inspectorMembers};
inline constexpr automation::EventInterface item{u"ItemEvents", 0x0006303A, itemMembers};
inline constexpr automation::EventInterface items{u"ItemsEvents", 0x00063077, itemsMembers};
inline constexpr automation::EventInterface commandBarButton{
    u"CommandBarButtonEvents", 0x000C0351, commandBarButtonMembers};
inline constexpr automation::EventInterface commandBarComboBox{
    u"CommandBarComboBoxEvents", 0x000C0354, commandBarComboBoxMembers};

inline constexpr std::array<const automation::EventInterface*, 8> all{
    &application, &explorer, &inspectors, &inspector, &item, &items, &commandBarButton, &commandBarComboBox};

} // namespace event_interface

/// A host that was killed has quit: programs beside it go by that.
inline constexpr std::array<automation::Farewell, 1> farewells{{{event_interface::application.name, u"Quit"}}};

/// Every table above.
[[nodiscard]] constexpr std::span<const automation::EventInterface* const> allEventInterfaces()
{
    return event_interface::all;
}

} // namespace rf::outlook
