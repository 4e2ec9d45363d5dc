#include "host/restriction.h"

#include "basic/locales.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace rf::host {
namespace {

Date moment(int day, int hour, int minute = 0, int second = 0)
{
    return Date::fromFields({.year = 2001, .month = 2, .day = day, .hour = hour, .minute = minute, .second = second});
}

ItemRecord booking(Date start, Date end)
{
    ItemRecord item;
    item.start = start;
    item.end = end;
    return item;
}

class RestrictionTest : public ::testing::Test {
protected:
    [[nodiscard]] bool matches(TextView text) const
    {
        return Restriction::parse(text, fields_, english_).matches(item_);
    }
    [[nodiscard]] bool matches(TextView text, const ItemRecord& item) const
    {
        return Restriction::parse(text, fields_, english_).matches(item);
    }

    std::vector<FieldDefinition> fields_{{u"OCID", 1}, {u"Guests", 3}, {u"Seen", 5}, {u"Paid", 6}, {u"Cost center", 1}};
    ItemRecord item_ = booking(moment(1, 9), moment(1, 10));
    const PatternRegional english_{englishSettings()};
};

// The text of the search for overlaps, as it is sent: the spacing around "or" belongs to it.
Text overlapFilter(TextView a, TextView b)
{
    Text text = u"([Start] >= A and [Start] < B)or ([End] > A and [End] <= B)  or ([Start] < A and [End] >= B)";
    text = replaceAll(text, u" A", Text{u" \"#"}.append(a).append(u"#\""));
    return replaceAll(text, u" B", Text{u" \"#"}.append(b).append(u"#\""));
}

/// A way to write 1 February 2001, 9:30 and 14:05, and the settings under which it is meant so.
struct LiteralCase {
    const char* name;
    RegionalSettings settings;
    TextView from;
    TextView to;
};

class OverlapFilter : public ::testing::TestWithParam<LiteralCase> {
protected:
    [[nodiscard]] bool matches(Date start, Date end) const
    {
        const PatternRegional regional{GetParam().settings};
        return Restriction::parse(overlapFilter(GetParam().from, GetParam().to), {}, regional)
            .matches(booking(start, end));
    }
};

TEST_P(OverlapFilter, FindsWhatStartsInside)
{
    EXPECT_TRUE(matches(moment(1, 9, 30), moment(1, 10)));
    EXPECT_TRUE(matches(moment(1, 14, 4), moment(1, 16)));
}

TEST_P(OverlapFilter, FindsWhatEndsInside)
{
    EXPECT_TRUE(matches(moment(1, 8), moment(1, 9, 31)));
    EXPECT_TRUE(matches(moment(1, 10), moment(1, 14, 5)));
}

TEST_P(OverlapFilter, FindsWhatEncloses)
{
    EXPECT_TRUE(matches(moment(1, 8), moment(1, 16)));
    EXPECT_TRUE(matches(moment(1, 9), moment(1, 14, 5)));
}

TEST_P(OverlapFilter, LeavesOutWhatOnlyTouches)
{
    EXPECT_FALSE(matches(moment(1, 8), moment(1, 9, 30)));
    EXPECT_FALSE(matches(moment(1, 14, 5), moment(1, 15)));
}

TEST_P(OverlapFilter, LeavesOutTheSameHoursOfOtherDays)
{
    EXPECT_FALSE(matches(moment(2, 10), moment(2, 11)));
    EXPECT_FALSE(matches(Date::fromFields({.year = 2001, .month = 1, .day = 2, .hour = 10}),
        Date::fromFields({.year = 2001, .month = 1, .day = 2, .hour = 11})));
}

RegionalSettings hungarianSettings()
{
    RegionalSettings settings = germanSettings();
    settings.localeId = 1038;
    settings.dateOrder = DateOrder::YearMonthDay;
    settings.shortDatePattern = u"yyyy. MM. dd.";
    settings.dateSeparator = u". ";
    settings.amDesignator = u"de.";
    settings.pmDesignator = u"du.";
    return settings;
}

INSTANTIATE_TEST_SUITE_P(Everywhere, OverlapFilter,
    ::testing::Values(LiteralCase{"German", germanSettings(), u"2001-1-2 9:30 AM", u"2001-1-2 14:05 PM "},
        LiteralCase{"English", englishSettings(), u"2001-2-1 9:30 AM", u"2001-2-1 14:05 PM "},
        LiteralCase{"Danish", test::danishSettings(), u"2001-1-2 9:30 AM", u"2001-1-2 14:05 PM "},
        LiteralCase{"French", test::frenchSettings(), u"2001-1-2 9:30 AM", u"2001-1-2 14:05 PM "},
        LiteralCase{"Korean", test::koreanSettings(), u"2001-2-1 9:30 AM", u"2001-2-1 14:05 PM "},
        LiteralCase{"Hungarian", hungarianSettings(), u"2001-2-1 9:30 AM", u"2001-2-1 14:05 PM "}),
    [](const auto& literal) { return literal.param.name; });

TEST_F(RestrictionTest, ReadsTheOverlapFilterWithoutADatePart)
{
    const Text text = overlapFilter(u" 9:05 AM", u" 14:05 PM ");
    EXPECT_FALSE(matches(text));
    EXPECT_TRUE(matches(text, booking(Date::fromSeconds(10 * 3600), Date::fromSeconds(11 * 3600))));
}

// For each operator whether it holds of a value below, equal to and above the operand.
struct OperatorCase {
    TextView sign;
    bool below;
    bool equal;
    bool above;
};

constexpr OperatorCase operators[] = {{u"=", false, true, false}, {u"<>", true, false, true},
    {u"<", true, false, false}, {u"<=", true, true, false}, {u">", false, false, true}, {u">=", false, true, true}};

// For each kind a field, an operand and items with a value below, equal to and above it.
struct KindCase {
    const char* name;
    TextView field;
    TextView operand;
    void (*below)(ItemRecord&);
    void (*equal)(ItemRecord&);
    void (*above)(ItemRecord&);
};

class EveryOperator : public ::testing::TestWithParam<KindCase> { };

TEST_P(EveryOperator, ComparesTheKind)
{
    const auto& [name, field, operand, below, equal, above] = GetParam();
    const std::vector<FieldDefinition> fields{{u"OCID", 1}, {u"Guests", 3}, {u"Seen", 5}, {u"Paid", 6}};
    const PatternRegional english{englishSettings()};
    const auto valueOf = [](void (*prepare)(ItemRecord&)) {
        ItemRecord item;
        prepare(item);
        return item;
    };
    for (const auto& [sign, whenBelow, whenEqual, whenAbove] : operators) {
        const Text text = Text{u"["}.append(field).append(u"] ").append(sign).append(u" ").append(operand);
        const Restriction restriction = Restriction::parse(text, fields, english);
        SCOPED_TRACE(toUtf8(text));
        EXPECT_EQ(restriction.matches(valueOf(below)), whenBelow);
        EXPECT_EQ(restriction.matches(valueOf(equal)), whenEqual);
        EXPECT_EQ(restriction.matches(valueOf(above)), whenAbove);
    }
}

constexpr auto noChange = [](ItemRecord&) {};

INSTANTIATE_TEST_SUITE_P(OfAField, EveryOperator,
    ::testing::Values(
        KindCase{"Text", u"Subject", u"'Mid'", [](ItemRecord& item) { item.subject = u"LOW"; },
            [](ItemRecord& item) { item.subject = u"mID"; }, [](ItemRecord& item) { item.subject = u"middle"; }},
        KindCase{"Number", u"Size", u"100", [](ItemRecord& item) { item.size = 99; },
            [](ItemRecord& item) { item.size = 100; }, [](ItemRecord& item) { item.size = 1000; }},
        KindCase{"Date", u"Start", u"'2/1/2001 9:00 AM'", [](ItemRecord& item) { item.start = moment(1, 8, 59, 59); },
            [](ItemRecord& item) { item.start = moment(1, 9); },
            [](ItemRecord& item) { item.start = moment(1, 9, 1); }},
        KindCase{"UserText", u"OCID", u"'b'", noChange,
            [](ItemRecord& item) {
                item.userProperties = {{u"OCID", 1, u"B"}};
            },
            [](ItemRecord& item) {
                item.userProperties = {{u"OCID", 1, u"c"}};
            }},
        KindCase{"UserNumber", u"Guests", u"1.5", noChange,
            [](ItemRecord& item) {
                item.userProperties = {{u"Guests", 3, 1.5}};
            },
            [](ItemRecord& item) {
                item.userProperties = {{u"Guests", 3, std::int32_t{2}}};
            }},
        KindCase{"UserDate", u"Seen", u"'2/1/2001'",
            [](ItemRecord& item) {
                item.userProperties = {{u"Seen", 5, Date{}}};
            },
            [](ItemRecord& item) {
                item.userProperties = {{u"Seen", 5, moment(1, 0)}};
            },
            noChange}),
    [](const auto& kind) { return kind.param.name; });

TEST_F(RestrictionTest, ComparesYesAndNo)
{
    item_.allDay = true;
    EXPECT_TRUE(matches(u"[AllDayEvent] = True"));
    EXPECT_FALSE(matches(u"[AllDayEvent] <> True"));
    EXPECT_FALSE(matches(u"[AllDayEvent] = False"));
    EXPECT_TRUE(matches(u"[AllDayEvent] <> False"));
    EXPECT_TRUE(matches(u"[AllDayEvent] > False"));
    EXPECT_TRUE(matches(u"[AllDayEvent] >= True"));
    EXPECT_FALSE(matches(u"[AllDayEvent] < True"));
    EXPECT_TRUE(matches(u"[AllDayEvent] <= True"));
    item_.userProperties = {{u"Paid", 6, true}};
    EXPECT_TRUE(matches(u"[Paid] = True"));
    EXPECT_FALSE(matches(u"[Paid] = False"));
}

TEST_F(RestrictionTest, ReadsEveryWordForYesAndNo)
{
    item_.allDay = true;
    for (const TextView yes : {u"True", u"TRUE", u"yes", u"On", u"1", u"-1", u"'x'", u"'False'"}) {
        EXPECT_TRUE(matches(Text{u"[AllDayEvent] = "}.append(yes))) << toUtf8(yes);
    }
    for (const TextView no : {u"False", u"false", u"No", u"off", u"0", u"''", u"\"\""}) {
        EXPECT_FALSE(matches(Text{u"[AllDayEvent] = "}.append(no))) << toUtf8(no);
    }
}

TEST_F(RestrictionTest, ComparesTextsWithoutRegardToCase)
{
    item_.subject = u"Große ÄRZTE-Runde";
    EXPECT_TRUE(matches(u"[Subject] = 'GROßE ärzte-rUNDE'"));
    EXPECT_FALSE(matches(u"[Subject] <> 'GROßE ärzte-rUNDE'"));
    EXPECT_FALSE(matches(u"[Subject] = 'Große Ärzte-Runde '"));
}

TEST_F(RestrictionTest, ComparesCategoriesAsOneText)
{
    item_.categories = u"Alpha, Beta";
    EXPECT_TRUE(matches(u"[Categories] = 'alpha, beta'"));
    EXPECT_FALSE(matches(u"[Categories] = 'Alpha'"));
    EXPECT_TRUE(matches(u"[Categories] <> 'Alpha'"));
}

TEST_F(RestrictionTest, KeepsHalfASurrogatePair)
{
    item_.subject = Text{u"a"} + char16_t{0xD83D};
    EXPECT_TRUE(matches(u"[Subject] = '" + item_.subject + u"'"));
    EXPECT_FALSE(matches(u"[Subject] = 'a'"));
}

TEST_F(RestrictionTest, FindsACopyByItsLink)
{
    item_.userProperties = {{u"OCID", 1, u"2007-3-5:9.4.17_Jane Smith"}};
    EXPECT_TRUE(matches(u"[OCID] = '2007-3-5:9.4.17_Jane Smith'"));
    EXPECT_FALSE(matches(u"[OCID] = '2007-3-5:9.4.18_Jane Smith'"));
}

TEST_F(RestrictionTest, NamesAFieldInBracketsOfSeveralWords)
{
    item_.userProperties = {{u"Cost center", 1, u"42"}};
    EXPECT_TRUE(matches(u"[cost CENTER] = '42'"));
}

TEST_F(RestrictionTest, TakesABuiltInFieldWithoutBrackets)
{
    item_.subject = u"x";
    EXPECT_TRUE(matches(u"Subject='x'"));
    EXPECT_TRUE(matches(u"start>='2/1/2001'and end<'2/2/2001'"));
}

TEST_F(RestrictionTest, LeavesTheSecondsOfBothSidesOut)
{
    const ItemRecord item = booking(moment(1, 9, 0, 30), moment(1, 10));
    EXPECT_TRUE(matches(u"[Start] = '2/1/2001 9:00 AM'", item));
    EXPECT_FALSE(matches(u"[Start] > '2/1/2001 9:00 AM'", item));
    EXPECT_TRUE(matches(u"[Start] <= '2/1/2001 9:00 AM'", item));
    EXPECT_TRUE(matches(u"[Start] = '2/1/2001 9:00:59 AM'", item));
    EXPECT_FALSE(matches(u"[Start] < '2/1/2001 9:00:59 AM'", item));
    EXPECT_TRUE(matches(u"[Start] < '2/1/2001 9:01 AM'", item));
}

TEST_F(RestrictionTest, ReadsADateWithAndWithoutItsHashes)
{
    EXPECT_TRUE(matches(u"[Start] = \"#2001-2-1 9:00 AM#\""));
    EXPECT_TRUE(matches(u"[Start] = '# 2001-2-1 9:00 AM #'"));
    EXPECT_TRUE(matches(u"[Start] = ' #2001-2-1 9:00 AM# '"));
    EXPECT_TRUE(matches(u"[Start] = 'Feb 1, 2001 9:00 AM'"));
}

TEST_F(RestrictionTest, ReadsATimeAloneAsThatOfTheZeroDate)
{
    const ItemRecord item = booking(Date::fromSeconds((14 * 60 + 5) * 60), moment(1, 10));
    EXPECT_TRUE(matches(u"[Start] = \"# 14:05 PM #\"", item));
    EXPECT_FALSE(matches(u"[Start] = \"# 14:05 PM #\""));
}

TEST_F(RestrictionTest, FindsItemsThatHaveNoDate)
{
    EXPECT_TRUE(matches(u"[CreationTime] = '1/1/4501'"));
    EXPECT_TRUE(matches(u"[Seen] = '1/1/4501'"));
    EXPECT_FALSE(matches(u"[Seen] < '1/1/2100'"));
}

TEST_F(RestrictionTest, TakesQuotesInsideATextDoubled)
{
    item_.subject = u"O'Brien's \"room\"";
    EXPECT_TRUE(matches(u"[Subject] = 'O''Brien''s \"room\"'"));
    EXPECT_TRUE(matches(u"[Subject] = \"O'Brien's \"\"room\"\"\""));
    item_.subject = u"'";
    EXPECT_TRUE(matches(u"[Subject] = ''''"));
    item_.subject = u"";
    EXPECT_TRUE(matches(u"[Subject] = ''"));
}

TEST_F(RestrictionTest, TakesTheWordsOfTheLanguageInsideATextAsText)
{
    item_.subject = u"a) or ([b] = # and not";
    EXPECT_TRUE(matches(u"[Subject] = 'a) or ([b] = # and not'"));
}

TEST_F(RestrictionTest, ReadsNumbersAsProgramsAndAsPeopleWriteThem)
{
    item_.userProperties = {{u"Guests", 3, -1234.5}};
    EXPECT_TRUE(matches(u"[Guests] = -1234.5"));
    EXPECT_TRUE(matches(u"[Guests] = -1.2345e3"));
    EXPECT_TRUE(matches(u"[Guests] = '-1,234.5'"));
    const PatternRegional german{germanSettings()};
    EXPECT_TRUE(Restriction::parse(u"[Guests] = '-1.234,5'", fields_, german).matches(item_));
    EXPECT_TRUE(Restriction::parse(u"[Guests] = -1234.5", fields_, german).matches(item_));
}

TEST_F(RestrictionTest, BindsAndStrongerThanOr)
{
    item_.subject = u"x";
    EXPECT_TRUE(matches(u"[Subject] = 'x' or [Size] = 1 and [Size] = 2"));
    EXPECT_TRUE(matches(u"[Size] = 1 and [Size] = 2 or [Subject] = 'x'"));
    EXPECT_FALSE(matches(u"([Subject] = 'x' or [Size] = 1) and [Size] = 2"));
}

TEST_F(RestrictionTest, BindsNotStrongerThanAnd)
{
    item_.subject = u"x";
    EXPECT_FALSE(matches(u"not [Subject] = 'y' and [Size] = 1"));
    EXPECT_TRUE(matches(u"not ([Subject] = 'y' and [Size] = 1)"));
    EXPECT_FALSE(matches(u"not [Subject] = 'x' or [Size] = 1"));
    EXPECT_FALSE(matches(u"NOT ([Subject] = 'x' OR [Size] = 1)"));
    EXPECT_TRUE(matches(u"not not [Subject] = 'x'"));
    EXPECT_FALSE(matches(u"not not not [Subject] = 'x'"));
}

TEST_F(RestrictionTest, NeedsNoBlanksBesideParenthesesQuotesAndBrackets)
{
    item_.subject = u"x";
    EXPECT_TRUE(matches(u"([Size]=1)or([Subject]='x')and not([Size]=1)"));
    EXPECT_TRUE(matches(u"[Subject]='x'and[Size]=0"));
    EXPECT_TRUE(matches(u"\t( [Subject]\r\n= 'x' ) "));
}

TEST_F(RestrictionTest, TakesAMissingPropertyAsItsEmptyValue)
{
    EXPECT_TRUE(matches(u"[OCID] = ''"));
    EXPECT_FALSE(matches(u"[OCID] <> ''"));
    EXPECT_FALSE(matches(u"[OCID] = 'a'"));
    EXPECT_TRUE(matches(u"[OCID] <> 'a'"));
    EXPECT_TRUE(matches(u"[Guests] = 0"));
    EXPECT_TRUE(matches(u"[Paid] = False"));
}

TEST_F(RestrictionTest, SurvivesItemsWithoutSensibleDates)
{
    constexpr double odd[]
        = {1e300, -1e300, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), 2958466.0};
    for (const double days : odd) {
        const ItemRecord item = booking(Date{days}, Date{-days});
        EXPECT_NO_THROW(
            static_cast<void>(matches(u"[Start] < '2/1/2001' or [End] = '2/1/2001' or [Duration] > 5", item)));
    }
}

TEST_F(RestrictionTest, OutlivesTheFieldsOfItsFolder)
{
    auto fields = std::make_unique<std::vector<FieldDefinition>>(fields_);
    const Restriction restriction = Restriction::parse(u"[Cost center] = '42'", *fields, english_);
    fields.reset();
    item_.userProperties = {{u"Cost center", 1, u"42"}};
    EXPECT_TRUE(restriction.matches(item_));
}

} // namespace
} // namespace rf::host
