#include "support/session_fixture.h"

#include <array>

namespace rf {
namespace {

using test::ProgramEnded;

/// A shell that keeps what it was asked to run.
class RecordingShell final : public automation::LocalObject<RecordingShell> {
public:
    static constexpr TextView className = u"Shell";
    [[nodiscard]] static std::span<const automation::LocalMember<RecordingShell>> members()
    {
        static constexpr std::array table{automation::LocalMember<RecordingShell>{
            u"Run", [](RecordingShell& self, const automation::Arguments& arguments) -> automation::Variant {
                self.run.push_back(arguments[0].text());
                if (self.fails)
                    throw automation::Error{-2147024894, {u"The system cannot find the file specified.", {}, {}}};
                return std::int32_t{0};
            }}};
        return table;
    }

    std::vector<Text> run;
    bool fails = false;
};

class Files : public test::SessionTest {
protected:
    void recordShell()
    {
        classes.factories[Text{outlook::shellClass}] = [this] { return automation::Object{shell}; };
    }

    std::shared_ptr<RecordingShell> shell = std::make_shared<RecordingShell>();
    Session session{services()};
};

TEST_F(Files, ShareOneFileSystemObject)
{
    session.files.subSetupFS();
    session.files.subSetupFS();
    EXPECT_TRUE(session.files.fsoShared());
    EXPECT_EQ(classes.asked, (std::vector<Text>{u"create Scripting.FileSystemObject"}));
    EXPECT_EQ(session.trace.fncLastAction(), u"Creating Scripting.FileSystemObject");
}

TEST_F(Files, ReportAMissingFileSystemObject)
{
    classes.factories.erase(Text{outlook::fileSystemClass});
    EXPECT_THROW(session.files.subSetupFS(), ProgramEnded);
    EXPECT_NE(toolkit.messages.at(0).text.find(u"Sub routine : subSetupFS \r\n"), Text::npos);
}

TEST_F(Files, KnowTheTemporaryFolder)
{
    const Text path = session.files.fncGetTempPath();
    EXPECT_FALSE(path.empty());
    EXPECT_TRUE(session.files.fsoShared().folderExists(path));
    EXPECT_EQ(session.trace.fncLastAction(), u"Finding Temp folder path");
}

TEST_F(Files, AreSavedIntoTheTemporaryFolderAndReplaceOneOfThatName)
{
    session.files.fncSaveTextFile(u"a longer text than the second one", u"rf file handling test.tmp");
    const Text path = session.files.fncSaveTextFile(u"Übersicht – Комната", u"rf file handling test.tmp");
    const auto& fso = session.files.fsoShared();
    EXPECT_EQ(path, fso.buildPath(session.files.fncGetTempPath(), u"rf file handling test.tmp"));
    EXPECT_EQ(fso.openTextFile(path, outlook::OpenMode::Read, false, outlook::TextFormat::Unicode).readAll(),
        u"Übersicht – Комната");
    fso.deleteFile(path);
}

TEST_F(Files, GetAnEndingWhenTheirNameHasNone)
{
    const Text path = session.files.fncSaveTextFile(u"text", u"rf file handling test");
    EXPECT_TRUE(path.ends_with(u"rf file handling test.tmp"));
    session.files.fsoShared().deleteFile(path);
}

TEST_F(Files, ThatCannotBeWrittenHaveNoPath)
{
    EXPECT_EQ(session.files.fncSaveTextFile(u"text", u"no such folder/file.tmp"), u"");
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(Files, ArePrintedByTheShellVerb)
{
    session.files.subPrintFile(u"/tmp/page.htm");
    ASSERT_EQ(system.verbs.size(), 1U);
    EXPECT_EQ(system.verbs[0], (std::pair<Text, Text>{u"Print", u"/tmp/page.htm"}));
    EXPECT_EQ(session.trace.fncLastAction(), u"Attempting to print the file /tmp/page.htm");
}

TEST_F(Files, ThatArePagesOrMailsAreHandedToTheShellInAnyCase)
{
    recordShell();
    for (const TextView target : {u"http://roomfold.example", u"HTTPS://roomfold.example", u"Mailto:support@x.example"})
        session.files.subExecute(Text{target});
    EXPECT_EQ(shell->run,
        (std::vector<Text>{u"http://roomfold.example", u"HTTPS://roomfold.example", u"Mailto:support@x.example"}));
    EXPECT_EQ(session.trace.fncLastAction(), u"Attempting to execute Mailto:support@x.example");
}

TEST_F(Files, OfAnyOtherKindAreRunAsAProgram)
{
    recordShell();
    session.files.subExecute(u"notepad");
    session.files.subExecute(u"htt");
    EXPECT_EQ(shell->run, (std::vector<Text>{u"notepad.exe", u"htt.exe"}));
}

TEST_F(Files, GoToTheRegisteredBrowserWhenTheShellKnowsNone)
{
    recordShell();
    shell->fails = true;
    system.browser = u"\"C:\\Browser\\browser.exe\" -- \"%1\"";
    session.files.subExecute(u"http://roomfold.example");
    ASSERT_EQ(system.launched.size(), 1U);
    EXPECT_EQ(system.launched[0].first, u"\"C:\\Browser\\browser.exe\" -- \"http://roomfold.example\"");
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(Files, ThatCannotBeExecutedAreNamedInAMessage)
{
    recordShell();
    shell->fails = true;
    for (const TextView target : {u"http://roomfold.example", u"notepad"}) {
        toolkit.messages.clear();
        session.files.subExecute(Text{target});
        ASSERT_EQ(toolkit.messages.size(), 1U);
        EXPECT_EQ(
            toolkit.messages[0].text, u"The system cannot find the file specified.\r\nmodFileHandling.subExecute");
        EXPECT_EQ(toolkit.messages[0].caption, u"Roomfold for Outlook Booking Info");
    }
}

} // namespace
} // namespace rf
