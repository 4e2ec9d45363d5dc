#include "storage/folder_path.h"

#include "basic/error_of.h"
#include "storage/storage_fixture.h"

namespace rf {
namespace {

class FolderPath : public test::StorageTest {
protected:
    Text pathOf(const outlook::Folder& folder) { return fncGetFolderPath(session, folder, session.ounNameSpace); }
    Text nameAt(TextView path)
    {
        const auto folder = fncGetFolderFromPath(session, path);
        return folder ? folder.name() : Text{u"(none)"};
    }
    std::int32_t errorOf(TextView path)
    {
        return test::errorOf([&] { return fncGetFolderFromPath(session, path); });
    }
};

TEST_F(FolderPath, NamesTheStoreAndEveryFolderDownToTheFolder)
{
    const auto room = folderOf(addFolder(rootId, u"Conference Room 12", outlook::ItemType::Appointment));
    EXPECT_EQ(pathOf(room), u"\\\\Public Folders\\All Public Folders\\Roomfold\\Conference Room 12");
    EXPECT_EQ(pathOf(calendar()), u"\\\\Mailbox - Jane Doe\\Calendar");
    EXPECT_EQ(session.trace.fncLastAction(), u"Looping folder tree in order to get the full folder path");
}

TEST_F(FolderPath, OfTheRootOfAStoreIsTheStore)
{
    const auto storeRoot = calendar().parent().as<outlook::Folder>();
    EXPECT_EQ(pathOf(storeRoot), u"\\\\Mailbox - Jane Doe");
    EXPECT_EQ(fncGetFolderFromPath(session, pathOf(storeRoot)), storeRoot);
}

TEST_F(FolderPath, StopsAtTheFirstAncestorThatIsNamedLikeAStore)
{
    const auto namesake = addFolder(rootId, u"Mailbox - Jane Doe");
    const auto below = folderOf(addFolder(namesake, u"Rooms"));
    EXPECT_EQ(pathOf(below), u"\\\\Mailbox - Jane Doe\\Rooms");
    EXPECT_EQ(pathOf(folderOf(namesake)), u"\\\\Public Folders\\All Public Folders\\Roomfold\\Mailbox - Jane Doe")
        << "the folder itself is no ancestor";
}

TEST_F(FolderPath, TellsNamesApartByCase)
{
    const auto below = folderOf(addFolder(addFolder(rootId, u"PUBLIC FOLDERS"), u"Rooms"));
    EXPECT_EQ(pathOf(below), u"\\\\Public Folders\\All Public Folders\\Roomfold\\PUBLIC FOLDERS\\Rooms");
}

TEST_F(FolderPath, IsEmptyWhereTheWayUpCannotBeFollowed)
{
    EXPECT_EQ(pathOf({}), u"");
    putFaultBeforeHost();
    static_cast<void>(pathOf(session.objRootFolder));
    const int uses = fault->uses;
    for (int use = 1; use <= uses; ++use) {
        *fault = {.uses = 0, .failingUse = use};
        const Text path = pathOf(session.objRootFolder);
        EXPECT_TRUE(
            path.empty() || path.ends_with(u"\\") || path == u"\\\\Public Folders\\All Public Folders\\Roomfold")
            << use << ": " << toUtf8(path);
    }
}

TEST_F(FolderPath, LeadsBackToTheFolder)
{
    const auto room = folderOf(addFolder(rootId, u"Conference Room 12", outlook::ItemType::Appointment));
    EXPECT_EQ(fncGetFolderFromPath(session, pathOf(room)), room);
    EXPECT_EQ(
        fncGetFolderFromPath(session, u"\\\\public folders\\all public folders\\roomfold"), session.objRootFolder);
}

TEST_F(FolderPath, LeadsNowhereWhenItIsBlank)
{
    EXPECT_EQ(nameAt(u""), u"(none)");
    EXPECT_EQ(nameAt(u"   "), u"(none)");
}

TEST_F(FolderPath, WithoutABackslashIsAPersonWhoseDefaultFolderOfType6IsMeant)
{
    host::ensureMailbox(*store, u"Roe, Richard");
    const auto folder = fncGetFolderFromPath(session, u"Roe, Richard");
    EXPECT_EQ(pathOf(folder), u"\\\\Mailbox - Roe, Richard\\Inbox");
}

TEST_F(FolderPath, OfAnUnknownPersonOrFolderIsAnError)
{
    EXPECT_NE(errorOf(u"Nobody"), 0);
    EXPECT_NE(errorOf(u"\\\\Public Folders\\Nowhere"), 0);
    EXPECT_NE(errorOf(u"\\\\Nowhere\\All Public Folders"), 0);
    EXPECT_NE(errorOf(u"\\\\Public Folders\\"), 0);
    EXPECT_TRUE(toolkit.messages.empty()) << "the caller decides what it means";
}

TEST_F(FolderPath, WithoutAStoreIsASubscriptOutOfRange)
{
    EXPECT_EQ(errorOf(u"\\"), error_number::subscriptOutOfRange);
    EXPECT_EQ(errorOf(u"Rooms\\Room 1"), error_number::subscriptOutOfRange);
}

TEST_F(FolderPath, TakesTheThirdPieceAsTheStoreWhateverStandsBefore)
{
    EXPECT_EQ(nameAt(u"a\\b\\Public Folders\\All Public Folders"), u"All Public Folders");
}

TEST_F(FolderPath, AsksForEveryFolderOnce)
{
    putFaultBeforeHost();
    static_cast<void>(fncGetFolderFromPath(session, u"\\\\Public Folders\\All Public Folders\\Roomfold"));
    EXPECT_EQ(fault->uses, 1 + 3 * 2) << "GetNamespace; Folders and Item of each";
}

} // namespace
} // namespace rf
