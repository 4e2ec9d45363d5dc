#include "member_use.h"

#include "outlook/scripting.h"
#include "outlook/wmi.h"

namespace rf::outlook {

using namespace test;

TEST(DictionaryFace, UsesTheMembersOfTheComponent)
{
    const Variant other = someObject();
    expectUses<Dictionary>({
        {u"CompareMode", Get, {}, 1, [](auto& values) { return values.compareMode(); }},
        {u"CompareMode", Put, {1}, {}, [](auto& values) { values.setCompareMode(CompareMode::Text); }},
        {u"Count", Get, {}, 3, [](auto& values) { return values.count(); }},
        {u"Exists", Call, {u"a"}, true, [](auto& values) { return values.exists(u"a"); }},
        {u"Add", Call, {u"a", other}, {}, [&](auto& values) { values.add(u"a", other); }},
        {u"Item", Get, {u"a"}, 2.5, [](auto& values) { return values.item(u"a"); }},
        {u"Item", Put, {u"a", u"b"}, {}, [](auto& values) { values.setItem(u"a", u"b"); }},
        {u"Key", Put, {u"a", u"b"}, {}, [](auto& values) { values.setKey(u"a", u"b"); }},
        {u"Remove", Call, {u"a"}, {}, [](auto& values) { values.remove(u"a"); }},
        {u"RemoveAll", Call, {}, {}, [](auto& values) { values.removeAll(); }},
    });
}

TEST(DictionaryFace, GivesItsKeysAndItemsAsLists)
{
    const auto dispatch = std::make_shared<RecordingDispatch>();
    const Dictionary values{automation::Object{dispatch}};

    dispatch->answer = automation::Array::list({u"one", u"two"});
    EXPECT_EQ(values.keys(), (std::vector<Text>{u"one", u"two"}));
    dispatch->answer = automation::Array::list({1, u"two"});
    EXPECT_TRUE(values.items() == (std::vector<Variant>{1, u"two"}));

    ASSERT_EQ(dispatch->uses.size(), 2U);
    EXPECT_EQ(dispatch->uses[0].member, u"Keys");
    EXPECT_EQ(dispatch->uses[1].member, u"Items");
    EXPECT_EQ(dispatch->uses[0].kind, Call);
    EXPECT_EQ(dispatch->uses[1].kind, Call);
}

TEST(FileSystemObjectFace, UsesTheMembersOfTheComponent)
{
    const Variant other = someObject();
    expectUses<FileSystemObject>({
        {u"GetSpecialFolder", Call, {2}, other,
            [](auto& files) { return files.getSpecialFolder(SpecialFolder::Temporary); }},
        {u"FileExists", Call, {u"a.txt"}, true, [](auto& files) { return files.fileExists(u"a.txt"); }},
        {u"FolderExists", Call, {u"a"}, true, [](auto& files) { return files.folderExists(u"a"); }},
        {u"GetTempName", Call, {}, u"rad12345.tmp", [](auto& files) { return files.getTempName(); }},
        {u"BuildPath", Call, {u"a", u"b"}, u"a/b", [](auto& files) { return files.buildPath(u"a", u"b"); }},
        {u"OpenTextFile", Call, {u"a.txt", 1, false, 0}, other,
            [](auto& files) { return files.openTextFile(u"a.txt", OpenMode::Read); }},
        {u"OpenTextFile", Call, {u"a.txt", 8, true, -1}, other,
            [](auto& files) { return files.openTextFile(u"a.txt", OpenMode::Append, true, TextFormat::Unicode); }},
        {u"CreateTextFile", Call, {u"a.txt", true, false}, other,
            [](auto& files) { return files.createTextFile(u"a.txt", true); }},
        {u"CreateTextFile", Call, {u"a.txt", false, true}, other,
            [](auto& files) { return files.createTextFile(u"a.txt", false, true); }},
        {u"DeleteFile", Call, {u"a.txt"}, {}, [](auto& files) { files.deleteFile(u"a.txt"); }},
    });
    expectUses<FileFolder>({{u"Path", Get, {}, u"/tmp", [](auto& folder) { return folder.path(); }}});
}

TEST(TextStreamFace, UsesTheMembersOfTheComponent)
{
    expectUses<TextStream>({
        {u"AtEndOfStream", Get, {}, true, [](auto& stream) { return stream.atEndOfStream(); }},
        {u"ReadAll", Call, {}, u"text", [](auto& stream) { return stream.readAll(); }},
        {u"ReadLine", Call, {}, u"line", [](auto& stream) { return stream.readLine(); }},
        {u"Write", Call, {u"text"}, {}, [](auto& stream) { stream.write(u"text"); }},
        {u"WriteLine", Call, {u"line"}, {}, [](auto& stream) { stream.writeLine(u"line"); }},
        {u"Close", Call, {}, {}, [](auto& stream) { stream.close(); }},
    });
}

TEST(ShellFace, UsesTheMembersOfTheComponent)
{
    expectUses<Shell>({
        {u"ExpandEnvironmentStrings", Call, {u"%USERNAME%"}, u"jane",
            [](auto& shell) { return shell.expandEnvironmentStrings(u"%USERNAME%"); }},
        {u"Run", Call, {u"calc.exe"}, 0, [](auto& shell) { return shell.run(u"calc.exe"); }},
        {u"Run", Call, {u"regsvr32 scrrun.dll /s", 2, false}, 0,
            [](auto& shell) { return shell.run(u"regsvr32 scrrun.dll /s", WindowStyle::Minimized, false); }},
    });
}

TEST(WmiFace, UsesTheMembersOfTheService)
{
    const Variant other = someObject();
    expectUses<WmiService>({
        {u"InstancesOf", Call, {u"win32_process"}, other,
            [](auto& service) { return service.instancesOf(wmiProcessClass); }},
    });
    expectUses<WmiObjectSet>({
        {u"Count", Get, {}, 80, [](auto& instances) { return instances.count(); }},
        {u"ItemIndex", Call, {0}, other, [](auto& instances) { return instances.itemIndex(0); }},
    });
    expectUses<WmiObject>({
        {u"Name", Get, {}, u"RFBookingInfo.exe", [](auto& process) { return process.name(); }},
        {u"ProcessId", Get, {}, 4711, [](auto& process) { return process.processId(); }},
        {u"Delete_", Call, {}, {}, [](auto& process) { process.remove(); }},
    });
}

} // namespace rf::outlook
