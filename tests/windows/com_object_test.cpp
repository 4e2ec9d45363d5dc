#include "windows/com_object.h"

#include "com_fixture.h"

namespace rf::native::com {
namespace {

using automation::Array;
using automation::Error;
using automation::Missing;
using automation::Object;
using automation::Reference;
using automation::Variant;

struct ExportedBoiler : ComTest {
    std::shared_ptr<Boiler> boiler = std::make_shared<Boiler>();
    Object imported = throughCom(boiler);

    [[nodiscard]] ComPtr<IDispatch> native() { return bridge->exportObject(boiler).query<IDispatch>(); }
};

TEST_F(ExportedBoiler, GetsPutsAndCallsByNameWithoutRegardToCase)
{
    EXPECT_EQ(imported.get(u"temperature").integer32(), 20);
    imported.put(u"TEMPERATURE", 35);
    EXPECT_EQ(imported.get(u"Temperature").integer32(), 35);
    EXPECT_TRUE(imported.call(u"Heat", 60).boolean());
    EXPECT_EQ(imported.get(u"Temperature").integer32(), 60);
}

TEST_F(ExportedBoiler, KeepsTheOrderOfArguments)
{
    EXPECT_EQ(imported.call(u"Minus", 7, 5).integer32(), 2);
    imported.put(u"Part", 1, u"valve");
    EXPECT_EQ(imported.get(u"Part", 1).text(), u"valve");
    EXPECT_EQ(imported.get(u"Part", 0).text(), u"");
}

TEST_F(ExportedBoiler, PassesEveryKindThroughACall)
{
    const Variant values[] = {Variant{}, automation::Null{}, true, std::uint8_t{1}, std::int16_t{2}, 3, 4.5F, 5.5,
        Currency::fromTenThousandths(6), Date{7.25}, Text{u'8', u'\0', 0xD800}, Array::list({9, u"10"})};
    for (const Variant& value : values)
        EXPECT_EQ(imported.call(u"Echo", value), value);
}

TEST_F(ExportedBoiler, TellsAnArgumentThatWasLeftOut)
{
    EXPECT_EQ(imported.call(u"CountArguments", 1, Missing{}).integer32(), 20);
    EXPECT_EQ(imported.call(u"CountArguments", 1, 2).integer32(), 21);
    EXPECT_EQ(errorOf([&] { return imported.call(u"Echo", Missing{}); }), 450);
}

TEST_F(ExportedBoiler, WritesArgumentsByReferenceBack)
{
    Variant first{u"warm"};
    Variant second{7};
    imported.call(u"Swap", Reference{&first}, Reference{&second});
    EXPECT_EQ(first, Variant{7});
    EXPECT_EQ(second, Variant{u"warm"});
}

TEST_F(ExportedBoiler, ReportsFailuresWithNumberDescriptionSourceMemberAndCaller)
{
    const auto line = std::source_location::current().line() + 2;
    try {
        imported.call(u"Fail", 1004);
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), 1004);
        EXPECT_EQ(error.description(), Text{u"Too hot \u263A"} + char16_t{0xD800});
        EXPECT_EQ(error.source(), u"Boiler.Valve");
        EXPECT_EQ(error.member(), u"Fail");
        EXPECT_EQ(error.where().line(), line);
    }
}

TEST_F(ExportedBoiler, KeepsAPlatformCodeAsTheNumberOfAFailure)
{
    EXPECT_EQ(errorOf([&] { return imported.call(u"Fail", -2147221233); }), -2147221233);
}

TEST_F(ExportedBoiler, HidesForeignExceptionsBehindAFailure)
{
    EXPECT_EQ(errorOf([&] { return imported.call(u"Explode"); }), E_UNEXPECTED);
}

TEST_F(ExportedBoiler, DoesNotHaveAnUnknownMember)
{
    EXPECT_EQ(errorOf([&] { return imported.get(u"Pressure"); }), 438);
    EXPECT_EQ(errorOf([&] {
        imported.put(u"Heat", 1);
        return 0;
    }),
        438);
}

TEST_F(ExportedBoiler, GivesANameItsIdForGood)
{
    const auto idOf = [&](const wchar_t* name) {
        auto* units = const_cast<wchar_t*>(name);
        DISPID id = DISPID_UNKNOWN;
        EXPECT_EQ(native()->GetIDsOfNames(IID_NULL, &units, 1, LOCALE_USER_DEFAULT, &id), S_OK);
        return id;
    };
    const DISPID heat = idOf(L"Heat");
    EXPECT_GT(heat, 0);
    EXPECT_NE(idOf(L"Minus"), heat);
    EXPECT_EQ(idOf(L"hEAT"), heat);
}

TEST_F(ExportedBoiler, RefusesNamedArgumentsAndIdsThatItNeverGave)
{
    wchar_t member[] = L"Echo";
    wchar_t argument[] = L"Value";
    wchar_t* names[] = {member, argument};
    DISPID ids[2]{};
    EXPECT_EQ(native()->GetIDsOfNames(IID_NULL, names, 2, LOCALE_USER_DEFAULT, ids), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(ids[1], DISPID_UNKNOWN);

    NativeVariant value = toNative(1, *bridge);
    DISPID named = 0;
    DISPPARAMS parameters{value.get(), &named, 1, 1};
    EXPECT_EQ(native()->Invoke(ids[0], IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr),
        DISP_E_NONAMEDARGS);
    EXPECT_EQ(native()->Invoke(DISPID_VALUE, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr),
        DISP_E_MEMBERNOTFOUND);
}

TEST_F(ExportedBoiler, TakesObjectsByAssignmentAndByReferenceAssignment)
{
    const auto other = std::make_shared<Boiler>();
    imported.put(u"Neighbour", std::shared_ptr<automation::Dispatch>{other});
    EXPECT_EQ(imported.get(u"Neighbour").dispatch(), other);
    imported.put(u"Neighbour", std::shared_ptr<automation::Dispatch>{});
    EXPECT_EQ(imported.get(u"Neighbour").dispatch(), nullptr);
}

TEST_F(ExportedBoiler, IsTheOriginalAgainWhenItComesBack)
{
    EXPECT_EQ(bridge->importObject(bridge->exportObject(boiler).get()), boiler);
    EXPECT_EQ(imported.call(u"Echo", std::shared_ptr<automation::Dispatch>{boiler}).dispatch(), boiler);
}

TEST_F(ExportedBoiler, GoesOutAgainAsTheSameComObject)
{
    EXPECT_EQ(bridge->exportObject(boiler).get(), bridge->exportObject(boiler).get());
    EXPECT_EQ(imported, throughCom(boiler));
    EXPECT_FALSE(imported == throughCom(std::make_shared<Boiler>()));
}

TEST_F(ExportedBoiler, GoesOutAsItCameInWhenItIsAComObject)
{
    EXPECT_EQ(bridge->exportObject(imported.dispatch()).get(), native().query<IUnknown>().get());
}

TEST_F(ExportedBoiler, LivesAsLongAsComHoldsIt)
{
    const std::weak_ptr<Boiler> watched = boiler;
    boiler.reset();
    EXPECT_FALSE(watched.expired());
    EXPECT_EQ(bridge->exportedCount(), 1U);
    imported = {};
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(bridge->exportedCount(), 0U);
}

} // namespace
} // namespace rf::native::com
