#include "host/restriction_plan.h"

#include "basic/pattern_regional.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <random>

namespace rf::host {

// GoogleTest finds it by the namespace of the type.
void PrintTo(const TimeWindow& window, std::ostream* out)
{
    for (const Date date : {window.from, window.to}) {
        const DateFields fields = date.fields();
        *out << fields.year << '-' << fields.month << '-' << fields.day << ' ' << fields.hour << ':' << fields.minute
             << ':' << fields.second << (date == window.from ? " to " : "");
    }
}

namespace {

const PatternRegional& englishDates()
{
    static const PatternRegional regional{englishSettings()};
    return regional;
}

constexpr int year = 2001;

Date timeOfDay(int hour, int minute = 0, int second = 0)
{
    return Date::fromFields({.year = year, .month = 2, .day = 1, .hour = hour, .minute = minute, .second = second});
}

/// From an hour to the last second of the minute that begins at the other.
TimeWindow hours(int from, int to) { return {timeOfDay(from), timeOfDay(to, 0, 59)}; }

std::vector<FieldDefinition> folderFields() { return {{u"OCID", 1}, {u"Guests", 3}, {u"Seen", 5}}; }

/// A digit behind @ stands for that hour of 1 February 2001.
Restriction parsed(TextView text)
{
    Text full;
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (text[place] == u'@') {
            full += u"'2/1/2001 " + Text(1, text[++place]) + u":00'";
        } else {
            full += text[place];
        }
    }
    return Restriction::parse(full, folderFields(), englishDates());
}

std::optional<TimeWindows> windowsOf(TextView text)
{
    const auto found = plan(parsed(text));
    if (!found || !std::holds_alternative<TimeWindows>(*found)) {
        return std::nullopt;
    }
    return std::get<TimeWindows>(*found);
}

using Windows = std::optional<TimeWindows>;

TEST(Plan, OfTheOverlapFilterIsOneWindow)
{
    EXPECT_EQ(
        windowsOf(u"([Start] >= @2 and [Start] < @5)or ([End] > @2 and [End] <= @5)  or ([Start] < @2 and [End] >= "
                  u"@5)"),
        (Windows{{hours(2, 5)}}));
}

TEST(Plan, OfTheOverlapFilterForAnEmptyIntervalIsItsMinute)
{
    EXPECT_EQ(
        windowsOf(u"([Start] >= @2 and [Start] < @2)or ([End] > @2 and [End] <= @2)  or ([Start] < @2 and [End] >= "
                  u"@2)"),
        (Windows{{hours(2, 2)}}));
}

TEST(Plan, OfAStartInsideAnIntervalIsTheInterval)
{
    EXPECT_EQ(windowsOf(u"[Start] >= @2 and [Start] < @5"), (Windows{{{timeOfDay(2), timeOfDay(4, 59, 59)}}}));
    EXPECT_EQ(windowsOf(u"[Start] > @2 and [Start] <= @5"), (Windows{{{timeOfDay(2, 1), timeOfDay(5, 0, 59)}}}));
    EXPECT_EQ(windowsOf(u"[Start] = @2"), (Windows{{hours(2, 2)}}));
}

TEST(Plan, OfAnEndInsideAnIntervalIsTheInterval)
{
    EXPECT_EQ(windowsOf(u"[End] > @2 and [End] <= @5"), (Windows{{{timeOfDay(2, 1), timeOfDay(5, 0, 59)}}}));
    EXPECT_EQ(windowsOf(u"[End] = @2"), (Windows{{hours(2, 2)}}));
}

TEST(Plan, OfTwoIntervalsThatOverlapIsTheirCommonPart)
{
    EXPECT_EQ(windowsOf(u"[Start] < @5 and [End] > @2"), (Windows{{{timeOfDay(2, 1), timeOfDay(4, 59, 59)}}}));
}

TEST(Plan, OfItemsThatCoverAnIntervalIsAMinuteOfIt)
{
    EXPECT_EQ(windowsOf(u"[Start] < @2 and [End] >= @5"), (Windows{{hours(5, 5)}}));
}

TEST(Plan, IsOpenOnOneSideWhereTheConditionIs)
{
    EXPECT_EQ(windowsOf(u"[Start] >= @2"), (Windows{{{timeOfDay(2), lastDate()}}}));
    EXPECT_EQ(windowsOf(u"[End] >= @2"), (Windows{{{timeOfDay(2), lastDate()}}}));
    EXPECT_EQ(windowsOf(u"[Start] <= @2"), (Windows{{{firstDate, timeOfDay(2, 0, 59)}}}));
    EXPECT_EQ(windowsOf(u"[End] <= @2"), (Windows{{{firstDate, timeOfDay(2, 0, 59)}}}));
}

TEST(Plan, OfAlternativesHasAWindowForEach)
{
    EXPECT_EQ(windowsOf(u"[Start] = @5 or [Start] = @2"), (Windows{{hours(2, 2), hours(5, 5)}}));
    EXPECT_EQ(windowsOf(u"[Start] < @2 or [Start] > @5"),
        (Windows{{{firstDate, timeOfDay(1, 59, 59)}, {timeOfDay(5, 1), lastDate()}}}));
}

TEST(Plan, JoinsWindowsThatTouch)
{
    EXPECT_EQ(
        windowsOf(u"[Start] >= @2 and [Start] < @5 or [Start] >= @5 and [Start] <= @8"), (Windows{{hours(2, 8)}}));
}

TEST(Plan, TurnsNegationsAround)
{
    EXPECT_EQ(windowsOf(u"not ([Start] < @2 or [Start] > @5)"), (Windows{{hours(2, 5)}}));
    EXPECT_EQ(windowsOf(u"not not [Start] = @2"), (Windows{{hours(2, 2)}}));
    EXPECT_EQ(windowsOf(u"not [Start] <> @2"), (Windows{{hours(2, 2)}}));
    EXPECT_EQ(windowsOf(u"not ([Start] >= @2 and [Subject] <> 'x') and not [Start] < @2"),
        (Windows{{{timeOfDay(2), lastDate()}}}));
}

TEST(Plan, CarriesTheBoundsAroundAlternativesIntoThem)
{
    EXPECT_EQ(windowsOf(u"[Start] >= @2 and ([Start] < @3 or [Start] = @5)"),
        (Windows{{{timeOfDay(2), timeOfDay(2, 59, 59)}, hours(5, 5)}}));
}

// An item from 1 to 9 meets both windows and has no moment that the two share.
TEST(Plan, DoesNotCutTheWindowsOfTwoConditionsWithEachOther)
{
    EXPECT_EQ(windowsOf(u"([Start] = @1 or [Start] = @2) and ([End] = @7 or [End] = @8 or [End] = @9)"),
        (Windows{{hours(1, 1), hours(2, 2)}}));
}

TEST(Plan, HasNoWindowWhereNothingCanMatch)
{
    EXPECT_EQ(windowsOf(u"[Start] > @5 and [Start] < @2"), Windows{TimeWindows{}});
    EXPECT_EQ(windowsOf(u"[Start] > @5 and [End] < @2"), Windows{TimeWindows{}});
    EXPECT_EQ(windowsOf(u"[Start] > @5 and [Start] < @2 or [Start] = @3"), (Windows{{hours(3, 3)}}));
}

TEST(Plan, IsNoneWhereNoIndexHelps)
{
    for (const TextView text : {u"[Size] = 1", u"[Start] <> @2", u"[Start] = @2 or [Size] = 1",
             u"[Start] < @5 or [Start] > @2", u"[Subject] <> 'x'", u"[Subject] > 'x'", u"[CreationTime] = @2",
             u"[Seen] = @2", u"[Location] = 'x'", u"[Guests] = 1", u"not [Subject] = 'x'", u"[OCID] = ''",
             u"[OCID] <> 'x'", u"[Subject] = 'x' or [Subject] = 'y'"}) {
        EXPECT_FALSE(plan(parsed(text))) << toUtf8(text);
    }
}

TEST(Plan, IgnoresWhatItDoesNotKnowBesideABound)
{
    EXPECT_EQ(
        windowsOf(u"[Start] = @2 and [Size] = 1 and ([Location] = 'x' or [Location] = 'y')"), (Windows{{hours(2, 2)}}));
}

TEST(Plan, TakesTheTextOfAUserPropertyFirst)
{
    for (const TextView text : {u"[ocid] = 'A''b'", u"[OCID] = 'A''b' and [Subject] = 'x' and [Start] = @2",
             u"not ([OCID] <> 'A''b' or [Size] = 1)"}) {
        const auto found = plan(parsed(text));
        ASSERT_TRUE(found && std::holds_alternative<PropertyEquality>(*found)) << toUtf8(text);
        EXPECT_EQ(std::get<PropertyEquality>(*found).name, u"OCID");
        EXPECT_EQ(std::get<PropertyEquality>(*found).text, u"A'b");
    }
}

TEST(Plan, TakesTheSubjectWhereTimeIsNotBoundedOnBothSides)
{
    for (const TextView text : {u"[Subject] = 'Big Hall'", u"[Subject] = 'Big Hall' and [Start] > @2",
             u"[Size] > 1 and ([Size] < 5 and [Subject] = 'Big Hall')"}) {
        const auto found = plan(parsed(text));
        ASSERT_TRUE(found && std::holds_alternative<SubjectEquality>(*found)) << toUtf8(text);
        EXPECT_EQ(std::get<SubjectEquality>(*found).subject, u"Big Hall");
    }
    EXPECT_EQ(windowsOf(u"[Subject] = 'x' and [Start] = @2"), (Windows{{hours(2, 2)}}));
}

TEST(Plan, ForOccurrencesIsByTimeAlone)
{
    EXPECT_EQ(planWindows(parsed(u"[OCID] = 'a' and [Start] = @2")), (Windows{{hours(2, 2)}}));
    EXPECT_EQ(planWindows(parsed(u"[Subject] = 'a'")), std::nullopt);
}

/// Random restrictions and items that lie close enough together to match now and then.
class RandomWorld {
public:
    [[nodiscard]] Text condition(int depth)
    {
        const auto choice = random_() % 10;
        if (depth == 0 || choice < 3) {
            return comparison();
        }
        if (choice < 5) {
            return u"not (" + condition(depth - 1) + u")";
        }
        const TextView word = choice < 8 ? TextView{u" and "} : TextView{u" or "};
        Text text = u"(" + condition(depth - 1) + u")";
        for (auto more = 1 + random_() % 3; more > 0; --more) {
            text.append(word).append(u"(" + condition(depth - 1) + u")");
        }
        return text;
    }

    [[nodiscard]] ItemRecord item()
    {
        ItemRecord item;
        const auto start = static_cast<std::int64_t>(random_() % (9 * 3600));
        item.start = Date::fromSeconds(timeOfDay(0).seconds() + start);
        const std::int64_t lengths[] = {0, 30, 59, 60, 1800, 3600, 4 * 3600};
        item.end = Date::fromSeconds(item.start.seconds() + lengths[random_() % std::size(lengths)]);
        item.subject = random_() % 2 == 0 ? u"X" : u"y";
        if (random_() % 2 == 0) {
            item.userProperties = {{u"OCID", 1, random_() % 2 == 0 ? u"a" : u""}};
        }
        return item;
    }

private:
    [[nodiscard]] Text comparison()
    {
        const TextView signs[] = {u"=", u"<>", u"<", u"<=", u">", u">="};
        const TextView sign = signs[random_() % std::size(signs)];
        switch (random_() % 8) {
        case 0:
            return Text{u"[Subject] "}.append(sign).append(u" 'x'");
        case 1:
            return Text{u"[OCID] "}.append(sign).append(random_() % 3 == 0 ? u" ''" : u" 'A'");
        default:
            const TextView field = random_() % 2 == 0 ? u"[Start] " : u"[End] ";
            return Text{field}.append(sign).append(u" @") + decimal(static_cast<long long>(random_() % 10));
        }
    }

    std::mt19937 random_{11};
};

bool covers(const TimeWindows& windows, const ItemRecord& item)
{
    return std::any_of(windows.begin(), windows.end(), [&](const TimeWindow& window) {
        return item.start.seconds() <= window.to.seconds() && item.end.seconds() >= window.from.seconds();
    });
}

bool covers(const Plan& plan, const ItemRecord& item)
{
    if (const auto* windows = std::get_if<TimeWindows>(&plan)) {
        return covers(*windows, item);
    }
    if (const auto* subject = std::get_if<SubjectEquality>(&plan)) {
        return equalIgnoringCase(subject->subject, item.subject);
    }
    const auto& wanted = std::get<PropertyEquality>(plan);
    return std::any_of(item.userProperties.begin(), item.userProperties.end(), [&](const UserPropertyRecord& property) {
        return property.name == wanted.name && equalIgnoringCase(property.value.text(), wanted.text);
    });
}

bool isOrdered(const TimeWindows& windows)
{
    for (std::size_t index = 0; index < windows.size(); ++index) {
        if (windows[index].to < windows[index].from || (index > 0 && windows[index].from <= windows[index - 1].to)) {
            return false;
        }
    }
    return true;
}

TEST(Plan, LosesNoItemThatMatches)
{
    RandomWorld world;
    int matched = 0;
    int windowPlans = 0;
    for (int round = 0; round < 1500; ++round) {
        const Text text = world.condition(3);
        const Restriction restriction = parsed(text);
        const auto found = plan(restriction);
        const auto windows = planWindows(restriction);
        EXPECT_TRUE(!windows || isOrdered(*windows)) << toUtf8(text);
        windowPlans += windows ? 1 : 0;
        for (int count = 0; count < 20; ++count) {
            const ItemRecord item = world.item();
            if (!restriction.matches(item)) {
                continue;
            }
            ++matched;
            ASSERT_TRUE(!found || covers(*found, item)) << toUtf8(text);
            ASSERT_TRUE(!windows || covers(*windows, item)) << toUtf8(text);
        }
    }
    EXPECT_GT(matched, 3000);
    EXPECT_GT(windowPlans, 300);
}

} // namespace
} // namespace rf::host
