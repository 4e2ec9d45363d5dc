#pragma once

#include "basic/text.h"

#include "host/records.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace rf::host {

class Explorer;
class Inspector;
class Item;

/// What a person wants with an item that has changes when its window closes.
enum class SaveAnswer { Save, Discard, KeepOpen };

/// What the host asks of the person in front of it, and what it shows. The host has no other way to the screen.
///
/// The objects of the object model are there with a window and without one, so what shows them has nothing to do here
/// by default. A telling can come while a program's call runs and as often as a program assigns something: whoever
/// draws gathers several into one drawing, and never calls the object model from within.
class HostWindows {
public:
    virtual ~HostWindows() = default;

    /// Shows an alert and waits for the number of its button. Buttons and icon are numbered as in the object model.
    virtual std::int32_t alert(const Text& title, const Text& message, std::int32_t buttons, std::int32_t icon) = 0;

    /// Lets the person choose one of the folders; nothing when the person cancels.
    virtual std::optional<FolderId> pickFolder(const std::vector<FolderRecord>& folders) = 0;

    /// Asks about the changes of an item that is being closed. Without a screen they are forgotten, as nobody is there
    /// who wants them.
    virtual SaveAnswer askToSave(const Text& /*subject*/) { return SaveAnswer::Discard; }

    /// A folder's window opens or comes to the front.
    virtual void showExplorer(const std::shared_ptr<Explorer>& /*explorer*/) { }
    /// It shows another folder, or its bars have changed.
    virtual void explorerChanged(const Explorer& /*explorer*/) { }
    virtual void explorerClosed(const Explorer& /*explorer*/) { }

    /// An item's window opens or comes to the front.
    virtual void showInspector(const std::shared_ptr<Inspector>& /*inspector*/) { }
    /// Its pages or its bars have changed.
    virtual void inspectorChanged(const Inspector& /*inspector*/) { }
    virtual void inspectorClosed(const Inspector& /*inspector*/) { }
    /// A working copy was changed or saved, by a program or by a person.
    virtual void itemChanged(const Item& /*item*/) { }
};

/// A host without a screen: nobody is there to answer, so an alert is dismissed with the button that declines, and
/// no folder is chosen.
class HeadlessWindows final : public HostWindows {
public:
    std::int32_t alert(const Text& title, const Text& message, std::int32_t buttons, std::int32_t icon) override;
    std::optional<FolderId> pickFolder(const std::vector<FolderRecord>&) override { return std::nullopt; }
};

} // namespace rf::host
