#include "host/host_fixture.h"

namespace rf::outlook {

namespace {

class HostMailItem : public test::HostTest {
protected:
    MailItem mail_ = application().createItem(ItemType::Mail).as<MailItem>();
};

TEST_F(HostMailItem, IsEmptyAtFirst)
{
    EXPECT_EQ(mail_.to(), u"");
    EXPECT_EQ(mail_.subject(), u"");
    EXPECT_EQ(mail_.body(), u"");
    EXPECT_EQ(mail_.entryId(), u"");
    EXPECT_TRUE(drafts().empty());
}

TEST_F(HostMailItem, KeepsWhatIsWritten)
{
    mail_.setTo(u"support@example.com");
    mail_.setSubject(u"Bestellung für Raum 1");
    mail_.setBody(u"Two coffees\r\nOne tea");
    EXPECT_EQ(mail_.to(), u"support@example.com");
    EXPECT_EQ(mail_.subject(), u"Bestellung für Raum 1");
    EXPECT_EQ(mail_.body(), u"Two coffees\r\nOne tea");
}

TEST_F(HostMailItem, LiesInTheDraftsOnceItIsSaved)
{
    mail_.setTo(u"support@example.com");
    mail_.setSubject(u"Bestellung für Raum 1");
    mail_.setBody(u"Two coffees");
    EXPECT_FALSE(mail_.saved());
    mail_.save();
    EXPECT_TRUE(mail_.saved());
    EXPECT_NE(mail_.entryId(), u"");
    ASSERT_EQ(drafts().size(), 1U);
    EXPECT_EQ(drafts()[0].to, u"support@example.com");
    EXPECT_EQ(drafts()[0].subject, u"Bestellung für Raum 1");
    EXPECT_EQ(drafts()[0].body, u"Two coffees");
}

TEST_F(HostMailItem, IsOneOfSeveral)
{
    const auto second = application().createItem(ItemType::Mail);
    second.setSubject(u"second");
    EXPECT_FALSE(second == mail_);
    EXPECT_EQ(mail_.subject(), u"");
}

} // namespace

} // namespace rf::outlook
