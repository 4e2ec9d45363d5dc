#pragma once

#include "app/session.h"
#include "basic/clock.h"
#include "basic/pattern_regional.h"
#include "host/application.h"
#include "host/installation.h"
#include "host/items.h"
#include "host/memory_store.h"
#include "support/faulty_dispatch.h"
#include "support/native.h"
#include "support/platform_classes.h"
#include "support/recording_toolkit.h"
#include "support/test_classes.h"
#include "support/test_system.h"

#include <gtest/gtest.h>

namespace rf::test {

inline RegionalSettings withLocale(RegionalSettings settings, std::uint32_t localeId)
{
    settings.localeId = localeId;
    return settings;
}

/// Keeps the alerts that the host was asked for.
class RecordingWindows final : public host::HostWindows {
public:
    std::vector<Text> alerts;
    std::int32_t answer = 1;
    std::optional<host::FolderId> picked;

    std::int32_t alert(const Text& title, const Text& message, std::int32_t buttons, std::int32_t icon) override
    {
        alerts.push_back(title + u"|" + message + u"|" + decimal(buttons) + u"|" + decimal(icon));
        return answer;
    }
    std::optional<host::FolderId> pickFolder(const std::vector<host::FolderRecord>&) override { return picked; }
};

/// A program with the host of this process, both as a test sets them up.
class SessionTest : public ::testing::Test {
protected:
    SessionTest()
    {
        system.languageTable = builtInLanguageTable();
        for (const TextView className : {outlook::dictionaryClass, outlook::fileSystemClass, outlook::shellClass})
            classes.factories[Text{className}] = [className] { return platformClasses().create(className); };
    }

    /// Makes a host that the program can attach to, with the mailbox of a person.
    host::Application& runHost(const Text& version = u"11.0.8169", const Text& mailbox = u"Mailbox - Jane Doe")
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

    /// The same with a window on the calendar, in front.
    host::Application& runVisibleHost(const Text& version = u"11.0.8169", const Text& mailbox = u"Mailbox - Jane Doe")
    {
        runHost(version, mailbox);
        host->explorers().add(folder(host::FolderRole::Calendar))->activate();
        return *host;
    }

    /// A host with an installation of one resource calendar, as a whole start of the program needs it. Answers the
    /// installation's root folder.
    host::FolderId runInstalledHost(const Text& version = u"11.0.8169", const Text& mailbox = u"Mailbox - Jane Doe")
    {
        runHost(version, mailbox);
        const auto root = host::ensureRoomfoldRoot(*store, u"Roomfold", u"file:///pages/Roomfold.htm");
        host::ensureCalendar(*store, root, u"Room 1");
        return root;
    }

    /// The same with a window on the root folder, in front.
    host::Application& runVisibleInstallation(
        const Text& version = u"11.0.8169", const Text& mailbox = u"Mailbox - Jane Doe")
    {
        const auto root = runInstalledHost(version, mailbox);
        host->explorers().add(std::make_shared<host::Folder>(host->model().shared_from_this(), root))->activate();
        return *host;
    }

    /// A default folder of the mailbox.
    [[nodiscard]] std::shared_ptr<host::Folder> folder(host::FolderRole role) const
    {
        for (const auto& record : store->folders())
            if (record.role == role)
                return std::make_shared<host::Folder>(host->model().shared_from_this(), record.id);
        return nullptr;
    }

    /// The mails in the drafts, as they were saved.
    [[nodiscard]] std::vector<host::ItemRecord> drafts() const
    {
        std::vector<host::ItemRecord> mails;
        for (const auto id : store->items(folder(host::FolderRole::Drafts)->id()))
            mails.push_back(*store->read(id));
        return mails;
    }

    [[nodiscard]] Services services() { return {*regional, clock, classes, system, processes, toolkit}; }

    std::unique_ptr<Regional> regional = std::make_unique<PatternRegional>(englishSettings());
    FixedClock clock{Date::fromFields({2007, 3, 5, 9, 4, 17})};
    TestClasses classes;
    TestSystem system;
    TestProcesses processes;
    RecordingToolkit toolkit;
    RecordingWindows windows;
    std::unique_ptr<host::MemoryStore> store;
    std::shared_ptr<host::Application> host;
};

} // namespace rf::test
