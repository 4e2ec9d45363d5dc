#pragma once

#include "host/store/store_fixture.h"

namespace rf::host::test {

TEST_P(StoreSuite, KeepsEverythingOfAFolder)
{
    FolderRecord folder = calendar(u"Raum \u00DF \U0001F600", room());
    folder.role = FolderRole::Calendar;
    folder.webViewUrl = u"http://example.org/orders";
    folder.webViewOn = true;
    folder.fields = {{u"LinkID", 1}, {u"Amount", 3}};
    folder.id = store().addFolder(folder);

    EXPECT_EQ(store().folders().back(), folder);
    EXPECT_EQ(store().folder(folder.id), folder);
}

TEST_P(StoreSuite, AnswersForOneFolderAsItIsNow)
{
    FolderRecord folder = calendar(u"Renamed", room());
    folder.id = store().addFolder(calendar(u"Below", room()));
    store().updateFolder(folder);

    EXPECT_EQ(store().folder(folder.id), folder);
    EXPECT_EQ(store().folder(FolderId::None), std::nullopt);
    store().removeFolder(room());
    EXPECT_EQ(store().folder(folder.id), std::nullopt);
}

TEST_P(StoreSuite, IgnoresTheNumberOfANewFolder)
{
    FolderRecord folder = calendar(u"Other");
    folder.id = room();

    EXPECT_NE(store().addFolder(folder), room());
    EXPECT_EQ(store().folders().size(), 2U);
}

TEST_P(StoreSuite, NamesParentsBeforeTheirChildrenAndSiblingsInTheOrderOfTheirMaking)
{
    const FolderId first = store().addFolder(calendar(u"First", room()));
    const FolderId second = store().addFolder(calendar(u"Second", room()));
    const FolderId other = store().addFolder(calendar(u"Other"));
    FolderRecord moved = calendar(u"First", other);
    moved.id = first;
    store().updateFolder(moved);

    std::vector<FolderId> order;
    for (const FolderRecord& folder : store().folders())
        order.push_back(folder.id);
    EXPECT_EQ(order, (std::vector{room(), other, second, first}));
}

TEST_P(StoreSuite, AnswersForTheFoldersInOneFolder)
{
    const FolderId first = store().addFolder(calendar(u"First", room()));
    const FolderId second = store().addFolder(calendar(u"Second", room()));
    store().addFolder(calendar(u"Deeper", second));

    EXPECT_EQ(store().countFolders(room()), 2U);
    EXPECT_EQ(store().folderAt(room(), 0), first);
    EXPECT_EQ(store().folderAt(room(), 1), second);
    EXPECT_EQ(store().folderAt(room(), 2), std::nullopt);
    EXPECT_EQ(store().folderNamed(room(), u"SECOND"), second);
    EXPECT_EQ(store().folderNamed(room(), u"Deeper"), std::nullopt);
    store().removeFolder(first);
    EXPECT_EQ(store().countFolders(room()), 1U);
    EXPECT_EQ(store().folderAt(room(), 0), second);
}

TEST_P(StoreSuite, AnswersForTheMessageStoresAsForTheFoldersInNone)
{
    const FolderId other = store().addFolder(calendar(u"Other"));

    EXPECT_EQ(store().countFolders(FolderId::None), 2U);
    EXPECT_EQ(store().folderAt(FolderId::None, 1), other);
    EXPECT_EQ(store().folderNamed(FolderId::None, u"other"), other);
}

TEST_P(StoreSuite, CountsAMovedFolderWhereItLiesNow)
{
    const FolderId first = store().addFolder(calendar(u"First", room()));
    const FolderId other = store().addFolder(calendar(u"Other"));
    store().addFolder(calendar(u"Younger", other));
    FolderRecord moved = calendar(u"First", other);
    moved.id = first;
    store().updateFolder(moved);

    EXPECT_EQ(store().countFolders(room()), 0U);
    EXPECT_EQ(store().folderAt(other, 0), first);
}

TEST_P(StoreSuite, ReplacesEverythingOfAFolder)
{
    FolderRecord folder = calendar(u"Renamed");
    folder.id = room();
    folder.fields = {{u"Link", 1}};
    folder.defaultItemType = 6;
    store().updateFolder(folder);

    EXPECT_EQ(store().folders(), std::vector{folder});
}

TEST_P(StoreSuite, ChangesAFolderAsItIsByThen)
{
    FolderRecord folder = *store().folder(room());
    folder.fields = {{u"Link", 1}};
    store().updateFolder(folder);

    store().change(room(), [](FolderRecord& stored) {
        stored.name = u"Renamed";
        stored.id = FolderId{99};
    });
    folder.name = u"Renamed";
    EXPECT_EQ(store().folder(room()), folder);
    EXPECT_EQ(store().folderNamed(FolderId::None, u"renamed"), room());
}

TEST_P(StoreSuite, KeepsAFolderWhoseChangeFails)
{
    const FolderRecord before = *store().folder(room());
    const auto failing = [](FolderRecord& stored) {
        stored.name = u"Half done";
        throw StoreError{StoreFault::Failed, u"No."};
    };
    const auto intoItself = [](FolderRecord& stored) { stored.parent = stored.id; };
    const auto intoNothing = [](FolderRecord& stored) { stored.parent = FolderId{99}; };

    EXPECT_EQ(faultOf([&] { store().change(room(), failing); }), StoreFault::Failed);
    EXPECT_EQ(faultOf([&] { store().change(room(), intoItself); }), StoreFault::Failed);
    EXPECT_EQ(faultOf([&] { store().change(room(), intoNothing); }), StoreFault::Missing);
    EXPECT_EQ(faultOf([&] { store().change(FolderId{99}, failing); }), StoreFault::Missing);
    EXPECT_EQ(store().folder(room()), before);
}

TEST_P(StoreSuite, RefusesAFolderBelowOneThatIsNotThere)
{
    EXPECT_EQ(faultOf([&] { store().addFolder(calendar(u"Lost", FolderId{99})); }), StoreFault::Missing);
    FolderRecord folder = calendar(u"Lost", FolderId{99});
    folder.id = room();
    EXPECT_EQ(faultOf([&] { store().updateFolder(folder); }), StoreFault::Missing);
    EXPECT_EQ(store().folders().front().name, u"Room");
}

TEST_P(StoreSuite, RefusesAFolderInsideItself)
{
    FolderRecord folder = calendar(u"Room", store().addFolder(calendar(u"Below", room())));
    folder.id = room();

    EXPECT_EQ(faultOf([&] { store().updateFolder(folder); }), StoreFault::Failed);
    folder.parent = room();
    EXPECT_EQ(faultOf([&] { store().updateFolder(folder); }), StoreFault::Failed);
    EXPECT_EQ(store().folders().size(), 2U);
}

TEST_P(StoreSuite, RemovesAFolderWithAllThatIsInIt)
{
    const FolderId below = store().addFolder(calendar(u"Below", room()));
    const ItemRecord upper = saved(u"Upper");
    ItemRecord lower = appointment(below, u"Lower", at(1), at(1));
    lower.userProperties = {{u"Link", 1, Text{u"A"}}};
    store().save(lower);
    const FolderId other = store().addFolder(calendar(u"Other"));

    store().removeFolder(room());

    ASSERT_EQ(store().folders().size(), 1U);
    EXPECT_EQ(store().folders().front().id, other);
    EXPECT_FALSE(store().read(upper.id));
    EXPECT_FALSE(store().read(lower.id));
    EXPECT_TRUE(store().withProperty(below, u"Link", u"A").empty());
}

TEST_P(StoreSuite, MissesAFolderThatWasRemoved)
{
    FolderRecord folder = calendar(u"Room");
    folder.id = room();
    store().removeFolder(room());

    EXPECT_EQ(faultOf([&] { store().updateFolder(folder); }), StoreFault::Missing);
    EXPECT_EQ(faultOf([&] { store().removeFolder(room()); }), StoreFault::Missing);
    EXPECT_EQ(store().count(room()), 0U);
}

TEST_P(StoreSuite, NeverUsesANumberAgain)
{
    const ItemId item = saved(u"Last").id;
    EXPECT_TRUE(store().remove(item));
    EXPECT_GT(saved(u"Next").id, item);

    store().removeFolder(room());
    EXPECT_GT(store().addFolder(calendar(u"Next")), room());
}

} // namespace rf::host::test
