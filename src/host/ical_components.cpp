#include "host/ical_components.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace rf::host::ical {
namespace {

constexpr std::array<std::string_view, 18> eventProperties{"UID", "SUMMARY", "DESCRIPTION", "LOCATION", "CATEGORIES",
    "TRANSP", "STATUS", "DTSTART", "DTEND", "DURATION", "RRULE", "EXRULE", "RDATE", "EXDATE", "RECURRENCE-ID",
    "ORGANIZER", "X-MICROSOFT-CDO-BUSYSTATUS", "X-MICROSOFT-CDO-ALLDAYEVENT"};
constexpr std::array<std::string_view, 7> zoneProperties{
    "TZID", "X-LIC-LOCATION", "DTSTART", "TZOFFSETFROM", "TZOFFSETTO", "RRULE", "RDATE"};

/// Far more than a calendar holds, so that a hostile text cannot fill the memory.
constexpr std::size_t mostEvents = 100'000;
constexpr std::size_t mostObservances = 200;
constexpr std::size_t deepest = 20;

template <std::size_t size>
bool contains(const std::array<std::string_view, size>& names, std::string_view name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// Follows BEGIN and END.
class ComponentReader {
public:
    ComponentReader(std::string_view bytes, Problems& problems)
        : lines_(bytes)
        , problems_(problems)
    {
    }

    Components read()
    {
        while (lines_.next(line_)) {
            takeLine();
        }
        if (!hasCalendar_) {
            problems_.add(0, u"This is no calendar text.");
        } else if (!open_.empty()) {
            problems_.add(open_.front().line, u"The calendar that begins here is not ended: the text is cut off.");
        }
        while (!open_.empty()) {
            abandon();
        }
        return std::move(result_);
    }

private:
    void takeLine()
    {
        if (const std::optional<std::size_t> bad = firstBadByte(line_.bytes); bad && !line_.isTooLong) {
            problems_.add(line_.lineOf(*bad), u"This line is no UTF-8; its characters were taken as far as they are.");
        }
        line_.bytes = repaired(line_.bytes);
        std::optional<ContentLine> content = readContentLine(line_.bytes);
        if (!content) {
            problems_.add(line_.line, u"This line is no property; it was left out.");
        } else if (content->name == "BEGIN") {
            begin(content->value);
        } else if (content->name == "END") {
            end(content->value);
        } else if (isWanted(content->name)) {
            takeProperty(std::move(*content));
        }
    }

    void takeProperty(ContentLine content)
    {
        if (line_.isTooLong) {
            problems_.add(line_.line, u"This line is longer than a mebibyte; it was left out.");
        } else {
            open_.back().properties.push_back({.content = std::move(content), .line = line_.line});
        }
    }

    [[nodiscard]] bool isWanted(std::string_view property) const
    {
        if (open_.empty() || deeper_ != 0) {
            return false;
        }
        const std::string& name = open_.back().name;
        const bool isZone = name == "VTIMEZONE" || (open_.size() > 1 && open_[open_.size() - 2].name == "VTIMEZONE");
        return (name == "VEVENT" && contains(eventProperties, property))
            || (isZone && contains(zoneProperties, property));
    }

    void begin(std::string_view written)
    {
        std::string name;
        for (const std::string_view known : {"VCALENDAR", "VEVENT", "VTIMEZONE", "STANDARD", "DAYLIGHT"}) {
            name = sameName(known, written) ? known : std::string_view{name};
        }
        hasCalendar_ = hasCalendar_ || name == "VCALENDAR" || name == "VEVENT";
        if (name == "VEVENT" || name == "VCALENDAR") {
            abandonEvent();
        }
        if (open_.size() == deepest) {
            ++deeper_;
            return;
        }
        // Components of other kinds are only kept apart from those around them.
        open_.push_back({.name = name.empty() ? std::string{written.substr(0, 100)} : name,
            .line = line_.line,
            .properties = {},
            .children = {}});
    }

    void end(std::string_view name)
    {
        if (deeper_ != 0) {
            --deeper_;
            return;
        }
        name = name.substr(0, 100);
        const auto matching = std::find_if(
            open_.rbegin(), open_.rend(), [name](const Component& one) { return sameName(one.name, name); });
        if (matching == open_.rend()) {
            problems_.add(line_.line, u"Nothing that is open ends here.");
            return;
        }
        for (auto above = matching - open_.rbegin(); above > 0; --above) {
            abandon();
        }
        close();
    }

    /// The innermost component is complete.
    void close()
    {
        Component done = std::move(open_.back());
        open_.pop_back();
        if (done.name == "VEVENT") {
            keepEvent(std::move(done));
        } else if (done.name == "VTIMEZONE") {
            result_.zones.push_back(std::move(done));
        } else if (!open_.empty() && open_.back().name == "VTIMEZONE" && observances_ < mostObservances) {
            ++observances_;
            open_.back().children.push_back(std::move(done));
        }
    }

    void keepEvent(Component event)
    {
        if (result_.events.size() < mostEvents) {
            result_.events.push_back(std::move(event));
        } else if (!std::exchange(isFull_, true)) {
            problems_.add(event.line, u"This event and those behind it are more than one text may hold.");
        }
    }

    /// The innermost component never ends.
    void abandon()
    {
        const Component& lost = open_.back();
        if (lost.name == "VEVENT") {
            problems_.add(lost.line, u"The event that begins here is not ended; it was left out.");
        } else if (lost.name == "VTIMEZONE") {
            problems_.add(lost.line, u"The time zone that begins here is not ended; it was left out.");
        }
        open_.pop_back();
    }

    /// An event has no events in it, so one that another follows lacks its end.
    void abandonEvent()
    {
        const auto event
            = std::find_if(open_.begin(), open_.end(), [](const Component& one) { return one.name == "VEVENT"; });
        deeper_ = event == open_.end() ? deeper_ : 0;
        for (auto lost = open_.end() - event; lost > 0; --lost) {
            abandon();
        }
    }

    LogicalLines lines_;
    LogicalLine line_;
    Problems& problems_;
    /// From the outermost to the innermost.
    std::vector<Component> open_;
    /// How many more are open than are kept apart.
    std::size_t deeper_ = 0;
    std::size_t observances_ = 0;
    bool hasCalendar_ = false;
    bool isFull_ = false;
    Components result_;
};

} // namespace

const Property* Component::find(std::string_view wanted) const
{
    const auto found = std::find_if(
        properties.begin(), properties.end(), [wanted](const Property& one) { return one.content.name == wanted; });
    return found == properties.end() ? nullptr : &*found;
}

std::string_view Component::value(std::string_view wanted) const
{
    const Property* const property = find(wanted);
    return property == nullptr ? std::string_view{} : std::string_view{property->content.value};
}

Components readComponents(std::string_view bytes, Problems& problems)
{
    return ComponentReader{bytes, problems}.read();
}

} // namespace rf::host::ical
