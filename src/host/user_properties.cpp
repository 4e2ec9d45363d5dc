#include "host/user_properties.h"

#include "automation/conversion.h"
#include "host/host_error.h"
#include "host/item.h"
#include "host/model.h"
#include "outlook/constants.h"

#include <algorithm>
#include <array>
#include <utility>

namespace rf::host {

using automation::Arguments;
using automation::LocalMember;
using automation::Variant;
using outlook::UserPropertyType;

namespace {

auto findByName(std::vector<UserPropertyRecord>& properties, TextView name)
{
    return std::ranges::find_if(
        properties, [&](const UserPropertyRecord& property) { return equalIgnoringCase(property.name, name); });
}

bool isKnown(std::int32_t type)
{
    constexpr std::array known{
        UserPropertyType::Text, UserPropertyType::Number, UserPropertyType::DateTime, UserPropertyType::YesNo};
    return std::ranges::find(known, static_cast<UserPropertyType>(type)) != known.end();
}

/// What a property holds that nobody has given a value.
Variant neutral(std::int32_t type)
{
    switch (static_cast<UserPropertyType>(type)) {
    case UserPropertyType::Number:
        return 0.0;
    case UserPropertyType::DateTime:
        return noDate;
    case UserPropertyType::YesNo:
        return false;
    case UserPropertyType::Text:
        break;
    }
    return Text{};
}

Variant converted(const Regional& regional, std::int32_t type, const Variant& value)
{
    switch (static_cast<UserPropertyType>(type)) {
    case UserPropertyType::Number:
        return automation::toDouble(regional, value);
    case UserPropertyType::DateTime:
        return automation::toDate(regional, value);
    case UserPropertyType::YesNo:
        return automation::toBoolean(regional, value);
    case UserPropertyType::Text:
        break;
    }
    return automation::toText(regional, value);
}

} // namespace

UserPropertyRecord& UserProperty::record() const
{
    auto& properties = item_->record().userProperties;
    const auto found = findByName(properties, name_);
    if (found == properties.end())
        throw hostError(host_error::badArgument, u"The property \"" + name_ + u"\" does not exist.");
    return *found;
}

void UserProperty::assign(const Variant& value) const
{
    UserPropertyRecord& property = record();
    property.value = converted(item_->model().regional(), property.type, value);
    item_->touch();
}

std::span<const LocalMember<UserProperty>> UserProperty::members()
{
    static constexpr std::array table{
        LocalMember<UserProperty>{
            u"Name", [](UserProperty& self, const Arguments&) -> Variant { return self.record().name; }},
        LocalMember<UserProperty>{
            u"Type", [](UserProperty& self, const Arguments&) -> Variant { return self.record().type; }},
        LocalMember<UserProperty>{u"Value",
            [](UserProperty& self, const Arguments&) -> Variant { return self.record().value; },
            [](UserProperty& self, const Arguments& arguments) { self.assign(arguments.value()); }},
    };
    return table;
}

std::shared_ptr<UserProperty> UserProperties::find(TextView name) const
{
    auto& properties = item_->record().userProperties;
    const auto found = findByName(properties, name);
    return found == properties.end() ? nullptr : std::make_shared<UserProperty>(item_, found->name);
}

std::shared_ptr<UserProperty> UserProperties::item(const Variant& index) const
{
    if (index.is<Text>()) {
        if (auto property = find(index.text()))
            return property;
        throw hostError(host_error::badArgument, u"The property \"" + index.text() + u"\" does not exist.");
    }
    auto& properties = item_->record().userProperties;
    const auto position = index.integer32();
    if (position < 1 || std::cmp_greater(position, properties.size()))
        throw hostError(host_error::badArgument, u"Array index out of bounds.");
    return std::make_shared<UserProperty>(item_, properties[static_cast<std::size_t>(position - 1)].name);
}

std::shared_ptr<UserProperty> UserProperties::add(TextView name, std::int32_t type, bool toFolderFields) const
{
    if (name.empty() || !isKnown(type))
        throw hostError(host_error::badArgument, u"A property needs a name and a known type.");
    auto& properties = item_->record().userProperties;
    const auto found = findByName(properties, name);
    if (found == properties.end()) {
        properties.push_back({Text{name}, type, neutral(type)});
        item_->touch();
    } else if (found->type != type) {
        throw hostError(host_error::badArgument, u"The property \"" + Text{name} + u"\" exists with another type.");
    }
    if (toFolderFields)
        item_->defineField({Text{name}, type});
    return std::make_shared<UserProperty>(item_, Text{name});
}

std::span<const LocalMember<UserProperties>> UserProperties::members()
{
    static constexpr std::array table{
        LocalMember<UserProperties>{u"Count",
            [](UserProperties& self, const Arguments&) -> Variant {
                return static_cast<std::int32_t>(self.item_->record().userProperties.size());
            }},
        LocalMember<UserProperties>{u"Find",
            [](UserProperties& self, const Arguments& arguments) -> Variant { return self.find(arguments[0].text()); }},
        LocalMember<UserProperties>{u"Item",
            [](UserProperties& self, const Arguments& arguments) -> Variant { return self.item(arguments[0]); }},
        LocalMember<UserProperties>{u"Add",
            [](UserProperties& self, const Arguments& arguments) -> Variant {
                return self.add(
                    arguments[0].text(), arguments[1].integer32(), !arguments.has(2) || arguments[2].boolean());
            }},
    };
    return table;
}

} // namespace rf::host
