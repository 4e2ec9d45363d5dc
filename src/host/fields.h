#pragma once

#include "host/records.h"

#include <cstdint>
#include <optional>
#include <span>
#include <variant>

namespace rf::host {

enum class FieldKind { Text, Number, Date, YesNo };

/// What an item has in a field. A text points into the item.
using FieldValue = std::variant<TextView, double, Date, bool>;

/// Reads a field; the alternative that it is gives the kind, in the order of `FieldKind`.
using FieldReader = std::variant<TextView (*)(const ItemRecord&), double (*)(const ItemRecord&),
    Date (*)(const ItemRecord&), bool (*)(const ItemRecord&)>;

struct BuiltInField {
    TextView name;
    FieldReader read;

    [[nodiscard]] constexpr FieldKind kind() const { return static_cast<FieldKind>(read.index()); }
};

/// The fields that every item has and that items can be searched and sorted by, under the object model's names.
/// Outlook refuses Body and EntryID in both, so they are none of these.
[[nodiscard]] std::span<const BuiltInField> builtInFields();

/// By its name without brackets, in any case; null when there is none.
[[nodiscard]] const BuiltInField* findBuiltInField(TextView name);

/// A field of the items of one folder: a built-in one, or a user property that the folder defines.
class Field {
public:
    explicit Field(const BuiltInField& builtIn)
        : builtIn_(&builtIn)
        , kind_(builtIn.kind())
    {
    }

    /// By its name without brackets, in any case; a built-in field stands before a user property of its name.
    /// Nothing when the name is neither, or when the folder gives it a type that has no order.
    [[nodiscard]] static std::optional<Field> find(TextView name, std::span<const FieldDefinition> folderFields);

    /// As the object model or the folder spells it.
    [[nodiscard]] TextView name() const { return builtIn_ ? builtIn_->name : TextView{propertyName_}; }
    [[nodiscard]] FieldKind kind() const { return kind_; }
    [[nodiscard]] bool isUserProperty() const { return builtIn_ == nullptr; }

    /// The item's value, always of the field's kind. A user property that the item lacks, or has in another kind,
    /// counts as "", 0, no date (1 January 4501) or false, as it does in Outlook.
    [[nodiscard]] FieldValue read(const ItemRecord& item) const;

private:
    Field(Text propertyName, FieldKind kind)
        : propertyName_(std::move(propertyName))
        , kind_(kind)
    {
    }

    const BuiltInField* builtIn_ = nullptr;
    Text propertyName_;
    FieldKind kind_;
};

/// Whole minutes since the zero date up to the minute that a date lies in. A date outside the years 100 to 9999
/// counts as the nearest one inside, so that no item can make a search fail.
[[nodiscard]] std::int64_t minuteOf(Date date);

} // namespace rf::host
