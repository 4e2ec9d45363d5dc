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
#include "support/program_ended.h"
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

    RecordingWindows();
    RecordingWindows(const RecordingWindows&) = delete;
    RecordingWindows& operator=(const RecordingWindows&) = delete;
    ~RecordingWindows() override;

    std::int32_t alert(const Text& title, const Text& message, std::int32_t buttons, std::int32_t icon) override;
    std::optional<host::FolderId> pickFolder(const std::vector<host::FolderRecord>& folders) override;
};

/// A program with the host of this process, both as a test sets them up.
class SessionTest : public ::testing::Test {
public:
    SessionTest(const SessionTest&) = delete;
    SessionTest& operator=(const SessionTest&) = delete;
    ~SessionTest() override;

protected:
    SessionTest();

    /// Makes a host that the program can attach to, with the mailbox of a person.
    host::Application& runHost(const Text& version = u"11.0.8169", const Text& mailbox = u"Mailbox - Jane Doe");
    /// The same with a window on the calendar, in front.
    host::Application& runVisibleHost(const Text& version = u"11.0.8169", const Text& mailbox = u"Mailbox - Jane Doe");
    /// A host with an installation of one resource calendar, as a whole start of the program needs it. Answers the
    /// installation's root folder.
    host::FolderId runInstalledHost(const Text& version = u"11.0.8169", const Text& mailbox = u"Mailbox - Jane Doe");
    /// The same with a window on the root folder, in front.
    host::Application& runVisibleInstallation(
        const Text& version = u"11.0.8169", const Text& mailbox = u"Mailbox - Jane Doe");

    /// A default folder of the mailbox.
    [[nodiscard]] std::shared_ptr<host::Folder> folder(host::FolderRole role) const;
    /// The mails in the drafts, as they were saved.
    [[nodiscard]] std::vector<host::ItemRecord> drafts() const;

    [[nodiscard]] Services services();

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
