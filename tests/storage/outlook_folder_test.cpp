#include "storage/outlook_folder.h"

#include "storage/folder_path.h"
#include "storage/storage_fixture.h"

namespace rf {
namespace {

using automation::Variant;

class OutlookFolder : public test::StorageTest {
protected:
    OutlookFolder()
    {
        roomId = addFolder(rootId, u"Room 1", outlook::ItemType::Appointment);
        otherId = addFolder(rootId, u"Room 2", outlook::ItemType::Appointment);
    }

    [[nodiscard]] cOutlookFolder referenceTo(host::FolderId id)
    {
        cOutlookFolder reference{session};
        const auto folder = folderOf(id);
        reference.Name = folder.name();
        reference.EntryID = folder.entryId();
        reference.StoreID = folder.storeId();
        reference.Path = fncGetFolderPath(session, folder, session.ounNameSpace);
        return reference;
    }
    void rename(host::FolderId id, const Text& name)
    {
        for (auto record : store->folders())
            if (record.id == id) {
                record.name = name;
                store->updateFolder(record);
            }
    }
    void expectUntouched(const cOutlookFolder& reference)
    {
        EXPECT_EQ(reference.Name, u"name");
        EXPECT_EQ(reference.EntryID, u"entry");
        EXPECT_EQ(reference.StoreID, u"store");
        EXPECT_EQ(reference.Path, u"path");
    }
    [[nodiscard]] cOutlookFolder filled()
    {
        cOutlookFolder reference{session};
        reference.Name = u"name";
        reference.EntryID = u"entry";
        reference.StoreID = u"store";
        reference.Path = u"path";
        return reference;
    }

    host::FolderId roomId{};
    host::FolderId otherId{};
};

TEST_F(OutlookFolder, IsEmptyAtFirstAndLeadsNowhere)
{
    const cOutlookFolder reference{session};
    EXPECT_EQ(reference.Name + reference.EntryID + reference.StoreID + reference.Path, u"");
    EXPECT_FALSE(reference.GetFolder());
}

TEST_F(OutlookFolder, IsTakenFromTheFolderThatTheUserPicks)
{
    windows.picked = roomId;
    cOutlookFolder reference{session};
    reference.GetOutlookPathInfo(nullptr);
    const auto expected = referenceTo(roomId);
    EXPECT_EQ(reference.Name, u"Room 1");
    EXPECT_EQ(reference.EntryID, expected.EntryID);
    EXPECT_EQ(reference.StoreID, expected.StoreID);
    EXPECT_EQ(reference.Path, u"\\\\Public Folders\\All Public Folders\\Roomfold\\Room 1");
    EXPECT_EQ(reference.GetFolder(), folderOf(roomId));
}

TEST_F(OutlookFolder, StaysAsItIsWhenTheUserCancels)
{
    auto reference = filled();
    reference.GetOutlookPathInfo(nullptr);
    reference.GetOutlookPathInfo(nullptr, outlook::ItemType::Appointment);
    expectUntouched(reference);
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(OutlookFolder, StaysAsItIsWhenThePickedFolderIsForOtherItems)
{
    session.language.loadQuietly();
    windows.picked = rootId;
    auto reference = filled();
    reference.GetOutlookPathInfo(nullptr, outlook::ItemType::Appointment);
    expectUntouched(reference);
    ASSERT_EQ(toolkit.messages.size(), 1U);
    EXPECT_EQ(toolkit.messages.front().text, session.language.phrases().LNGWRONGFOLDERTYPE);
    windows.picked = roomId;
    reference.GetOutlookPathInfo(nullptr, outlook::ItemType::Appointment);
    EXPECT_EQ(reference.Name, u"Room 1");
}

TEST_F(OutlookFolder, StaysAsItIsWhicheverCallOfTheHostFails)
{
    windows.picked = roomId;
    putFaultBeforeHost();
    cOutlookFolder counted{session};
    counted.GetOutlookPathInfo(nullptr, outlook::ItemType::Appointment);
    const int uses = fault->uses;
    for (int use = 1; use <= uses; ++use) {
        *fault = {.uses = 0, .failingUse = use};
        auto reference = filled();
        reference.GetOutlookPathInfo(nullptr, outlook::ItemType::Appointment);
        if (reference.Name == u"name")
            expectUntouched(reference);
        else
            EXPECT_EQ(reference.GetFolder(), folderOf(roomId)) << use;
    }
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(OutlookFolder, LeadsByItsIds)
{
    auto reference = referenceTo(roomId);
    reference.Path = u"";
    EXPECT_EQ(reference.GetFolder(), folderOf(roomId));
    reference.Path = u"\\\\Nowhere";
    EXPECT_EQ(reference.GetFolder(), folderOf(roomId));
}

TEST_F(OutlookFolder, WithOnlyAPathLeadsByIt)
{
    cOutlookFolder reference{session};
    reference.Path = u"\\\\Public Folders\\All Public Folders\\Roomfold\\Room 1";
    EXPECT_EQ(reference.GetFolder(), folderOf(roomId));
}

TEST_F(OutlookFolder, LeadsByItsPathWhereItsIdsLeadNowhere)
{
    auto reference = referenceTo(roomId);
    for (const TextView id : {u"0000", u"nonsense"}) {
        reference.EntryID = id;
        EXPECT_EQ(reference.GetFolder(), folderOf(roomId)) << toUtf8(id);
    }
}

TEST_F(OutlookFolder, LeadsByItsPathWhereItsIdsNameAFolderOfAnotherName)
{
    auto reference = referenceTo(roomId);
    reference.EntryID = folderOf(otherId).entryId();
    EXPECT_EQ(reference.GetFolder(), folderOf(roomId));
    reference.Path = u"\\\\Public Folders\\All Public Folders\\Roomfold\\Room 2";
    EXPECT_FALSE(reference.GetFolder()) << "another name there too";
    reference.Path = u"";
    EXPECT_FALSE(reference.GetFolder());
}

TEST_F(OutlookFolder, DoesNotLeadToARenamedFolder)
{
    const auto reference = referenceTo(roomId);
    rename(roomId, u"Room 1 (old)");
    EXPECT_FALSE(reference.GetFolder());
    addFolder(rootId, u"Room 1", outlook::ItemType::Appointment);
    EXPECT_EQ(reference.GetFolder().name(), u"Room 1") << "the one that took its place";
}

TEST_F(OutlookFolder, TellsNamesApartByCase)
{
    const auto reference = referenceTo(roomId);
    rename(roomId, u"ROOM 1");
    EXPECT_FALSE(reference.GetFolder());
}

TEST_F(OutlookFolder, WithoutANameTakesWhateverItsIdsOrItsPathGive)
{
    auto reference = referenceTo(roomId);
    reference.Name = u"";
    rename(roomId, u"Room 1 (old)");
    EXPECT_EQ(reference.GetFolder(), folderOf(roomId));
    reference.EntryID = u"";
    reference.Path = u"\\\\Public Folders\\All Public Folders\\Roomfold\\Room 2";
    EXPECT_EQ(reference.GetFolder(), folderOf(otherId));
}

TEST_F(OutlookFolder, OfAPersonsPathIsTheSharedDefaultFolder)
{
    host::ensureMailbox(*store, u"Richard Roe");
    cOutlookFolder reference{session};
    reference.Path = u"Richard Roe";
    EXPECT_EQ(reference.GetFolder().name(), u"Inbox");
}

TEST_F(OutlookFolder, IsItselfOrNoneWhicheverCallOfTheHostFails)
{
    putFaultBeforeHost();
    const auto reference = referenceTo(roomId);
    for (int use = 1; use <= 12; ++use) {
        *fault = {.uses = 0, .failingUse = use};
        const auto found = reference.GetFolder();
        *fault = {};
        EXPECT_TRUE(!found || found.entryId() == reference.EntryID) << use;
    }
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(OutlookFolder, AsksForTheFolderAndItsNameOnce)
{
    const auto reference = referenceTo(roomId);
    putFaultBeforeHost();
    static_cast<void>(reference.GetFolder());
    EXPECT_EQ(fault->uses, 2) << "GetFolderFromID, Name";
}

TEST_F(OutlookFolder, IsStoredInFourTexts)
{
    const auto item = newPost();
    const auto reference = referenceTo(roomId);
    reference.SaveToOutlookProps(item);
    EXPECT_EQ(item.userProperties().count(), 4);
    EXPECT_EQ(item.userProperties().item(1).name(), u"OutlookFolderName");
    EXPECT_EQ(item.userProperties().item(2).name(), u"OutlookFolderEntryID");
    EXPECT_EQ(item.userProperties().item(3).name(), u"OutlookFolderStoreID");
    EXPECT_EQ(item.userProperties().item(4).name(), u"OutlookFolderPath");
    EXPECT_EQ(stored(item, u"OutlookFolderPath"), Variant{reference.Path});
    EXPECT_EQ(item.userProperties().item(4).type(), outlook::UserPropertyType::Text);
    EXPECT_FALSE(item.saved());
}

TEST_F(OutlookFolder, DoesNotOverwriteAReferenceOfAnotherSuffix)
{
    const auto item = newPost();
    referenceTo(roomId).SaveToOutlookProps(item, u"First");
    referenceTo(otherId).SaveToOutlookProps(item, u"Second");
    EXPECT_EQ(stored(item, u"OutlookFolderNameFirst"), Variant{u"Room 1"});
    cOutlookFolder first{session};
    first.GetFromOutlookProps(item, u"First");
    cOutlookFolder second{session};
    second.GetFromOutlookProps(item, u"Second");
    cOutlookFolder plain = filled();
    plain.GetFromOutlookProps(item);
    EXPECT_EQ(first.GetFolder(), folderOf(roomId));
    EXPECT_EQ(second.GetFolder(), folderOf(otherId));
    EXPECT_EQ(plain.Name + plain.EntryID + plain.StoreID + plain.Path, u"") << "nothing is stored without a suffix";
}

TEST_F(OutlookFolder, ReportsThatItCannotBeStored)
{
    const auto item = newPost();
    item.userProperties().add(u"OutlookFolderEntryID", outlook::UserPropertyType::DateTime);
    EXPECT_NE(reportOf([&] { filled().SaveToOutlookProps(item); }), u"");
}

TEST_F(OutlookFolder, ReadsPropertiesOfAnotherTypeAsTexts)
{
    const auto item = newPost();
    item.userProperties().add(u"OutlookFolderName", outlook::UserPropertyType::Number).setValue(12.0);
    cOutlookFolder reference{session};
    reference.GetFromOutlookProps(item);
    EXPECT_EQ(reference.Name, u"12");
}

} // namespace
} // namespace rf
