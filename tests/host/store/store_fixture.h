#pragma once

#include "host/store.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

namespace rf::host::test {

/// A kind of store that the suite runs over.
struct StoreKind {
    std::string name;
    /// A new, empty store; it takes what it lies on with it when it goes.
    std::function<std::shared_ptr<Store>()> make;
};

inline void PrintTo(const StoreKind& kind, std::ostream* out) { *out << kind.name; }

/// A day of the year 2001 with a time, as minutes behind midnight.
inline Date at(int day, int minutes = 0)
{
    return Date::fromFields({.year = 2001, .month = 2, .day = day, .minute = minutes});
}

inline ItemRecord appointment(FolderId folder, Text subject, Date start, Date end)
{
    ItemRecord item;
    item.folder = folder;
    item.messageClass = u"IPM.Appointment";
    item.subject = std::move(subject);
    item.start = start;
    item.end = end;
    return item;
}

inline FolderRecord calendar(Text name, FolderId parent = FolderId::None)
{
    FolderRecord folder;
    folder.parent = parent;
    folder.name = std::move(name);
    folder.defaultItemType = 1;
    return folder;
}

/// An occurrence at another time than its series has it.
inline OccurrenceChange moved(Date original, Date start, Date end)
{
    OccurrenceChange change;
    change.original = original;
    change.start = start;
    change.end = end;
    return change;
}

/// An occurrence that is not held, though its times are still there.
inline OccurrenceChange deleted(Date original, Date start, Date end)
{
    OccurrenceChange change = moved(original, start, end);
    change.deleted = true;
    return change;
}

/// The fault that a step ends with; nothing when it ends well.
template <class Step>
std::optional<StoreFault> faultOf(const Step& step)
{
    try {
        step();
    } catch (const StoreError& error) {
        EXPECT_FALSE(error.description().empty());
        return error.fault();
    }
    return std::nullopt;
}

class StoreSuite : public testing::TestWithParam<StoreKind> {
protected:
    [[nodiscard]] Store& store() const { return *store_; }
    [[nodiscard]] FolderId room() const { return room_; }

    /// Saves an appointment in the room.
    [[nodiscard]] ItemRecord saved(Text subject, Date start = at(1), Date end = at(1)) const
    {
        ItemRecord item = appointment(room_, std::move(subject), start, end);
        store_->save(item);
        return item;
    }

    /// What the store gives back of an item that it was given.
    [[nodiscard]] ItemRecord kept(ItemRecord item) const
    {
        store_->save(item);
        return store_->read(item.id).value();
    }

private:
    std::shared_ptr<Store> store_ = GetParam().make();
    FolderId room_ = store_->addFolder(calendar(u"Room"));
};

} // namespace rf::host::test
