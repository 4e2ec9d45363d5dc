#include "automation/variant.h"

#include "automation/object.h"
#include "automation/room.h"
#include "basic/amount.h"
#include "basic/error_of.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <map>
#include <string>
#include <type_traits>

namespace rf::automation {

namespace {

using test::amount;
using test::errorOf;
using test::Room;

Variant someRoom() { return std::make_shared<Room>(); }

Variant someArray() { return Array::list({1, 2}); }

/// The numbers of the errors with which the readers answer, 0 for a value.
std::map<std::string, std::int32_t> errorsOfReaders(const Variant& value)
{
    return {
        {"text", errorOf([&] { return value.text(); })},
        {"boolean", errorOf([&] { return value.boolean(); })},
        {"integer16", errorOf([&] { return value.integer16(); })},
        {"integer32", errorOf([&] { return value.integer32(); })},
        {"number", errorOf([&] { return value.number(); })},
        {"currency", errorOf([&] { return value.currency(); })},
        {"date", errorOf([&] { return value.date(); })},
        {"dispatch", errorOf([&] { return value.dispatch(); })},
        {"array", errorOf([&] { return value.array(); })},
    };
}

/// The readers that do not fail, all others failing with that number.
void expectReaders(const Variant& value, const std::vector<std::string>& succeeding, std::int32_t number)
{
    for (const auto& [reader, error] : errorsOfReaders(value)) {
        const bool succeeds = std::ranges::find(succeeding, reader) != succeeding.end();
        EXPECT_EQ(error, succeeds ? 0 : number) << reader;
    }
}

std::vector<std::string> numericReaders()
{
    return {"boolean", "integer16", "integer32", "number", "currency", "date"};
}

} // namespace

TEST(VariantKind, IsThatOfTheValueItIsMadeOf)
{
    EXPECT_TRUE(Variant{}.isEmpty());
    EXPECT_TRUE(Variant{Null{}}.is<Null>());
    EXPECT_TRUE(Variant{Missing{}}.is<Missing>());
    EXPECT_TRUE(Variant{true}.is<bool>());
    EXPECT_TRUE(Variant{std::uint8_t{1}}.is<std::uint8_t>());
    EXPECT_TRUE(Variant{std::int16_t{1}}.is<std::int16_t>());
    EXPECT_TRUE(Variant{1}.is<std::int32_t>());
    EXPECT_TRUE(Variant{1.0F}.is<float>());
    EXPECT_TRUE(Variant{1.0}.is<double>());
    EXPECT_TRUE(Variant{Currency{}}.is<Currency>());
    EXPECT_TRUE(Variant{Date{}}.is<Date>());
    EXPECT_TRUE(Variant{Text{u"a"}}.is<Text>());
    EXPECT_TRUE(Variant{TextView{u"a"}}.is<Text>());
    EXPECT_TRUE(Variant{u"a"}.is<Text>());
    EXPECT_TRUE(someRoom().isObject());
    EXPECT_TRUE(someArray().isArray());
    EXPECT_TRUE(Variant{Reference{}}.is<Reference>());
}

TEST(VariantKind, IsOnlyOne)
{
    EXPECT_FALSE(Variant{}.is<Null>());
    EXPECT_FALSE(Variant{Null{}}.isEmpty());
    EXPECT_FALSE(Variant{u""}.isEmpty());
    EXPECT_FALSE(Variant{std::shared_ptr<Dispatch>{}}.isEmpty());
    EXPECT_EQ(Variant{1}.getIf<double>(), nullptr);
    ASSERT_NE(Variant{1}.getIf<std::int32_t>(), nullptr);
}

TEST(VariantKind, IsNeverTruthMadeOfAPointer)
{
    EXPECT_FALSE((std::is_constructible_v<Variant, Dispatch*>));
    EXPECT_FALSE((std::is_constructible_v<Variant, const char*>));
    EXPECT_FALSE((std::is_constructible_v<Variant, char16_t*>));
}

TEST(EmptyVariant, GivesTheNeutralValueOfEveryKindButAnArray)
{
    const Variant empty;
    EXPECT_EQ(empty.text(), u"");
    EXPECT_FALSE(empty.boolean());
    EXPECT_EQ(empty.integer16(), 0);
    EXPECT_EQ(empty.integer32(), 0);
    EXPECT_EQ(empty.number(), 0);
    EXPECT_EQ(empty.currency(), Currency{});
    EXPECT_EQ(empty.date(), Date{});
    EXPECT_EQ(empty.dispatch(), nullptr);
    EXPECT_EQ(errorOf([&] { return empty.array(); }), 13);
}

TEST(NullVariant, IsError94ForEveryReader) { expectReaders(Null{}, {}, 94); }

TEST(MissingVariant, IsNoValueForAnyReader) { expectReaders(Missing{}, {}, 13); }

TEST(TextVariant, ServesAsTextOnly)
{
    EXPECT_EQ(Variant{u"Room 1"}.text(), u"Room 1");
    expectReaders(u"12", {"text"}, 13);
    expectReaders(u"", {"text"}, 13);
}

TEST(ObjectVariant, ServesAsAnObjectOnly)
{
    const auto room = std::make_shared<Room>();
    EXPECT_EQ(Variant{room}.dispatch(), room);
    expectReaders(room, {"dispatch"}, 13);
}

TEST(ObjectVariant, MayHoldNoObject)
{
    const Variant nothing{std::shared_ptr<Dispatch>{}};
    EXPECT_TRUE(nothing.isObject());
    EXPECT_EQ(nothing.dispatch(), nullptr);
}

TEST(ArrayVariant, ServesAsAnArrayOnly)
{
    EXPECT_TRUE(someArray().array()->values == (std::vector<Variant>{1, 2}));
    expectReaders(someArray(), {"array"}, 13);
}

TEST(NumericVariant, ServesAsEveryOtherNumber)
{
    for (const Variant& three : {Variant{std::uint8_t{3}}, Variant{std::int16_t{3}}, Variant{3}, Variant{3.0F},
             Variant{3.0}, Variant{amount(30000)}, Variant{Date{3}}}) {
        SCOPED_TRACE(three.value().index());
        EXPECT_TRUE(three.boolean());
        EXPECT_EQ(three.integer16(), 3);
        EXPECT_EQ(three.integer32(), 3);
        EXPECT_EQ(three.number(), 3);
        EXPECT_EQ(three.currency(), amount(30000));
        EXPECT_EQ(three.date(), Date{3});
        expectReaders(three, numericReaders(), 13);
    }
}

TEST(NumericVariant, IsFalseWhenItIsZero)
{
    for (const Variant& zero : {Variant{std::uint8_t{0}}, Variant{std::int16_t{0}}, Variant{0}, Variant{0.0F},
             Variant{0.0}, Variant{Currency{}}, Variant{Date{}}, Variant{false}})
        EXPECT_FALSE(zero.boolean()) << zero.value().index();
}

TEST(NumericVariant, IsTrueForTheSmallestPart)
{
    EXPECT_TRUE(Variant{0.25}.boolean());
    EXPECT_TRUE(Variant{amount(1)}.boolean());
    EXPECT_TRUE(Variant{-1}.boolean());
}

TEST(TruthVariant, CountsAsMinusOne)
{
    EXPECT_TRUE(Variant{true}.boolean());
    EXPECT_EQ(Variant{true}.integer16(), -1);
    EXPECT_EQ(Variant{true}.integer32(), -1);
    EXPECT_EQ(Variant{true}.number(), -1);
    EXPECT_EQ(Variant{true}.currency(), amount(-10000));
    EXPECT_EQ(Variant{true}.date(), Date{-1});
    EXPECT_EQ(Variant{false}.integer32(), 0);
    expectReaders(true, numericReaders(), 13);
}

TEST(NumericVariant, RoundsHalfToEven)
{
    const std::map<double, int> expected{
        {0.5, 0}, {1.5, 2}, {2.5, 2}, {2.51, 3}, {-0.5, 0}, {-1.5, -2}, {-2.5, -2}, {3.49, 3}};
    for (const auto& [number, whole] : expected) {
        EXPECT_EQ(Variant{number}.integer16(), whole) << number;
        EXPECT_EQ(Variant{number}.integer32(), whole) << number;
    }
    EXPECT_EQ(Variant{2.5F}.integer32(), 2);
    EXPECT_EQ(Variant{amount(35000)}.integer32(), 4);
    EXPECT_EQ(Variant{Date{36923.5}}.integer32(), 36924);
}

TEST(NumericVariant, RoundsMoneyHalfToEvenAtTheFourthDecimal)
{
    EXPECT_EQ(Variant{0.00005}.currency(), amount(0));
    EXPECT_EQ(Variant{0.00015}.currency(), amount(2));
}

TEST(NumericVariant, HandsMoneyOnWithoutFloatingPoint)
{
    EXPECT_EQ(Variant{amount(9223372036854775807)}.currency(), amount(9223372036854775807));
}

TEST(NumericVariant, OverflowsOutsideTheRange)
{
    EXPECT_EQ(Variant{32767.4}.integer16(), 32767);
    EXPECT_EQ(Variant{-32768.5}.integer16(), -32768);
    EXPECT_EQ(errorOf([] { return Variant{32767.5}.integer16(); }), 6);
    EXPECT_EQ(errorOf([] { return Variant{-32769}.integer16(); }), 6);
    EXPECT_EQ(Variant{2147483647.4}.integer32(), 2147483647);
    EXPECT_EQ(errorOf([] { return Variant{2147483647.5}.integer32(); }), 6);
    EXPECT_EQ(errorOf([] { return Variant{-2147483649.0}.integer32(); }), 6);
    EXPECT_EQ(errorOf([] { return Variant{std::numeric_limits<double>::quiet_NaN()}.integer32(); }), 6);
    EXPECT_EQ(errorOf([] { return Variant{1e15}.currency(); }), 6);
}

TEST(NumericVariant, IsADateOfTheYears100To9999)
{
    EXPECT_EQ(Variant{-657434.75}.date(), Date{-657434.75});
    EXPECT_EQ(Variant{2958465.5}.date(), Date{2958465.5});
    EXPECT_EQ(errorOf([] { return Variant{-657435}.date(); }), 6);
    EXPECT_EQ(errorOf([] { return Variant{2958466}.date(); }), 6);
    EXPECT_EQ(errorOf([] { return Variant{std::numeric_limits<double>::quiet_NaN()}.date(); }), 6);
}

TEST(VariantReader, NamesTheCallersLine)
{
    const auto line = std::source_location::current().line() + 2;
    try {
        static_cast<void>(Variant{u"12"}.integer32());
        FAIL() << "a text is no number";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.where().line(), line);
        EXPECT_STREQ(error.where().file_name(), __FILE__);
    }
}

TEST(VariantReader, NamesTheLineThatIsHandedOn)
{
    const auto place = Where::current();
    for (const auto& read : std::vector<std::function<void()>>{
             [&] { static_cast<void>(Variant{Null{}}.text(place)); },
             [&] { static_cast<void>(Variant{Null{}}.boolean(place)); },
             [&] { static_cast<void>(Variant{40000}.integer16(place)); },
             [&] { static_cast<void>(Variant{1e10}.integer32(place)); },
             [&] { static_cast<void>(Variant{u"1"}.number(place)); },
             [&] { static_cast<void>(Variant{u"1"}.currency(place)); },
             [&] { static_cast<void>(Variant{u"1"}.date(place)); },
             [&] { static_cast<void>(Variant{1}.dispatch(place)); },
             [&] { static_cast<void>(Variant{1}.array(place)); },
         }) {
        try {
            read();
            ADD_FAILURE() << "nothing failed";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.where().line(), place.line());
        }
    }
}

TEST(VariantReference, IsReadAsTheValueBehindIt)
{
    Variant target{u"Room 1"};
    const Variant reference{Reference{&target}};
    EXPECT_EQ(&reference.dereferenced(), &target);
    EXPECT_EQ(reference.text(), u"Room 1");
    target = 2.5;
    EXPECT_EQ(reference.integer32(), 2);
    target = Null{};
    expectReaders(reference, {}, 94);
}

TEST(VariantReference, IsFollowedThroughTwoLevels)
{
    Variant target = std::make_shared<Room>();
    Variant inner{Reference{&target}};
    const Variant outer{Reference{&inner}};
    EXPECT_EQ(&outer.dereferenced(), &target);
    EXPECT_EQ(outer.dispatch(), target.dispatch());
}

TEST(VariantReference, ServesEveryReader)
{
    Variant target{3};
    const Variant reference{Reference{&target}};
    EXPECT_TRUE(reference.boolean());
    EXPECT_EQ(reference.integer16(), 3);
    EXPECT_EQ(reference.number(), 3);
    EXPECT_EQ(reference.currency(), amount(30000));
    EXPECT_EQ(reference.date(), Date{3});
    target = someArray();
    EXPECT_EQ(reference.array(), target.array());
}

TEST(VariantReference, ToNothingHasNoValue)
{
    const Variant reference{Reference{}};
    EXPECT_EQ(&reference.dereferenced(), &reference);
    expectReaders(reference, {}, 13);
}

TEST(VariantReference, GivesItsTargetANewValue)
{
    Variant target{1};
    Variant{Reference{&target}}.assignThrough(u"two");
    EXPECT_EQ(target.text(), u"two");
}

TEST(VariantReference, GivesANewValueThroughTwoLevels)
{
    Variant target{1};
    Variant inner{Reference{&target}};
    Variant{Reference{&inner}}.assignThrough(u"two");
    EXPECT_EQ(target.text(), u"two");
    EXPECT_TRUE(inner.is<Reference>());
}

TEST(VariantReference, ToNothingTakesNoValue)
{
    const Variant reference{Reference{}};
    reference.assignThrough(1);
    EXPECT_TRUE(reference == Variant{Reference{}});
}

TEST(VariantValue, IsNotAssignedThrough)
{
    const Variant value{1};
    value.assignThrough(2);
    EXPECT_EQ(value.integer32(), 1);
}

TEST(VariantValue, IsItsOwnDereferencedValue)
{
    const Variant value{1};
    EXPECT_EQ(&value.dereferenced(), &value);
}

TEST(VariantEquality, AsksForTheSameKindAndTheSameValue)
{
    EXPECT_TRUE(Variant{} == Variant{});
    EXPECT_TRUE(Variant{Null{}} == Variant{Null{}});
    EXPECT_TRUE(Variant{Missing{}} == Variant{Missing{}});
    EXPECT_TRUE(Variant{1} == Variant{1});
    EXPECT_FALSE(Variant{1} == Variant{2});
    EXPECT_TRUE(Variant{amount(5)} == Variant{amount(5)});
    EXPECT_TRUE(Variant{u"a"} == Variant{Text{u"a"}});
}

TEST(VariantEquality, TellsKindsOfOneValueApart)
{
    EXPECT_FALSE(Variant{1} == Variant{std::int16_t{1}});
    EXPECT_FALSE(Variant{1} == Variant{1.0});
    EXPECT_FALSE(Variant{Date{1}} == Variant{1.0});
    EXPECT_FALSE(Variant{} == Variant{Null{}});
    EXPECT_FALSE(Variant{} == Variant{u""});
    EXPECT_FALSE(Variant{} == Variant{false});
    EXPECT_FALSE(Variant{} == Variant{std::shared_ptr<Dispatch>{}});
}

TEST(VariantEquality, ComparesTextsExactly) { EXPECT_FALSE(Variant{u"Room"} == Variant{u"room"}); }

TEST(VariantEquality, ComparesObjectsByIdentity)
{
    const auto room = std::make_shared<Room>();
    EXPECT_TRUE(Variant{room} == Variant{room});
    EXPECT_FALSE(Variant{room} == Variant{std::make_shared<Room>()});
    EXPECT_FALSE(Variant{room} == Variant{std::shared_ptr<Dispatch>{}});
    EXPECT_TRUE(Variant{std::shared_ptr<Dispatch>{}} == Variant{std::shared_ptr<Dispatch>{}});
}

TEST(VariantEquality, ComparesReferencesByTheirTarget)
{
    Variant first{1};
    Variant second{1};
    EXPECT_TRUE(Variant{Reference{&first}} == Variant{Reference{&first}});
    EXPECT_FALSE(Variant{Reference{&first}} == Variant{Reference{&second}});
    EXPECT_FALSE(Variant{Reference{&first}} == first);
}

TEST(VariantEquality, ComparesArraysElementByElement)
{
    EXPECT_TRUE(someArray() == someArray());
    EXPECT_FALSE(someArray() == Variant{Array::list({1, 3})});
    EXPECT_FALSE(someArray() == Variant{Array::list({1})});
    EXPECT_FALSE(someArray() == Variant{Array::list({1, 2.0})});
    EXPECT_TRUE(Variant{Array::list({})} == Variant{Array::list({})});
}

TEST(VariantEquality, ComparesTheBoundsOfArrays)
{
    const Variant fromZero{Array{{{0, 2}}, {1, 2}}};
    const Variant fromOne{Array{{{1, 2}}, {1, 2}}};
    const Variant row{Array{{{1, 1}, {1, 2}}, {1, 2}}};
    const Variant column{Array{{{1, 2}, {1, 1}}, {1, 2}}};
    EXPECT_TRUE(fromZero == someArray());
    EXPECT_FALSE(fromZero == fromOne);
    EXPECT_FALSE(row == column);
    EXPECT_FALSE(row == fromOne);
}

TEST(VariantEquality, ReachesIntoNestedArrays)
{
    const Variant nested{Array::list({someArray(), u"a"})};
    EXPECT_TRUE(nested == Variant{Array::list({someArray(), u"a"})});
    EXPECT_FALSE(nested == Variant{Array::list({Array::list({1, 3}), u"a"})});
}

TEST(ArrayList, CountsFromZero)
{
    const Array list = Array::list({u"a", u"b", u"c"});
    EXPECT_EQ(list.dimensions, (std::vector<Array::Dimension>{{0, 3}}));
    EXPECT_EQ(list.values.size(), 3U);
}

TEST(ArrayList, MayBeEmpty) { EXPECT_EQ(Array::list({}).dimensions, (std::vector<Array::Dimension>{{0, 0}})); }

} // namespace rf::automation
