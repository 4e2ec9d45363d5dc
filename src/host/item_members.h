#pragma once

#include "automation/local_object.h"
#include "host/entry_id.h"
#include "host/folder.h"
#include "host/item.h"
#include "host/item_factory.h"
#include "host/user_properties.h"

#include <span>
#include <vector>

namespace rf::host {

/// A member of items that is a text of the record.
template <class T, Text ItemRecord::*field>
automation::LocalMember<T> itemText(TextView name)
{
    return {name,
        [](T& self, const automation::Arguments&) -> automation::Variant {
            self.requireAlive();
            return self.record().*field;
        },
        [](T& self, const automation::Arguments& arguments) {
            self.requireAlive();
            self.record().*field = arguments.value().text();
            self.touch();
        }};
}

/// A member of items that is a number of the record.
template <class T, std::int32_t ItemRecord::*field>
automation::LocalMember<T> itemNumber(TextView name)
{
    return {name,
        [](T& self, const automation::Arguments&) -> automation::Variant {
            self.requireAlive();
            return self.record().*field;
        },
        [](T& self, const automation::Arguments& arguments) {
            self.requireAlive();
            self.record().*field = arguments.value().integer32();
            self.touch();
        }};
}

using ItemAnswer = automation::Variant (*)(Item& self, const automation::Arguments& arguments);

/// A member of items that is answered by a step and cannot be assigned.
template <class T, ItemAnswer answer>
automation::LocalMember<T> itemAnswer(TextView name)
{
    return {name, [](T& self, const automation::Arguments& arguments) -> automation::Variant {
                self.requireAlive();
                return answer(self, arguments);
            }};
}

namespace item_answer {

using automation::Arguments;
using automation::Variant;

inline Variant entryId(Item& self, const Arguments&) { return entryIdOf(self.record().id); }
inline Variant parent(Item& self, const Arguments&) { return parentOf(self); }
inline Variant size(Item& self, const Arguments&) { return self.record().size; }
inline Variant saved(Item& self, const Arguments&) { return self.saved(); }
inline Variant created(Item& self, const Arguments&) { return self.record().creationTime; }
inline Variant modified(Item& self, const Arguments&) { return self.record().lastModificationTime; }
inline Variant userProperties(Item& self, const Arguments&) { return std::make_shared<UserProperties>(self.self()); }
inline Variant inspector(Item& self, const Arguments&) { return inspectorOf(self); }
inline Variant save(Item& self, const Arguments&)
{
    self.save();
    return {};
}
inline Variant remove(Item& self, const Arguments&)
{
    self.remove();
    return {};
}
inline Variant close(Item& self, const Arguments& arguments)
{
    closeItem(self, static_cast<CloseMode>(arguments[0].integer32()));
    return {};
}
inline Variant display(Item& self, const Arguments&)
{
    displayItem(self);
    return {};
}

} // namespace item_answer

/// The members that every kind of item has, and its own.
template <class T>
std::vector<automation::LocalMember<T>> itemMembers(std::vector<automation::LocalMember<T>> own)
{
    own.insert(own.end(),
        {itemText<T, &ItemRecord::subject>(u"Subject"), itemText<T, &ItemRecord::body>(u"Body"),
            itemText<T, &ItemRecord::categories>(u"Categories"),
            itemText<T, &ItemRecord::messageClass>(u"MessageClass"), itemAnswer<T, item_answer::entryId>(u"EntryID"),
            itemAnswer<T, item_answer::parent>(u"Parent"), itemAnswer<T, item_answer::size>(u"Size"),
            itemAnswer<T, item_answer::saved>(u"Saved"), itemAnswer<T, item_answer::created>(u"CreationTime"),
            itemAnswer<T, item_answer::modified>(u"LastModificationTime"),
            itemAnswer<T, item_answer::userProperties>(u"UserProperties"),
            itemAnswer<T, item_answer::inspector>(u"GetInspector"), itemAnswer<T, item_answer::save>(u"Save"),
            itemAnswer<T, item_answer::remove>(u"Delete"), itemAnswer<T, item_answer::close>(u"Close"),
            itemAnswer<T, item_answer::display>(u"Display")});
    return own;
}

/// An item's object: the late-bound face of a working copy.
template <class T>
class ItemObject : public automation::LocalObject<T>, public Item {
public:
    using Item::Item;

    [[nodiscard]] std::shared_ptr<automation::Dispatch> dispatch() final { return this->shared_from_this(); }

private:
    [[nodiscard]] automation::EventSource* eventSource(const automation::EventInterface& set) final
    {
        return isItemEvents(set) ? &events() : nullptr;
    }
};

} // namespace rf::host
