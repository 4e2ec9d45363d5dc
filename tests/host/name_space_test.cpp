#include "basic/error_of.h"
#include "host/host_error.h"
#include "host/host_fixture.h"

namespace rf::outlook {

namespace {

using test::errorOf;

class HostNameSpace : public test::HostTest { };

TEST_F(HostNameSpace, HasAnInboxAndACalendar)
{
    EXPECT_EQ(inbox().name(), u"Inbox");
    EXPECT_EQ(calendar().name(), u"Calendar");
    EXPECT_FALSE(inbox() == calendar());
}

TEST_F(HostNameSpace, AnswersWithTheSameFolderEachTime) { EXPECT_TRUE(calendar() == calendar()); }

TEST_F(HostNameSpace, KeepsItsFoldersInOneMailbox)
{
    EXPECT_EQ(calendar().parent().name(), u"Mailbox - Jane Doe");
    EXPECT_TRUE(calendar().parent() == inbox().parent());
    EXPECT_TRUE(calendar().parent().isFolder());
}

TEST_F(HostNameSpace, HoldsTheMailbox)
{
    EXPECT_EQ(calendar().parent().parent().objectClass(), ObjectClass::NameSpace);
    EXPECT_TRUE(nameSpace().folders().item(u"Mailbox - Jane Doe") == calendar().parent());
}

TEST_F(HostNameSpace, NamesTheMailboxAsItIsTold)
{
    runHost(u"11.0.8169", u"Postfach - Grün");
    EXPECT_EQ(calendar().parent().name(), u"Postfach - Grün");
}

TEST_F(HostNameSpace, HasNoOtherDefaultFolder)
{
    for (const std::int32_t number : {0, 5, 7, 8, 10, -1}) {
        const auto line = std::source_location::current().line() + 2;
        try {
            static_cast<void>(nameSpace().getDefaultFolder(static_cast<DefaultFolder>(number)));
            ADD_FAILURE() << number;
        } catch (const automation::Error& error) {
            EXPECT_EQ(error.number(), host::host_error::badArgument);
            EXPECT_EQ(error.where().line(), line);
        }
    }
}

TEST_F(HostNameSpace, HasToBeToldWhichFolder)
{
    const auto object = nameSpace().object();
    EXPECT_EQ(errorOf([&] { object.call(u"GetDefaultFolder"); }), 450);
    EXPECT_EQ(errorOf([&] { object.call(u"GetDefaultFolder", u"Inbox"); }), 13);
}

TEST_F(HostNameSpace, LetsNobodyMoveAFolder)
{
    EXPECT_EQ(errorOf([this] { calendar().object().put(u"Parent", inbox()); }), 438);
}

} // namespace

} // namespace rf::outlook
