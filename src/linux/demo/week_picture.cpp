#include "linux/demo/week_picture.h"

#include <algorithm>
#include <array>
#include <sstream>

namespace rf::demo {

namespace {

constexpr int days = 7;
constexpr int minutesPerHour = 60;
constexpr std::int64_t secondsPerMinute = 60;
constexpr std::int64_t secondsPerDay = 86'400;
constexpr int earliestHour = 9;
constexpr int latestHour = 18;

// Lengths in the picture's own units.
constexpr int margin = 16;
constexpr int hourColumn = 44;
constexpr int widestDay = 210;
constexpr int narrowestDay = 80;
/// What the days of all weeks share.
constexpr int widthOfDays = 840;
constexpr int hourHeight = 44;
constexpr int titleHeight = 34;
constexpr int titleDrop = 10;
constexpr int captionHeight = 26;
constexpr int captionDrop = 8;
constexpr int dayNameHeight = 20;
constexpr int gap = 14;
constexpr int inset = 2;
/// Of the letters that subjects are written in, on average.
constexpr int letterWidth = 5;
constexpr int lineHeight = 10;
constexpr int baseline = 9;
constexpr int smallestHeight = 3;

constexpr std::array<const char*, days> dayNames{"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
constexpr std::array<const char*, 12> monthNames{
    "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::string escaped(TextView text)
{
    std::string result;
    for (const char letter : toUtf8(text))
        switch (letter) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        default:
            // A picture may hold no control characters but blanks.
            result += static_cast<unsigned char>(letter) < ' ' ? ' ' : letter;
        }
    return result;
}

/// As many letters as fit, whole ones only.
Text fitting(TextView text, int space)
{
    const auto room = static_cast<std::size_t>(std::max(space, 0) / letterWidth);
    if (text.size() <= room)
        return Text{text};
    Text shorter{text.substr(0, room > 0 ? room - 1 : 0)};
    constexpr char16_t firstLeadingHalf = 0xD800;
    constexpr char16_t firstTrailingHalf = 0xDC00;
    if (!shorter.empty() && shorter.back() >= firstLeadingHalf && shorter.back() < firstTrailingHalf)
        shorter.pop_back();
    return shorter.empty() ? shorter : shorter + u"…";
}

std::int64_t secondsBetween(Date monday, const WeekEntry& entry) { return entry.start.seconds() - monday.seconds(); }

/// What part of the week is drawn: the days and hours in which something happens, and a working day's hours.
struct Frame {
    int firstDay = days;
    int lastDay = -1;
    int firstHour = earliestHour;
    int lastHour = latestHour;

    [[nodiscard]] int dayCount() const { return lastDay - firstDay + 1; }
    [[nodiscard]] int height() const { return (lastHour - firstHour) * hourHeight; }
    [[nodiscard]] int minutes() const { return (lastHour - firstHour) * minutesPerHour; }
};

bool isInWeek(std::int64_t seconds) { return seconds >= 0 && seconds < days * secondsPerDay; }

Frame frameOf(Date monday, const std::vector<Week>& weeks)
{
    constexpr int hoursPerDay = 24;
    Frame frame;
    for (const Week& week : weeks)
        for (const WeekEntry& entry : week.entries) {
            const std::int64_t seconds = secondsBetween(monday, entry);
            if (!isInWeek(seconds))
                continue;
            const int day = static_cast<int>(seconds / secondsPerDay);
            const int minute = static_cast<int>(seconds % secondsPerDay / secondsPerMinute);
            const int endHour = (minute + entry.minutes + minutesPerHour - 1) / minutesPerHour;
            frame.firstDay = std::min(frame.firstDay, day);
            frame.lastDay = std::max(frame.lastDay, day);
            frame.firstHour = std::min(frame.firstHour, minute / minutesPerHour);
            frame.lastHour = std::max(frame.lastHour, std::min(endHour, hoursPerDay));
        }
    return frame.dayCount() > 0 ? frame : Frame{0, days - 1, frame.firstHour, frame.lastHour};
}

class Drawing {
public:
    Drawing(Date monday, Frame frame, std::size_t weeks)
        : monday_(monday)
        , frame_(frame)
        , dayWidth_(std::clamp(widthOfDays / (frame.dayCount() * static_cast<int>(std::max<std::size_t>(weeks, 1))),
              narrowestDay, widestDay))
    {
    }

    void text(int left, int bottom, const char* look, TextView words)
    {
        out_ << "  <text x=\"" << left << "\" y=\"" << bottom << "\" " << look << '>' << escaped(words) << "</text>\n";
    }

    void week(const Week& week, int left, int top)
    {
        left_ = left;
        text(left + hourColumn, top + captionHeight - captionDrop, R"(font-weight="600" fill="#1a202c")", week.caption);
        grid(top + captionHeight);
        for (const WeekEntry& entry : week.entries)
            this->entry(entry, top + captionHeight + dayNameHeight);
    }

    [[nodiscard]] int weekWidth() const { return hourColumn + frame_.dayCount() * dayWidth_ + gap; }
    [[nodiscard]] int weekHeight() const { return captionHeight + dayNameHeight + frame_.height(); }
    [[nodiscard]] std::string result() const { return out_.str(); }

private:
    void dayName(int day, int bottom)
    {
        const DateFields date = monday_.plusMinutes(secondsPerDay / secondsPerMinute * day).fields();
        const std::string name = std::string{dayNames.at(static_cast<std::size_t>(day))} + " "
            + std::to_string(date.day) + " " + monthNames.at(static_cast<std::size_t>(date.month - 1));
        text(leftOf(day) + 2 * inset, bottom, R"(fill="#4a5568")", fromUtf8(name));
    }

    void grid(int top)
    {
        const int bodyTop = top + dayNameHeight;
        out_ << "  <rect x=\"" << leftOf(frame_.firstDay) << "\" y=\"" << bodyTop << "\" width=\""
             << frame_.dayCount() * dayWidth_ << "\" height=\"" << frame_.height()
             << "\" fill=\"#ffffff\" stroke=\"#cbd5e0\"/>\n";
        for (int day = frame_.firstDay; day <= frame_.lastDay; ++day) {
            dayName(day, top + dayNameHeight - 3 * inset);
            line(leftOf(day), bodyTop, leftOf(day), bodyTop + frame_.height());
        }
        for (int hour = frame_.firstHour; hour < frame_.lastHour; ++hour) {
            const int lineTop = bodyTop + (hour - frame_.firstHour) * hourHeight;
            text(left_ + 2 * inset, lineTop + baseline, R"(fill="#718096")", fromUtf8(std::to_string(hour) + ":00"));
            line(leftOf(frame_.firstDay), lineTop, leftOf(frame_.lastDay + 1), lineTop);
        }
    }

    void line(int left, int top, int right, int bottom)
    {
        out_ << "  <path d=\"M" << left << ' ' << top << 'L' << right << ' ' << bottom
             << "\" stroke=\"#e2e8f0\" fill=\"none\"/>\n";
    }

    void entry(const WeekEntry& entry, int bodyTop)
    {
        const std::int64_t seconds = secondsBetween(monday_, entry);
        if (!isInWeek(seconds))
            return;
        const int day = static_cast<int>(seconds / secondsPerDay);
        const int begin
            = static_cast<int>(seconds % secondsPerDay / secondsPerMinute) - frame_.firstHour * minutesPerHour;
        // What goes on past midnight ends at the foot of its day.
        const int end = std::min(begin + entry.minutes, frame_.minutes());
        const int top = bodyTop + begin * hourHeight / minutesPerHour;
        const int height = std::max(bodyTop + end * hourHeight / minutesPerHour - top - 1, smallestHeight);
        out_ << "  <rect x=\"" << leftOf(day) + inset << "\" y=\"" << top << "\" width=\"" << dayWidth_ - 2 * inset
             << "\" height=\"" << height << R"(" rx="2" )" << lookOf(entry.tone) << "/>\n";
        if (height >= lineHeight && entry.tone != Tone::Left)
            text(leftOf(day) + 3 * inset, top + baseline,
                entry.tone == Tone::Told ? R"(fill="#742a2a" font-size="9")" : R"(fill="#1a365d" font-size="9")",
                fitting(entry.subject, dayWidth_ - 6 * inset));
    }

    static const char* lookOf(Tone tone)
    {
        switch (tone) {
        case Tone::Told:
            return R"(fill="#feb2b2" stroke="#c53030")";
        case Tone::Left:
            return R"(fill="none" stroke="#c53030" stroke-dasharray="4 3")";
        case Tone::Plain:
            break;
        }
        return R"(fill="#bee3f8" stroke="#90cdf4")";
    }

    [[nodiscard]] int leftOf(int day) const { return left_ + hourColumn + (day - frame_.firstDay) * dayWidth_; }

    Date monday_;
    Frame frame_;
    int dayWidth_;
    int left_ = margin;
    std::ostringstream out_;
};

} // namespace

std::string weekPicture(const Text& title, Date monday, const std::vector<Week>& weeks)
{
    Drawing drawing{monday, frameOf(monday, weeks), weeks.size()};
    drawing.text(
        margin + hourColumn, titleHeight - titleDrop, R"(font-size="16" font-weight="600" fill="#2b6cb0")", title);
    int left = margin;
    for (const Week& week : weeks) {
        drawing.week(week, left, titleHeight);
        left += drawing.weekWidth();
    }
    const std::string size = "width=\"" + std::to_string(left + margin) + "\" height=\""
        + std::to_string(titleHeight + drawing.weekHeight() + margin) + "\"";
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" " + size
        + " font-family=\"Segoe UI, DejaVu Sans, sans-serif\" font-size=\"11\">\n  <rect " + size
        + " fill=\"#fbfbf8\"/>\n" + drawing.result() + "</svg>\n";
}

} // namespace rf::demo
