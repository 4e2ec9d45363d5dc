#pragma once

#include "basic/process_table.h"
#include "basic/system.h"
#include "support/program_ended.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace rf::test {

/// The operating system as a test sets it. What the program asks for is kept in order.
class TestSystem final : public System {
public:
    SystemVersion osVersion{2, 5, 1, {}};
    ProgramVersion program{5, 0, 2146};
    Text arguments;
    /// The bytes of the phrase table; the real one unless a test replaces it.
    std::string languageTable;
    Text browser;

    std::vector<std::uint32_t> commonControls;
    std::vector<std::pair<Text, WindowStyle>> launched;
    std::vector<std::pair<Text, Text>> verbs;

    [[nodiscard]] SystemVersion version() const override { return osVersion; }
    [[nodiscard]] ProgramVersion programVersion() const override { return program; }
    [[nodiscard]] Text commandLine() const override { return arguments; }
    [[nodiscard]] std::string_view resource(TextView type, TextView name) const override
    {
        return type == u"CUSTOM" && name == u"LANGUAGE" ? std::string_view{languageTable} : std::string_view{};
    }
    void initCommonControls(std::uint32_t classFlags) override { commonControls.push_back(classFlags); }
    void launch(TextView command, WindowStyle style) override { launched.emplace_back(command, style); }
    void invokeVerb(TextView verb, TextView path) override { verbs.emplace_back(verb, path); }
    [[nodiscard]] Text browserCommand() const override { return browser; }
    void endProcess() override { throw ProgramEnded{}; }
};

/// Processes as a test lists them.
class TestProcesses final : public ProcessTable {
public:
    std::vector<ProcessEntry> running;
    bool previousInstance = false;
    std::uint32_t own = 100;
    std::vector<std::uint32_t> terminated;

    void walk(const std::function<bool(const ProcessEntry&)>& visit) const override
    {
        for (const auto& process : running)
            if (visit(process))
                return;
    }
    [[nodiscard]] bool previousInstanceRuns() const override { return previousInstance; }
    [[nodiscard]] TextView programFile() const override { return u"RFBOOKINGINFO.EXE"; }
    [[nodiscard]] std::uint32_t ownId() const override { return own; }
    void terminate(std::uint32_t id) override { terminated.push_back(id); }
};

} // namespace rf::test
