#include "windows/com_variant.h"

#include "com_fixture.h"

#include <limits>

namespace rf::native::com {
namespace {

using automation::Array;
using automation::Missing;
using automation::Null;
using automation::Reference;
using automation::Variant;

struct ComVariant : ComTest {
    [[nodiscard]] Variant roundTrip(const Variant& value) { return fromNative(*toNative(value, *bridge), *bridge); }
    [[nodiscard]] VARTYPE kindOf(const Variant& value) { return toNative(value, *bridge)->vt; }
};

/// A VARIANT that refers to a value of the caller's.
VARIANT referenceTo(VARENUM type, void* target)
{
    VARIANT reference;
    VariantInit(&reference);
    reference.vt = static_cast<VARTYPE>(VT_BYREF | type);
    reference.byref = target;
    return reference;
}

template <class Value>
Variant readBehindReference(ObjectMap& objects, VARENUM type, Value value)
{
    return fromNative(referenceTo(type, &value), objects);
}

TEST_F(ComVariant, KeepsEveryKindAndItsValue)
{
    const Variant values[] = {Variant{}, Null{}, Missing{}, true, false, std::uint8_t{255}, std::int16_t{-32768},
        std::int32_t{2147483647}, 1.5F, -0.1, Currency::fromTenThousandths(-922337203685477), Date{38353.75}, u"",
        u"Termin", Array::list({1, u"two", Null{}})};
    for (const Variant& value : values)
        EXPECT_EQ(roundTrip(value), value);
}

TEST_F(ComVariant, UsesTheKindThatComHasForEach)
{
    EXPECT_EQ(kindOf({}), VT_EMPTY);
    EXPECT_EQ(kindOf(Null{}), VT_NULL);
    EXPECT_EQ(kindOf(true), VT_BOOL);
    EXPECT_EQ(kindOf(std::uint8_t{1}), VT_UI1);
    EXPECT_EQ(kindOf(std::int16_t{1}), VT_I2);
    EXPECT_EQ(kindOf(1), VT_I4);
    EXPECT_EQ(kindOf(1.0F), VT_R4);
    EXPECT_EQ(kindOf(1.0), VT_R8);
    EXPECT_EQ(kindOf(Currency{}), VT_CY);
    EXPECT_EQ(kindOf(Date{}), VT_DATE);
    EXPECT_EQ(kindOf(u"a"), VT_BSTR);
    EXPECT_EQ(kindOf(std::shared_ptr<automation::Dispatch>{}), VT_DISPATCH);
    EXPECT_EQ(kindOf(Array::list({1})), VT_ARRAY | VT_VARIANT);
}

TEST_F(ComVariant, PassesAnArgumentThatWasLeftOutAsParameterNotFound)
{
    const NativeVariant native = toNative(Missing{}, *bridge);
    EXPECT_EQ(native->vt, VT_ERROR);
    EXPECT_EQ(native->scode, DISP_E_PARAMNOTFOUND);
}

TEST_F(ComVariant, ReadsAnErrorValueAsNeitherNumberNorText)
{
    NativeVariant native;
    native->vt = VT_ERROR;
    native->scode = E_FAIL;
    EXPECT_EQ(fromNative(*native, *bridge), Variant{Missing{}});
}

TEST_F(ComVariant, CarriesNulsAndHalvesOfSurrogatePairsInTexts)
{
    const Text text{u'a', u'\0', 0xD83D, u'b', 0xDE00, u'\0'};
    EXPECT_EQ(roundTrip(text), Variant{text});
}

TEST_F(ComVariant, ReadsATextThatIsNullAsEmpty)
{
    NativeVariant native;
    native->vt = VT_BSTR;
    native->bstrVal = nullptr;
    EXPECT_EQ(fromNative(*native, *bridge), Variant{u""});
}

TEST_F(ComVariant, WritesTrueWithAllBitsSetAndReadsAnyOtherBitsAsTrue)
{
    EXPECT_EQ(toNative(true, *bridge)->boolVal, -1);
    EXPECT_EQ(readBehindReference(*bridge, VT_BOOL, VARIANT_BOOL{1}), Variant{true});
}

TEST_F(ComVariant, ReadsForeignIntegersAsLongWhereTheyFit)
{
    EXPECT_EQ(readBehindReference(*bridge, VT_I1, std::int8_t{-7}), Variant{-7});
    EXPECT_EQ(readBehindReference(*bridge, VT_UI2, std::uint16_t{65535}), Variant{65535});
    EXPECT_EQ(readBehindReference(*bridge, VT_UI4, std::uint32_t{2147483647}), Variant{2147483647});
    EXPECT_EQ(readBehindReference(*bridge, VT_INT, std::int32_t{-5}), Variant{-5});
    EXPECT_EQ(readBehindReference(*bridge, VT_UINT, std::uint32_t{5}), Variant{5});
    EXPECT_EQ(readBehindReference(*bridge, VT_I8, std::int64_t{-2147483648LL}), Variant{std::int32_t{-2147483647 - 1}});
    EXPECT_EQ(readBehindReference(*bridge, VT_UI8, std::uint64_t{1}), Variant{1});
}

TEST_F(ComVariant, ReadsForeignIntegersAsDoubleWhereTheyDoNotFit)
{
    EXPECT_EQ(readBehindReference(*bridge, VT_UI4, std::uint32_t{4294967295}), Variant{4294967295.0});
    EXPECT_EQ(readBehindReference(*bridge, VT_UINT, std::uint32_t{2147483648}), Variant{2147483648.0});
    EXPECT_EQ(readBehindReference(*bridge, VT_I8, std::int64_t{1} << 40), Variant{1099511627776.0});
    EXPECT_EQ(readBehindReference(*bridge, VT_UI8, std::uint64_t{1} << 63), Variant{9223372036854775808.0});
}

TEST_F(ComVariant, ReadsADecimalAsDoubleByValueAndByReference)
{
    DECIMAL decimal;
    ASSERT_EQ(VarDecFromR8(-12.25, &decimal), S_OK);
    NativeVariant native;
    native->decVal = decimal;
    native->vt = VT_DECIMAL;
    EXPECT_EQ(fromNative(*native, *bridge), Variant{-12.25});
    EXPECT_EQ(readBehindReference(*bridge, VT_DECIMAL, decimal), Variant{-12.25});
}

TEST_F(ComVariant, ReadsWhatAReferenceRefersTo)
{
    EXPECT_EQ(readBehindReference(*bridge, VT_UI1, std::uint8_t{9}), Variant{std::uint8_t{9}});
    EXPECT_EQ(readBehindReference(*bridge, VT_I2, std::int16_t{9}), Variant{std::int16_t{9}});
    EXPECT_EQ(readBehindReference(*bridge, VT_I4, std::int32_t{9}), Variant{9});
    EXPECT_EQ(readBehindReference(*bridge, VT_R4, 0.5F), Variant{0.5F});
    EXPECT_EQ(readBehindReference(*bridge, VT_R8, 0.5), Variant{0.5});
    EXPECT_EQ(readBehindReference(*bridge, VT_CY, std::int64_t{15000}), Variant{Currency::fromTenThousandths(15000)});
    EXPECT_EQ(readBehindReference(*bridge, VT_DATE, 2.5), Variant{Date{2.5}});
    const Bstr text{u"Raum"};
    EXPECT_EQ(readBehindReference(*bridge, VT_BSTR, text.get()), Variant{u"Raum"});
    EXPECT_EQ(readBehindReference(*bridge, VT_DISPATCH, static_cast<IDispatch*>(nullptr)),
        Variant{std::shared_ptr<automation::Dispatch>{}});
}

TEST_F(ComVariant, ReadsThroughAReferenceToAVariant)
{
    NativeVariant inner = toNative(u"inside", *bridge);
    EXPECT_EQ(fromNative(referenceTo(VT_VARIANT, inner.get()), *bridge), Variant{u"inside"});
    std::int32_t number = 4;
    VARIANT reference = referenceTo(VT_I4, &number);
    EXPECT_EQ(fromNative(referenceTo(VT_VARIANT, &reference), *bridge), Variant{4});
}

TEST_F(ComVariant, KeepsArraysOfTwoDimensionsAndTheirBounds)
{
    const Array table{{{1, 2}, {-1, 3}}, {11, 12, 13, 21, 22, 23}};
    EXPECT_EQ(roundTrip(table), Variant{table});
}

TEST_F(ComVariant, PutsTheValueOfARowAndColumnWhereComLooksForIt)
{
    NativeVariant native = toNative(Array{{{0, 2}, {0, 3}}, {11, 12, 13, 21, 22, 23}}, *bridge);
    LONG secondRowThirdColumn[] = {1, 2};
    NativeVariant element;
    ASSERT_EQ(SafeArrayGetElement(native->parray, secondRowThirdColumn, element.get()), S_OK);
    EXPECT_EQ(fromNative(*element, *bridge), Variant{23});
}

TEST_F(ComVariant, ReadsArraysOfSimpleKinds)
{
    SAFEARRAYBOUND bounds[] = {{2, 0}, {2, 5}};
    SafeArrayPtr array{SafeArrayCreate(VT_BSTR, 2, bounds)};
    const wchar_t* texts[] = {L"a", L"b", L"c", L"d"};
    for (LONG index = 0; index < 4; ++index) {
        LONG place[] = {index / 2, 5 + index % 2};
        const Bstr text{textOf(texts[index])};
        ASSERT_EQ(SafeArrayPutElement(array.get(), place, text.get()), S_OK);
    }
    NativeVariant native;
    native->parray = array.release();
    native->vt = VT_ARRAY | VT_BSTR;
    EXPECT_EQ(fromNative(*native, *bridge), (Variant{Array{{{0, 2}, {5, 2}}, {u"a", u"b", u"c", u"d"}}}));
}

TEST_F(ComVariant, ReadsAnArrayBehindAReference)
{
    SafeArrayPtr owner{SafeArrayCreateVector(VT_UI1, 0, 2)};
    std::uint8_t byte = 7;
    LONG place = 1;
    ASSERT_EQ(SafeArrayPutElement(owner.get(), &place, &byte), S_OK);
    SAFEARRAY* array = owner.get();
    EXPECT_EQ(fromNative(referenceTo(static_cast<VARENUM>(VT_ARRAY | VT_UI1), &array), *bridge),
        (Variant{Array::list({std::uint8_t{0}, std::uint8_t{7}})}));
}

TEST_F(ComVariant, CarriesArraysWithoutValuesAndWithoutASize)
{
    EXPECT_EQ(roundTrip(Array::list({})), Variant{Array::list({})});
    EXPECT_EQ(roundTrip(Array{}), Variant{Array{}});
}

TEST_F(ComVariant, RefusesAnArrayWhoseBoundsDoNotFitItsValues)
{
    EXPECT_EQ(errorOf([&] { return toNative(Array{{{0, 2}}, {1}}, *bridge); }), 9);
}

TEST_F(ComVariant, RefusesARecord)
{
    VARIANT record;
    VariantInit(&record);
    record.vt = VT_RECORD;
    EXPECT_EQ(errorOf([&] { return fromNative(record, *bridge); }), 458);
}

TEST_F(ComVariant, AssignsThroughAReferenceInTheKindThatItHasThere)
{
    VARIANT_BOOL truth = VARIANT_FALSE;
    assignNative(referenceTo(VT_BOOL, &truth), true, *bridge);
    EXPECT_EQ(truth, VARIANT_TRUE);
    assignNative(referenceTo(VT_BOOL, &truth), 0, *bridge);
    EXPECT_EQ(truth, VARIANT_FALSE);

    std::int16_t small = 0;
    assignNative(referenceTo(VT_I2, &small), 12.5, *bridge);
    EXPECT_EQ(small, 12);

    BSTR text = Bstr{u"old"}.detach();
    assignNative(referenceTo(VT_BSTR, &text), 42, *bridge);
    EXPECT_EQ(textOfBstr(text), u"42");
    SysFreeString(text);

    NativeVariant any = toNative(u"old", *bridge);
    assignNative(referenceTo(VT_VARIANT, any.get()), Date{1.0}, *bridge);
    EXPECT_EQ(fromNative(*any, *bridge), Variant{Date{1.0}});

    SAFEARRAY* array = nullptr;
    assignNative(referenceTo(static_cast<VARENUM>(VT_ARRAY | VT_I4), &array), Array::list({u"5"}), *bridge);
    const SafeArrayPtr owner{array};
    EXPECT_EQ(
        fromNative(referenceTo(static_cast<VARENUM>(VT_ARRAY | VT_I4), &array), *bridge), Variant{Array::list({5})});
}

TEST_F(ComVariant, RefusesToAssignWhatDoesNotConvert)
{
    std::int16_t small = 3;
    EXPECT_EQ(errorOf([&] {
        assignNative(referenceTo(VT_I2, &small), u"three", *bridge);
        return 0;
    }),
        13);
    EXPECT_EQ(errorOf([&] {
        assignNative(referenceTo(VT_I2, &small), 40000, *bridge);
        return 0;
    }),
        6);
    EXPECT_EQ(small, 3);
}

TEST_F(ComVariant, WritesTheValueOfAReferenceThatStandsWhereNoneCan)
{
    Variant target{u"held"};
    EXPECT_EQ(roundTrip(Reference{&target}), Variant{u"held"});
}

} // namespace
} // namespace rf::native::com
