#include "host/home_page_content.h"

#include "host/installation.h"
#include "host/memory_store.h"

#include <gtest/gtest.h>

namespace rf::host {

namespace {

struct HomePageContent : testing::Test {
    MemoryStore store;
    FolderId root = ensureRoomfoldRoot(store, u"Roomfold", u"file:///pages/roomfold.htm");

    void describe(const Text& resource, const std::vector<Text>& pieces, automation::Variant count)
    {
        ItemRecord post;
        post.folder = root;
        post.messageClass = u"IPM.Post";
        post.subject = resource;
        for (std::size_t index = 0; index < pieces.size(); ++index)
            post.userProperties.push_back(
                {u"strHTMLDesc" + decimal(static_cast<long long>(index)), 1, automation::Variant{pieces[index]}});
        post.userProperties.push_back({u"strHTMLDescCount", 3, std::move(count)});
        store.save(post);
    }
};

TEST_F(HomePageContent, StandsInTheFolderWithThePage)
{
    auto folder = *store.folder(root);
    EXPECT_TRUE(hasHomePage(folder));
    folder.webViewOn = false;
    EXPECT_FALSE(hasHomePage(folder));
    folder.webViewOn = true;
    folder.webViewUrl = u"file:///pages/RFRedirect.htm";
    EXPECT_FALSE(hasHomePage(folder));
}

TEST_F(HomePageContent, OffersTheCalendarsOfTheRootAndNothingBelow)
{
    const FolderId first = ensureCalendar(store, root, u"Room 2");
    ensureCalendar(store, root, u"Room 1");
    ensureCalendar(store, first, u"Corner");
    std::vector<Text> names;
    for (const FolderRecord& folder : homePageCalendars(store, root))
        names.push_back(folder.name);
    EXPECT_EQ(names, (std::vector<Text>{u"Room 2", u"Room 1"}));
}

TEST_F(HomePageContent, WritesANameOnEachLineOfTheSelection)
{
    EXPECT_EQ(selectionText(std::vector<Text>{u"Room 1", u"Müller"}), "Room 1\r\nM\xC3\xBCller\r\n");
    EXPECT_EQ(selectionText({}), "");
}

TEST_F(HomePageContent, PutsADescriptionTogetherFromItsPieces)
{
    describe(u"Room 1", {u"<p>Large ", u"room</p>", u"left over"}, 1.0);
    EXPECT_EQ(descriptionOf(store, root, u"room 1"), u"<p>Large room</p>");
}

TEST_F(HomePageContent, TakesTheOldestOfSeveralDescriptions)
{
    describe(u"Room 1", {u"old"}, std::int32_t{0});
    describe(u"Room 1", {u"new"}, std::int32_t{0});
    EXPECT_EQ(descriptionOf(store, root, u"Room 1"), u"old");
}

TEST_F(HomePageContent, HasNoDescriptionOfAResourceWithoutOne)
{
    EXPECT_EQ(descriptionOf(store, root, u"Room 1"), u"");
    describe(u"Room 1", {u"text"}, -1.0);
    EXPECT_EQ(descriptionOf(store, root, u"Room 1"), u"");
    describe(u"Room 2", {u"text"}, 1e9);
    EXPECT_EQ(descriptionOf(store, root, u"Room 2"), u"");
    describe(u"Room 3", {u"text"}, Text{u"0"});
    EXPECT_EQ(descriptionOf(store, root, u"Room 3"), u"");
}

TEST_F(HomePageContent, ObjectsToANameThatIsEmptyOrTaken)
{
    ensureCalendar(store, root, u"Room 1");
    EXPECT_NE(objectionToName(store, root, u"  "), u"");
    EXPECT_NE(objectionToName(store, root, u"room 1 "), u"");
    EXPECT_EQ(objectionToName(store, root, u"Room 2"), u"");
}

} // namespace

} // namespace rf::host
