#pragma once

#include "basic/regional.h"
#include "host/restriction_condition.h"

#include <cstddef>
#include <span>

namespace rf::host {

/// What a restriction may ask of the memory of the process. Outlook has limits of this order too.
struct RestrictionLimits {
    static constexpr std::size_t length = 32768; ///< In UTF-16 units.
    static constexpr std::size_t depth = 200; ///< Of parentheses inside each other.
};

/// A condition on items in the language of `Items.Find` and `Items.Restrict`:
///
///     [Start] >= "#2001-2-1 9:00 AM#" and ([Location] = 'Hall' or not [AllDayEvent] = True)
///
/// A comparison has a field on its left (in brackets, or a built-in one as a bare word), one of = <> < <= > >=, and a
/// value on its right. `not` binds stronger than `and`, `and` stronger than `or`; none minds case.
///
/// | kind of field | value | compared |
/// |---|---|---|
/// | text | in '…' or "…", the quote inside doubled | without regard to case |
/// | number | bare (1.5), or quoted in the user's form | |
/// | date | quoted, with or without # around it, in the user's form | to the minute: seconds of neither side count |
/// | yes/no | True, False, Yes, No, On, Off, 0, 1, -1; a quoted text is true unless it is empty | false before true |
class Restriction {
public:
    /// Error `host_error::badArgument`, as Outlook has it, for a field that is neither built in nor among those of the
    /// folder, and for whatever else is not of the language; the description tells the position, counted from 1.
    [[nodiscard]] static Restriction parse(
        TextView text, std::span<const FieldDefinition> folderFields, const Regional& regional);

    /// Whether an item meets the restriction. To test one occurrence of a series, its own start and end (and what else
    /// differs) stand in the item. Throws nothing, whatever the item holds.
    [[nodiscard]] bool matches(const ItemRecord& item) const;

    [[nodiscard]] const Condition& condition() const { return condition_; }

private:
    explicit Restriction(Condition condition)
        : condition_(std::move(condition))
    {
    }

    Condition condition_;
};

} // namespace rf::host
