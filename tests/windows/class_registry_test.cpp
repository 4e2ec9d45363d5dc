#include "windows/class_registry.h"

#include "com_fixture.h"

namespace rf::native {
namespace {

using automation::Error;
using automation::Object;
using automation::Variant;
using com::errorOf;

struct Classes : com::ComTest {
    ComClassRegistry registry{bridge};
};

TEST_F(Classes, MakeADictionaryThatHoldsTexts)
{
    const Object dictionary = registry.create(u"Scripting.Dictionary");
    dictionary.call(u"Add", u"Raum", u"E14");
    dictionary.put(u"Item", u"Platz", Text{u'4', u'\0', 0xDC00});
    EXPECT_EQ(dictionary.get(u"Count").integer32(), 2);
    EXPECT_EQ(dictionary.get(u"item", u"Raum").text(), u"E14");
    EXPECT_EQ(dictionary.get(u"Item", u"Platz").text(), (Text{u'4', u'\0', 0xDC00}));
    EXPECT_TRUE(dictionary.call(u"Exists", u"Raum").boolean());
    EXPECT_FALSE(dictionary.call(u"Exists", u"raum").boolean());
    const auto keys = dictionary.call(u"Keys").array();
    EXPECT_EQ(keys->values, (std::vector<Variant>{u"Raum", u"Platz"}));
}

TEST_F(Classes, KeepObjectsOfThisProgramThemselvesInADictionary)
{
    const Object dictionary = registry.create(u"Scripting.Dictionary");
    const auto boiler = std::make_shared<com::Boiler>();
    dictionary.call(u"Add", u"boiler", std::shared_ptr<automation::Dispatch>{boiler});
    EXPECT_EQ(dictionary.get(u"Item", u"boiler").dispatch(), boiler);
    EXPECT_EQ(bridge->exportedCount(), 1U);
    dictionary.call(u"RemoveAll");
    EXPECT_EQ(bridge->exportedCount(), 0U);
}

TEST_F(Classes, TellObjectsApartByIdentity)
{
    const Object dictionary = registry.create(u"Scripting.Dictionary");
    const Object inner = registry.create(u"Scripting.Dictionary");
    dictionary.call(u"Add", 1, inner);
    const Object again{dictionary.get(u"Item", 1).dispatch()};
    EXPECT_NE(again.dispatch(), inner.dispatch());
    EXPECT_EQ(again, inner);
    EXPECT_FALSE(again == dictionary);
}

TEST_F(Classes, ReachTheFileSystem)
{
    const Object files = registry.create(u"Scripting.FileSystemObject");
    EXPECT_EQ(files.call(u"GetFileName", u"C:\\a\\b.ics").text(), u"b.ics");
    EXPECT_TRUE(files.call(u"FolderExists", u"C:\\").boolean());
    EXPECT_FALSE(files.call(u"FileExists", u"C:\\no such file").boolean());
    EXPECT_EQ(errorOf([&] { return files.call(u"GetFile", u"C:\\no such file"); }), 53);
}

TEST_F(Classes, ReachTheShell)
{
    const Object shell = registry.create(u"Wscript.Shell");
    const Text windowsKey = u"HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\";
    EXPECT_FALSE(shell.call(u"RegRead", windowsKey + u"SystemRoot").text().empty());
    EXPECT_NE(errorOf([&] { return shell.call(u"RegRead", windowsKey + u"No such value"); }), 0);
}

TEST_F(Classes, BindTheManagementService)
{
    const Object service = registry.bind(u"winmgmts:");
    const Object systems{service.call(u"ExecQuery", u"SELECT * FROM Win32_OperatingSystem").dispatch()};
    EXPECT_EQ(systems.get(u"Count").integer32(), 1);
}

TEST_F(Classes, TakeAClassIdInBraces)
{
    EXPECT_EQ(registry.create(u"{EE09B103-97E0-11CF-978F-00A02463E06F}").get(u"Count").integer32(), 0);
}

TEST_F(Classes, MissAMember)
{
    const Object dictionary = registry.create(u"Scripting.Dictionary");
    try {
        dictionary.call(u"Explode");
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), 438);
        EXPECT_EQ(error.member(), u"Explode");
        EXPECT_EQ(error.description(), errorDescription(438));
    }
}

TEST_F(Classes, PassOnTheErrorOfAnObject)
{
    const Object dictionary = registry.create(u"Scripting.Dictionary");
    dictionary.call(u"Add", 1, 1);
    EXPECT_EQ(errorOf([&] { return dictionary.call(u"Add", 1, 2); }), error_number::keyAlreadyExists);
    EXPECT_EQ(errorOf([&] { return dictionary.call(u"Add", 2); }), error_number::wrongArgumentCount);
}

TEST_F(Classes, HaveNoEventsWhereTheObjectHasNone)
{
    const Object dictionary = registry.create(u"Scripting.Dictionary");
    EXPECT_EQ(errorOf([&] { return dictionary.advise(com::boilerEvents, {}); }), 459);
}

TEST_F(Classes, GiveTheClassicErrorWhereThereIsNoObject)
{
    const auto line = std::source_location::current().line() + 2;
    try {
        static_cast<void>(registry.create(u"No.SuchClass"));
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), 429);
        EXPECT_EQ(error.description(), u"ActiveX component can't create object");
        EXPECT_EQ(error.source(), u"No.SuchClass");
        EXPECT_EQ(error.where().line(), line);
    }
    EXPECT_EQ(errorOf([&] { return registry.create(u"{12345678-1234-1234-1234-123456789ABC}"); }), 429);
    EXPECT_EQ(errorOf([&] { return registry.create(u"{no class id"); }), 429);
    EXPECT_EQ(errorOf([&] { return registry.create(u""); }), 429);
    EXPECT_EQ(errorOf([&] { return registry.running(u"No.SuchClass"); }), 429);
    EXPECT_EQ(errorOf([&] { return registry.running(u"Scripting.Dictionary"); }), 429);
    EXPECT_EQ(errorOf([&] { return registry.bind(u"nosuchmoniker:"); }), 429);
}

TEST_F(Classes, FindARunningObject)
{
    const auto boiler = std::make_shared<com::Boiler>();
    constexpr CLSID id{0x12345678, 0x1234, 0x1234, {0x12, 0x34, 0x12, 0x34, 0x56, 0x78, 0x9A, 0xBD}};
    DWORD entry = 0;
    ASSERT_EQ(RegisterActiveObject(bridge->exportObject(boiler).get(), id, ACTIVEOBJECT_STRONG, &entry), S_OK);
    EXPECT_EQ(registry.running(u"{12345678-1234-1234-1234-123456789ABD}").dispatch(), boiler);
    EXPECT_EQ(RevokeActiveObject(entry, nullptr), S_OK);
    EXPECT_EQ(errorOf([&] { return registry.running(u"{12345678-1234-1234-1234-123456789ABD}"); }), 429);
}

} // namespace
} // namespace rf::native
