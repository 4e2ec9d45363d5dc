#include "support/session_fixture.h"

namespace rf::test {

RecordingWindows::RecordingWindows() = default;
RecordingWindows::~RecordingWindows() = default;

std::int32_t RecordingWindows::alert(const Text& title, const Text& message, std::int32_t buttons, std::int32_t icon)
{
    alerts.push_back(title + u"|" + message + u"|" + decimal(buttons) + u"|" + decimal(icon));
    return answer;
}

std::optional<host::FolderId> RecordingWindows::pickFolder(const std::vector<host::FolderRecord>& /*folders*/)
{
    return picked;
}

SessionTest::SessionTest()
{
    system.languageTable = builtInLanguageTable();
    for (const TextView className : {outlook::dictionaryClass, outlook::fileSystemClass, outlook::shellClass})
        classes.factories[Text{className}] = [className] { return platformClasses().create(className); };
}

SessionTest::~SessionTest() = default;

host::Application& SessionTest::runHost(const Text& version, const Text& mailbox)
{
    store = std::make_unique<host::MemoryStore>();
    host::ensureMailbox(*store, u"Jane Doe");
    auto root = store->folders().front();
    root.name = mailbox;
    store->updateFolder(root);
    host = host::Application::make({*store, *regional, clock, windows, nullptr}, {version, mailbox});
    classes.runningObjects[Text{outlook::applicationClass}] = automation::Object{host};
    return *host;
}

host::Application& SessionTest::runVisibleHost(const Text& version, const Text& mailbox)
{
    runHost(version, mailbox);
    host->explorers().add(folder(host::FolderRole::Calendar))->activate();
    return *host;
}

host::FolderId SessionTest::runInstalledHost(const Text& version, const Text& mailbox)
{
    runHost(version, mailbox);
    const auto root = host::ensureRoomfoldRoot(*store, u"Roomfold", u"file:///pages/Roomfold.htm");
    host::ensureCalendar(*store, root, u"Room 1");
    return root;
}

host::Application& SessionTest::runVisibleInstallation(const Text& version, const Text& mailbox)
{
    const auto root = runInstalledHost(version, mailbox);
    host->explorers().add(std::make_shared<host::Folder>(host->model().shared_from_this(), root))->activate();
    return *host;
}

std::shared_ptr<host::Folder> SessionTest::folder(host::FolderRole role) const
{
    for (const auto& record : store->folders())
        if (record.role == role)
            return std::make_shared<host::Folder>(host->model().shared_from_this(), record.id);
    return nullptr;
}

std::vector<host::ItemRecord> SessionTest::drafts() const
{
    std::vector<host::ItemRecord> mails;
    for (const auto id : store->items(folder(host::FolderRole::Drafts)->id()))
        mails.push_back(*store->read(id));
    return mails;
}

Services SessionTest::services() { return {*regional, clock, classes, system, processes, toolkit}; }

} // namespace rf::test
