#pragma once

#include "basic/process_table.h"
#include "basic/system.h"

#include <string>
#include <utility>
#include <vector>

namespace rf::test {

/// The operating system as a test sets it. What the program asks for is kept in order.
class TestSystem final : public System {
public:
    TestSystem();
    TestSystem(const TestSystem&) = delete;
    TestSystem& operator=(const TestSystem&) = delete;
    ~TestSystem() override;

    SystemVersion osVersion{2, 5, 1, {}};
    ProgramVersion program{5, 0, 2146};
    Text arguments;
    /// The bytes of the phrase table; the real one unless a test replaces it.
    std::string languageTable;
    Text browser;

    std::vector<std::uint32_t> commonControls;
    std::vector<std::pair<Text, WindowStyle>> launched;
    std::vector<std::pair<Text, Text>> verbs;

    [[nodiscard]] SystemVersion version() const override;
    [[nodiscard]] ProgramVersion programVersion() const override;
    [[nodiscard]] Text commandLine() const override;
    [[nodiscard]] std::string_view resource(TextView type, TextView name) const override;
    void initCommonControls(std::uint32_t classFlags) override;
    void launch(TextView command, WindowStyle style) override;
    void invokeVerb(TextView verb, TextView path) override;
    [[nodiscard]] Text browserCommand() const override;
    void endProcess() override;
};

/// Processes as a test lists them.
class TestProcesses final : public ProcessTable {
public:
    TestProcesses();
    TestProcesses(const TestProcesses&) = delete;
    TestProcesses& operator=(const TestProcesses&) = delete;
    ~TestProcesses() override;

    std::vector<ProcessEntry> running;
    bool previousInstance = false;
    std::uint32_t own = 100;
    std::vector<std::uint32_t> terminated;

    void walk(const std::function<bool(const ProcessEntry&)>& visit) const override;
    [[nodiscard]] bool previousInstanceRuns() const override;
    [[nodiscard]] TextView programFile() const override;
    [[nodiscard]] std::uint32_t ownId() const override;
    void terminate(std::uint32_t id) override;
};

} // namespace rf::test
