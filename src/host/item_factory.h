#pragma once

#include "automation/object.h"
#include "host/item.h"

#include <memory>
#include <optional>

namespace rf::host {

class Model;
struct Occurrence;

/// The object of an item, of the class that its message class asks for.
[[nodiscard]] std::shared_ptr<automation::Dispatch> makeItem(
    std::shared_ptr<Model> model, ItemRecord record, std::optional<OccurrenceOf> occurrence = std::nullopt);

/// The item that an object stands for; nothing when it is none.
[[nodiscard]] std::shared_ptr<Item> itemOf(const std::shared_ptr<automation::Dispatch>& object);

/// A new, empty item of a message class, as the object model begins one: an appointment at the next half hour.
[[nodiscard]] ItemRecord newRecord(const Model& model, FolderId folder, TextView messageClass);

/// A series as one of its occurrences: what the change of that occurrence says stands in the place of the series' own.
[[nodiscard]] ItemRecord occurrenceRecord(const ItemRecord& series, const Occurrence& occurrence);

/// What the object model calls the parent: the folder of an item, the series of an occurrence.
[[nodiscard]] std::shared_ptr<automation::Dispatch> parentOf(Item& item);

/// The window of an item; made, but not shown, when there is none.
[[nodiscard]] std::shared_ptr<automation::Dispatch> inspectorOf(Item& item);
/// Raises Open, which may refuse, and shows the item in its window.
void displayItem(Item& item);
/// Closes an item with its window.
void closeItem(Item& item, CloseMode mode);

[[nodiscard]] bool isItemEvents(const automation::EventInterface& set);

} // namespace rf::host
