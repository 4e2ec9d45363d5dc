#include "app/user_name.h"
#include "support/session_fixture.h"

namespace rf {
namespace {

using test::ProgramEnded;

class UserName : public test::SessionTest {
protected:
    UserName()
    {
        const auto shell = std::make_shared<Shell>();
        classes.factories[Text{outlook::shellClass}] = [shell] { return automation::Object{shell}; };
    }

    Text nameOf(const Text& mailbox)
    {
        runVisibleHost(u"11.0", mailbox);
        Session session{services()};
        return fncGetUserName(session);
    }

private:
    /// The environment of a log-on named jdoe.
    class Shell final : public automation::LocalObject<Shell> {
    public:
        static constexpr TextView className = u"Shell";
        [[nodiscard]] static std::span<const automation::LocalMember<Shell>> members()
        {
            static constexpr std::array table{automation::LocalMember<Shell>{
                u"ExpandEnvironmentStrings", [](Shell&, const automation::Arguments& arguments) -> automation::Variant {
                    return replaceAll(arguments[0].text(), u"%USERNAME%", u"jdoe");
                }}};
            return table;
        }
    };
};

TEST_F(UserName, IsTheTextBehindTheFirstDashOfTheMailboxName)
{
    EXPECT_EQ(nameOf(u"Mailbox - Jane Doe"), u"Jane Doe");
    EXPECT_EQ(nameOf(u"Postfach -   Doe, Jane - Sales "), u"Doe, Jane - Sales");
}

TEST_F(UserName, IsTheWholeMailboxNameWithACommaAndNoDash)
{
    EXPECT_EQ(nameOf(u"Doe, Jane"), u"Doe, Jane");
    EXPECT_EQ(nameOf(u"Doe-Smith, Jane"), u"Doe-Smith, Jane");
}

TEST_F(UserName, IsTheLogOnNameWhereTheMailboxTellsNone) { EXPECT_EQ(nameOf(u"Personal Folders"), u"jdoe"); }

TEST_F(UserName, IsTheLogOnNameWhereNothingStandsBehindTheDash) { EXPECT_EQ(nameOf(u"Mailbox - "), u"jdoe"); }

TEST_F(UserName, IsAskedForOnce)
{
    runVisibleHost();
    Session session{services()};
    session.strUserName = u"Roe, Jane";
    EXPECT_EQ(fncGetUserName(session), u"Roe, Jane");
    EXPECT_TRUE(classes.asked.empty());
}

TEST_F(UserName, EndsTheProgramWithoutAHost)
{
    Session session{services()};
    EXPECT_THROW(static_cast<void>(fncGetUserName(session)), ProgramEnded);
}

TEST_F(UserName, IsTheLogOnNameWhenTheHostRefuses)
{
    runVisibleHost();
    const auto fault = std::make_shared<test::Fault>(test::Fault{0, 1});
    Session session{services()};
    session.ouaApp = outlook::Application{test::FaultyDispatch::wrap(automation::Object{host}, fault)};
    EXPECT_EQ(fncGetUserName(session), u"jdoe");
}

TEST_F(UserName, AnnouncesWhereItLooks)
{
    runVisibleHost();
    Session session{services()};
    session.ouaApp = outlook::Application{automation::Object{host}};
    subGetSafeMailboxName(session);
    EXPECT_EQ(session.trace.fncLastAction(), u"Getting current user full name from mailbox name");
}

} // namespace
} // namespace rf
