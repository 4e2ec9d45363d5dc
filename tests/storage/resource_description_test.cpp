#include "storage/resource_description.h"

#include "storage/long_property.h"
#include "storage/storage_fixture.h"

namespace rf {
namespace {

using automation::Variant;
using outlook::UserPropertyType;

class ResourceDescription : public test::StorageTest {
protected:
    using StorageTest::StorageTest;

    /// A description item as another user has left it.
    outlook::Item addDescription(TextView name, TextView html)
    {
        auto item = newPost();
        item.setSubject(name);
        subFixLongProperty(session, item, html, u"strHTMLDesc");
        item.save();
        return item;
    }
    [[nodiscard]] outlook::Items itemsOf(TextView name) const
    {
        return session.objRootFolder.items().restrict(u"[Subject] = '" + replaceAll(name, u"'", u"''") + u"'");
    }
    [[nodiscard]] cResourceDescription load(TextView name)
    {
        cResourceDescription description{session};
        description.setResourceName(name);
        return description;
    }
};

class ResourceDescriptionInGerman : public ResourceDescription {
protected:
    ResourceDescriptionInGerman()
        : ResourceDescription(germanSettings())
    {
    }
};

TEST_F(ResourceDescription, IsLoadedWithTheName)
{
    const auto item = addDescription(u"Room 1", u"<p>Second floor</p>");
    item.userProperties().add(u"intSeats", UserPropertyType::Number).setValue(12.0);
    item.userProperties().add(u"curRate2", UserPropertyType::Number).setValue(2.5);
    item.save();
    const auto description = load(u"Room 1");
    EXPECT_EQ(description.resourceName(), u"Room 1");
    EXPECT_EQ(description.ResourceDescHTML(), u"<p>Second floor</p>");
    EXPECT_EQ(description.intSeats, 12);
    EXPECT_EQ(description.curRate, Currency::fromTenThousandths(25000));
}

TEST_F(ResourceDescription, AnnouncesTheLoading)
{
    session.objRootFolder = {};
    const auto report = reportOf([&] { static_cast<void>(load(u"Room 1")); });
    EXPECT_NE(report.find(u"Getting description for calendar Room 1\r\n"), Text::npos);
    EXPECT_NE(report.find(u"cResourceDescription.ResourceName"), Text::npos);
}

TEST_F(ResourceDescription, ThatIsMissingIsMadeEmpty)
{
    const auto description = load(u"Room 1");
    EXPECT_EQ(description.ResourceDescHTML(), u"");
    EXPECT_EQ(description.intSeats, 0);
    EXPECT_EQ(description.curRate, Currency{});
    ASSERT_EQ(itemsOf(u"Room 1").count(), 1);
    const auto item = itemsOf(u"Room 1").item(1);
    EXPECT_EQ(item.messageClass(), u"IPM.Post");
    EXPECT_TRUE(item.saved());
    static_cast<void>(load(u"Room 1"));
    EXPECT_EQ(itemsOf(u"Room 1").count(), 1);
}

TEST_F(ResourceDescription, OfSeveralIsTheOldestAndTheOthersGo)
{
    for (const TextView html : {u"oldest", u"second", u"third"}) {
        addDescription(u"Room 1", html);
        clock.set(clock.now().plusMinutes(1));
    }
    addDescription(u"Room 2", u"another room");
    EXPECT_EQ(load(u"Room 1").ResourceDescHTML(), u"oldest");
    EXPECT_EQ(itemsOf(u"Room 1").count(), 1);
    EXPECT_EQ(itemsOf(u"Room 2").count(), 1);
}

TEST_F(ResourceDescription, OfSeveralIsTheOldestWhateverTheOrderInTheFolder)
{
    addDescription(u"Room 1", u"made later");
    clock.set(clock.now().plusMinutes(-60));
    addDescription(u"Room 1", u"made earlier");
    EXPECT_EQ(load(u"Room 1").ResourceDescHTML(), u"made earlier");
}

TEST_F(ResourceDescription, RemovesDuplicatesOnSavingToo)
{
    auto description = load(u"Room 1");
    addDescription(u"Room 1", u"duplicate");
    description.setResourceDescHTML(u"new");
    description.SaveResourceDesc();
    EXPECT_EQ(itemsOf(u"Room 1").count(), 1);
    EXPECT_EQ(load(u"Room 1").ResourceDescHTML(), u"new");
}

TEST_F(ResourceDescription, IsLoadedThoughDuplicatesCannotBeDeleted)
{
    addDescription(u"Room 1", u"oldest");
    clock.set(clock.now().plusMinutes(1));
    addDescription(u"Room 1", u"duplicate");
    putFaultBeforeHost();
    static_cast<void>(load(u"Room 1"));
    addDescription(u"Room 1", u"duplicate");
    *fault = {.uses = 0, .failingUse = 7};
    EXPECT_EQ(load(u"Room 1").ResourceDescHTML(), u"oldest");
    EXPECT_TRUE(toolkit.messages.empty());
    *fault = {};
}

TEST_F(ResourceDescription, LoadsBackWhatItSaves)
{
    auto description = load(u"Room 1");
    const Text html = u"<p>" + Text(998, u'x') + u"\U0001F600" + Text(3000, u'y') + u"</p>";
    description.setResourceDescHTML(html);
    description.intSeats = 250;
    description.curRate = Currency::fromTenThousandths(1'234'567);
    description.SaveResourceDesc();
    const auto loaded = load(u"Room 1");
    EXPECT_EQ(loaded.ResourceDescHTML(), html);
    EXPECT_EQ(loaded.intSeats, 250);
    EXPECT_EQ(loaded.curRate, Currency::fromTenThousandths(1'234'567));
    EXPECT_TRUE(itemsOf(u"Room 1").item(1).saved());
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(ResourceDescriptionInGerman, KeepsItsRateForUsersOfOtherSettings)
{
    auto description = load(u"Room 1");
    description.curRate = Currency::fromTenThousandths(25000);
    description.SaveResourceDesc();
    EXPECT_EQ(stored(itemsOf(u"Room 1").item(1), u"curRate2"), Variant{2.5});
}

TEST_F(ResourceDescription, OfNamesWithApostrophesIsFound)
{
    addDescription(u"O'Brien's room", u"text");
    EXPECT_EQ(load(u"O'Brien's room").ResourceDescHTML(), u"text");
    EXPECT_EQ(itemsOf(u"O'Brien's room").count(), 1);
}

TEST_F(ResourceDescription, WithPropertiesOfOtherTypesIsReadAsFarAsTheyConvert)
{
    const auto item = addDescription(u"Room 1", u"text");
    const auto properties = item.userProperties();
    properties.add(u"intSeats", UserPropertyType::Text).setValue(u"12");
    properties.add(u"curRate2", UserPropertyType::Text).setValue(u"2.50");
    item.save();
    EXPECT_EQ(load(u"Room 1").intSeats, 12);
    EXPECT_EQ(load(u"Room 1").curRate, Currency::fromTenThousandths(25000));
    properties.find(u"intSeats").setValue(u"many");
    properties.find(u"curRate2").setValue(u"much");
    item.save();
    EXPECT_EQ(load(u"Room 1").intSeats, 0);
    EXPECT_EQ(load(u"Room 1").curRate, Currency{});
    properties.find(u"intSeats").setValue(u"70000");
    item.save();
    EXPECT_EQ(load(u"Room 1").intSeats, 0);
}

TEST_F(ResourceDescription, ThatCannotBeMadeIsToldAndEmpty)
{
    session.language.loadQuietly();
    putFaultBeforeHost();
    *fault = {.uses = 0, .failingUse = 6};
    const auto description = load(u"Room 1");
    EXPECT_EQ(description.ResourceDescHTML(), u"");
    ASSERT_EQ(toolkit.messages.size(), 1U);
    const Phrases& phrases = session.language.phrases();
    EXPECT_EQ(toolkit.messages.front().text,
        phrases.LNGFAILEDSAVEINFO + u"\r\n" + phrases.LNGCHECKPERM + u"\r\nThe operation failed.");
    EXPECT_EQ(toolkit.messages.front().style, (ui::MessageStyle{ui::Buttons::Ok, ui::Icon::Critical}));
    EXPECT_EQ(toolkit.messages.front().caption, u"Roomfold for Outlook Booking Info");
}

TEST_F(ResourceDescription, TellsThatItCannotBeFoundForSaving)
{
    auto description = load(u"Room 1");
    session.objRootFolder = {};
    description.SaveResourceDesc();
    EXPECT_EQ(toolkit.messages.size(), 1U);
}

TEST_F(ResourceDescription, OpensTheSubfolderOfTheRootFolder)
{
    const auto room = addFolder(rootId, u"Room 1", outlook::ItemType::Appointment);
    EXPECT_EQ(load(u"Room 1").fncGetOutlookFolder(), folderOf(room));
    EXPECT_EQ(session.trace.fncLastAction(), u"Opening the Outlook public subfolder Room 1");
}

TEST_F(ResourceDescription, ReportsThatTheSubfolderIsMissing)
{
    const auto description = load(u"Room 1");
    const auto report = reportOf([&] { static_cast<void>(description.fncGetOutlookFolder()); });
    EXPECT_NE(report.find(u"cResourceDescription.fncGetOutlookFolder"), Text::npos);
}

TEST_F(ResourceDescription, OpensTheCalendarOfAMailbox)
{
    host::ensureMailbox(*store, u"Board Room");
    auto description = load(u"Board Room");
    description.blnMailbox = true;
    const auto folder = description.fncGetOutlookFolder();
    EXPECT_EQ(folder.name(), u"Calendar");
    EXPECT_EQ(folder.parent().name(), u"Mailbox - Board Room");
    EXPECT_EQ(session.trace.fncLastAction(), u"Opening the Outlook calendar for the mailbox Board Room");
}

TEST_F(ResourceDescription, AlertsThatAMailboxCannotBeOpened)
{
    session.language.loadQuietly();
    auto description = load(u"Board Room");
    description.blnMailbox = true;
    EXPECT_FALSE(description.fncGetOutlookFolder());
    ASSERT_EQ(windows.alerts.size(), 1U);
    const Phrases& phrases = session.language.phrases();
    EXPECT_EQ(windows.alerts.front(),
        u"Roomfold for Outlook Booking Info|" + phrases.LNGCHECKPERM + u"Board Room " + phrases.LNGUNABLEOPENMAILBOX
            + u"\r\n|0|3");
}

} // namespace
} // namespace rf
