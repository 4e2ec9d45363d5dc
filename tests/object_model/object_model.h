#pragma once

#include "basic/pattern_regional.h"
#include "host/application.h"
#include "host/installation.h"
#include "host/items.h"
#include "host/memory_store.h"
#include "host/recurrence.h"
#include "outlook/appointment_item.h"
#include "outlook/events.h"
#include "outlook/items.h"
#include "outlook/mail_item.h"
#include "outlook/post_item.h"
#include "outlook/user_properties.h"
#include "support/transport.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace rf::test {

/// The ways that this platform has, the one inside the process first.
[[nodiscard]] std::vector<TransportKind> transports();

/// What expands series on this platform; null where nothing does.
[[nodiscard]] std::unique_ptr<host::RecurrenceEngine> recurrenceEngine();

/// Answers alerts and folder pickers as a test says.
class ScriptedWindows final : public host::HostWindows {
public:
    std::vector<Text> alerts;
    std::int32_t answer = 1;
    std::optional<host::FolderId> picked;

    std::int32_t alert(const Text& title, const Text& message, std::int32_t buttons, std::int32_t icon) override;
    std::optional<host::FolderId> pickFolder(const std::vector<host::FolderRecord>&) override { return picked; }
};

/// An installation with a mailbox and a resource calendar, seen through a transport.
class ObjectModel : public ::testing::TestWithParam<TransportKind> {
protected:
    ObjectModel();

    /// A host of the same store for another person, in this process.
    [[nodiscard]] std::shared_ptr<host::Application> secondHost(TextView person);

    [[nodiscard]] outlook::Folder folder(host::FolderId id) const;
    [[nodiscard]] outlook::Folder calendar() const { return folder(room); }
    [[nodiscard]] outlook::AppointmentItem newAppointment(const Text& subject, Date start, int minutes) const;
    /// The same, saved.
    outlook::AppointmentItem booked(const Text& subject, Date start, int minutes) const;

    const PatternRegional regional{englishSettings()};
    FixedClock clock{Date::fromFields({2024, 2, 3, 9, 10, 0})};
    ScriptedWindows windows;
    host::MemoryStore store;
    host::FolderId root{};
    host::FolderId room{};
    /// Null where the platform's host does not expand series.
    std::unique_ptr<host::RecurrenceEngine> recurrence = recurrenceEngine();
    std::shared_ptr<host::Application> host;
    std::unique_ptr<Transport> transport;
    outlook::Application application;
};

/// Runs a suite over every transport.
#define RF_EVERY_TRANSPORT(Suite)                                                                                      \
    INSTANTIATE_TEST_SUITE_P(                                                                                          \
        Over, Suite, ::testing::ValuesIn(transports()), [](const auto& kind) { return kind.param.name; })

/// 3 February 2024 at that time.
[[nodiscard]] Date at(int hour, int minute = 0);

/// The number of the error that a step fails with; 0 when it does not fail.
template <class Step>
std::int32_t errorOf(Step&& step)
{
    try {
        step();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

} // namespace rf::test
