#pragma once

#include "automation/local_object.h"
#include "host/records.h"

#include <memory>
#include <span>

namespace rf::host {

class Item;

/// A named, typed value of an item.
class UserProperty final : public automation::LocalObject<UserProperty> {
public:
    static constexpr TextView className = u"UserProperty";

    UserProperty(std::shared_ptr<Item> item, Text name)
        : item_(std::move(item))
        , name_(std::move(name))
    {
    }

    [[nodiscard]] static std::span<const automation::LocalMember<UserProperty>> members();

private:
    /// Error `badArgument` when the item no longer has it.
    [[nodiscard]] UserPropertyRecord& record() const;
    void assign(const automation::Variant& value) const;

    std::shared_ptr<Item> item_;
    Text name_;
};

/// The named values of an item. Names compare without regard to case.
class UserProperties final : public automation::LocalObject<UserProperties> {
public:
    static constexpr TextView className = u"UserProperties";

    explicit UserProperties(std::shared_ptr<Item> item)
        : item_(std::move(item))
    {
    }

    [[nodiscard]] static std::span<const automation::LocalMember<UserProperties>> members();

private:
    /// Nothing when there is no property of that name.
    [[nodiscard]] std::shared_ptr<UserProperty> find(TextView name) const;
    /// The property of that name or at that position from 1 up; error `badArgument` when there is none.
    [[nodiscard]] std::shared_ptr<UserProperty> item(const automation::Variant& index) const;
    /// A new property, or the existing one of that name and type; error `badArgument` for one of another type.
    [[nodiscard]] std::shared_ptr<UserProperty> add(TextView name, std::int32_t type, bool toFolderFields) const;

    std::shared_ptr<Item> item_;
};

} // namespace rf::host
