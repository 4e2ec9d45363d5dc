#pragma once

#include "automation/local_object.h"
#include "host/item.h"

#include <map>
#include <memory>
#include <span>

namespace rf::host {

/// How an appointment repeats, in the object model's terms. The appointment is a series.
class RecurrencePattern final : public automation::LocalObject<RecurrencePattern> {
public:
    static constexpr TextView className = u"RecurrencePattern";

    explicit RecurrencePattern(std::shared_ptr<Item> item)
        : item_(std::move(item))
    {
    }

    [[nodiscard]] static std::span<const automation::LocalMember<RecurrencePattern>> members();

private:
    /// The parts of the rule by their upper-case names.
    [[nodiscard]] std::map<Text, Text> parts() const;
    [[nodiscard]] Text part(TextView name) const;
    /// Gives a part a value; an empty one takes it out.
    void setPart(TextView name, const Text& value) const;
    /// When the last occurrence ends; no date for a series without end.
    [[nodiscard]] Date lastEnd() const;
    void setTimeOfDay(Date time) const;
    [[nodiscard]] std::int32_t interval() const;
    [[nodiscard]] std::int32_t recurrenceType() const;
    void setRecurrenceType(std::int32_t type) const;
    [[nodiscard]] std::int32_t dayOfWeekMask() const;
    void setDayOfWeekMask(std::int32_t mask) const;
    [[nodiscard]] std::shared_ptr<automation::Dispatch> occurrenceAt(Date start) const;

    std::shared_ptr<Item> item_;
};

} // namespace rf::host
