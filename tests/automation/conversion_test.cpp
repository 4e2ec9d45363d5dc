#include "automation/conversion.h"

#include "automation/room.h"
#include "basic/amount.h"
#include "basic/error_of.h"
#include "basic/pattern_regional.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>

namespace rf::automation {

namespace {

using test::amount;
using test::errorOf;

constexpr Date february{36923};
constexpr Date februaryMorning{36923.25};

/// The numbers of the errors with which the conversions answer, 0 for a value.
std::vector<std::int32_t> errorsOfConversions(const Regional& regional, const Variant& value)
{
    return {
        errorOf([&] { return toText(regional, value); }),
        errorOf([&] { return toInteger(regional, value); }),
        errorOf([&] { return toLong(regional, value); }),
        errorOf([&] { return toDouble(regional, value); }),
        errorOf([&] { return toCurrency(regional, value); }),
        errorOf([&] { return toDate(regional, value); }),
        errorOf([&] { return toBoolean(regional, value); }),
    };
}

/// The line that a failing conversion names.
template <class Convert>
std::uint_least32_t placeOf(Convert&& convert)
{
    try {
        static_cast<void>(convert());
    } catch (const RuntimeError& error) {
        return error.where().line();
    }
    return 0;
}

} // namespace

class VariantConversion : public testing::Test {
protected:
    const PatternRegional english_{englishSettings()};
    const PatternRegional german_{germanSettings()};
    const std::vector<const Regional*> both_{&english_, &german_};
};

TEST_F(VariantConversion, WritesEveryKindAsTheUserDoes)
{
    struct Row {
        Variant value;
        Text english;
        Text german;
    };
    for (const auto& row : std::vector<Row>{
             {{}, u"", u""},
             {true, u"True", u"True"},
             {false, u"False", u"False"},
             {std::uint8_t{200}, u"200", u"200"},
             {std::int16_t{-7}, u"-7", u"-7"},
             {1234567, u"1234567", u"1234567"},
             {1.5F, u"1.5", u"1,5"},
             {0.1F, u"0.1", u"0,1"},
             {-0.25, u"-0.25", u"-0,25"},
             {amount(12345000), u"1234.5", u"1234,5"},
             {february, u"2/1/2001", u"01.02.2001"},
             {februaryMorning, u"2/1/2001 6:00:00 AM", u"01.02.2001 06:00:00"},
             {Date{0.25}, u"6:00:00 AM", u"06:00:00"},
             {u" 1,5 ", u" 1,5 ", u" 1,5 "},
         }) {
        EXPECT_EQ(toText(english_, row.value), row.english);
        EXPECT_EQ(toText(german_, row.value), row.german);
    }
}

TEST_F(VariantConversion, ReadsTextsAsTheUserWritesThem)
{
    EXPECT_EQ(toDouble(german_, u"1,5"), 1.5);
    EXPECT_EQ(toDouble(english_, u"1,5"), 15);
    EXPECT_EQ(toDouble(german_, u"1.5"), 15);
    EXPECT_EQ(toDouble(english_, u"1.5"), 1.5);
    EXPECT_EQ(toCurrency(german_, u"1,5"), amount(15000));
    EXPECT_EQ(toCurrency(english_, u"1,5"), amount(150000));
    EXPECT_EQ(toDate(german_, u"1.2.2001"), february);
    EXPECT_EQ(toDate(english_, u"2/1/2001"), february);
    EXPECT_EQ(toDate(german_, u"36923,25"), februaryMorning);
}

TEST_F(VariantConversion, RoundsTextsHalfToEven)
{
    EXPECT_EQ(toInteger(german_, u"1,5"), 2);
    EXPECT_EQ(toInteger(german_, u"2,5"), 2);
    EXPECT_EQ(toInteger(english_, u"2,5"), 25);
    EXPECT_EQ(toLong(german_, u"1,5"), 2);
    EXPECT_EQ(toLong(german_, u"2,5"), 2);
    EXPECT_EQ(toLong(english_, u"2.5"), 2);
}

TEST_F(VariantConversion, ReadsTruthOfItsWordsAndOfNumbers)
{
    for (const Regional* regional : both_) {
        EXPECT_TRUE(toBoolean(*regional, u"True"));
        EXPECT_TRUE(toBoolean(*regional, u"tRUE"));
        EXPECT_FALSE(toBoolean(*regional, u"False"));
        EXPECT_TRUE(toBoolean(*regional, u"-1"));
        EXPECT_FALSE(toBoolean(*regional, u"0"));
    }
    EXPECT_TRUE(toBoolean(german_, u"0,5"));
}

TEST_F(VariantConversion, TakesNumbersOfEveryKindWhateverTheSettings)
{
    for (const Regional* regional : both_)
        for (const Variant& three : {Variant{std::uint8_t{3}}, Variant{std::int16_t{3}}, Variant{3}, Variant{3.0F},
                 Variant{3.0}, Variant{amount(30000)}, Variant{Date{3}}, Variant{u"3"}}) {
            SCOPED_TRACE(three.value().index());
            EXPECT_EQ(toInteger(*regional, three), 3);
            EXPECT_EQ(toLong(*regional, three), 3);
            EXPECT_EQ(toDouble(*regional, three), 3);
            EXPECT_EQ(toCurrency(*regional, three), amount(30000));
            EXPECT_EQ(toDate(*regional, three), Date{3});
            EXPECT_TRUE(toBoolean(*regional, three));
        }
}

TEST_F(VariantConversion, RoundsNumbersHalfToEven)
{
    EXPECT_EQ(toInteger(english_, 0.5), 0);
    EXPECT_EQ(toInteger(english_, 1.5), 2);
    EXPECT_EQ(toLong(english_, 2.5), 2);
    EXPECT_EQ(toLong(english_, amount(-25000)), -2);
    EXPECT_EQ(toCurrency(english_, 0.00015), amount(2));
}

TEST_F(VariantConversion, TakesTruthAsMinusOne)
{
    EXPECT_EQ(toInteger(english_, true), -1);
    EXPECT_EQ(toLong(english_, true), -1);
    EXPECT_EQ(toDouble(english_, true), -1);
    EXPECT_EQ(toCurrency(english_, true), amount(-10000));
    EXPECT_EQ(toDate(english_, true), Date{-1});
    EXPECT_TRUE(toBoolean(english_, true));
    EXPECT_FALSE(toBoolean(english_, false));
}

TEST_F(VariantConversion, TakesEmptyAsTheNeutralValue)
{
    const Variant empty;
    EXPECT_EQ(toText(german_, empty), u"");
    EXPECT_EQ(toInteger(german_, empty), 0);
    EXPECT_EQ(toLong(german_, empty), 0);
    EXPECT_EQ(toDouble(german_, empty), 0);
    EXPECT_EQ(toCurrency(german_, empty), Currency{});
    EXPECT_EQ(toDate(german_, empty), Date{});
    EXPECT_FALSE(toBoolean(german_, empty));
}

TEST_F(VariantConversion, FailsWith94ForNull)
{
    EXPECT_EQ(errorsOfConversions(english_, Null{}), std::vector<std::int32_t>(7, 94));
}

TEST_F(VariantConversion, FailsWithTypeMismatchForWhatIsNoPlainValue)
{
    const std::vector<std::int32_t> mismatches(7, 13);
    EXPECT_EQ(errorsOfConversions(english_, Missing{}), mismatches);
    EXPECT_EQ(errorsOfConversions(english_, std::make_shared<test::Room>()), mismatches);
    EXPECT_EQ(errorsOfConversions(english_, std::shared_ptr<Dispatch>{}), mismatches);
    EXPECT_EQ(errorsOfConversions(english_, Array::list({1})), mismatches);
    EXPECT_EQ(errorsOfConversions(english_, Reference{}), mismatches);
}

TEST_F(VariantConversion, FailsWithTypeMismatchForATextThatDoesNotConvert)
{
    const std::vector<std::int32_t> expected{0, 13, 13, 13, 13, 13, 13};
    for (const Regional* regional : both_) {
        EXPECT_EQ(errorsOfConversions(*regional, u"soon"), expected);
        EXPECT_EQ(errorsOfConversions(*regional, u""), expected);
    }
    EXPECT_EQ(errorOf([&] { return toDouble(english_, u"1.5.2001 noon"); }), 13);
}

TEST_F(VariantConversion, OverflowsOutsideTheRange)
{
    EXPECT_EQ(errorOf([&] { return toInteger(english_, 32767.5); }), 6);
    EXPECT_EQ(errorOf([&] { return toInteger(german_, u"32767,5"); }), 6);
    EXPECT_EQ(errorOf([&] { return toLong(english_, 2147483648.0); }), 6);
    EXPECT_EQ(errorOf([&] { return toLong(english_, u"2,147,483,648"); }), 6);
    EXPECT_EQ(errorOf([&] { return toCurrency(english_, 1e15); }), 6);
    EXPECT_EQ(errorOf([&] { return toCurrency(english_, u"1E15"); }), 6);
    EXPECT_EQ(errorOf([&] { return toDate(english_, u"1E10"); }), 6);
    EXPECT_EQ(errorOf([&] { return toDate(english_, 1e10); }), 6);
    EXPECT_EQ(errorOf([&] { return toDate(english_, 2958466); }), 6);
    EXPECT_EQ(errorOf([&] { return toDate(english_, -657435); }), 6);
}

TEST_F(VariantConversion, FollowsReferences)
{
    Variant target{u"1,5"};
    Variant inner{Reference{&target}};
    const Variant outer{Reference{&inner}};
    EXPECT_EQ(toDouble(german_, outer), 1.5);
    EXPECT_EQ(toText(german_, outer), u"1,5");
    EXPECT_TRUE(isNumeric(german_, outer));
    target = february;
    EXPECT_EQ(toText(german_, outer), u"01.02.2001");
    EXPECT_TRUE(isDate(german_, outer));
    target = Null{};
    EXPECT_EQ(errorsOfConversions(german_, outer), std::vector<std::int32_t>(7, 94));
}

TEST_F(VariantConversion, NamesTheCallersLine)
{
    const auto place = Where::current();
    EXPECT_EQ(placeOf([&] { return toCurrency(english_, 1e15, place); }), place.line());
    EXPECT_EQ(placeOf([&] { return toDate(english_, 1e15, place); }), place.line());
    for (const Variant& value : {Variant{u"soon"}, Variant{Null{}}})
        for (const auto& convert : std::vector<std::function<void()>>{
                 [&] { static_cast<void>(toInteger(english_, value, place)); },
                 [&] { static_cast<void>(toLong(english_, value, place)); },
                 [&] { static_cast<void>(toDouble(english_, value, place)); },
                 [&] { static_cast<void>(toCurrency(english_, value, place)); },
                 [&] { static_cast<void>(toDate(english_, value, place)); },
                 [&] { static_cast<void>(toBoolean(english_, value, place)); },
                 [&] { static_cast<void>(toText(english_, Missing{}, place)); },
             }) {
            try {
                convert();
                ADD_FAILURE() << "nothing failed";
            } catch (const RuntimeError& error) {
                EXPECT_EQ(error.where().line(), place.line());
                EXPECT_STREQ(error.where().file_name(), __FILE__);
            }
        }
}

TEST_F(VariantConversion, TellsNumbersAndDatesFromOtherValues)
{
    struct Row {
        const char* name;
        Variant value;
        bool numeric;
        bool date;
    };
    for (const auto& row : std::vector<Row>{
             {"Empty", {}, true, false},
             {"Null", Null{}, false, false},
             {"Missing", Missing{}, false, false},
             {"truth", true, true, false},
             {"byte", std::uint8_t{1}, true, false},
             {"integer", std::int16_t{1}, true, false},
             {"long", 1, true, false},
             {"float", 1.0F, true, false},
             {"double", 1.0, true, false},
             {"money", amount(1), true, false},
             {"date", february, false, true},
             {"object", std::make_shared<test::Room>(), false, false},
             {"no object", std::shared_ptr<Dispatch>{}, false, false},
             {"array", Array::list({1}), false, false},
             {"a reference to nothing", Reference{}, false, false},
             {"a number's text", u"1,5", true, false},
             {"a hexadecimal number's text", u"&H1F", true, false},
             {"a time's text", u"10:30", false, true},
             {"a word", u"soon", false, false},
             {"a truth value's word", u"True", false, false},
             {"an empty text", u"", false, false},
         })
        for (const Regional* regional : both_) {
            SCOPED_TRACE(row.name);
            EXPECT_EQ(isNumeric(*regional, row.value), row.numeric);
            EXPECT_EQ(isDate(*regional, row.value), row.date);
        }
}

TEST_F(VariantConversion, TellsTextsApartByTheSettings)
{
    EXPECT_TRUE(isNumeric(german_, u"1,5 €"));
    EXPECT_FALSE(isNumeric(english_, u"1,5 €"));
    EXPECT_TRUE(isNumeric(english_, u"$1.5"));
    EXPECT_FALSE(isNumeric(german_, u"$1.5"));
    EXPECT_TRUE(isDate(german_, u"1. Februar 2001"));
    EXPECT_FALSE(isDate(english_, u"1 Februar 2001"));
    EXPECT_TRUE(isDate(english_, u"February 1, 2001"));
}

} // namespace rf::automation
