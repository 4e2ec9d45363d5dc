#include "support/test_system.h"

#include "support/program_ended.h"

namespace rf::test {

TestSystem::TestSystem() = default;
TestSystem::~TestSystem() = default;

SystemVersion TestSystem::version() const { return osVersion; }

ProgramVersion TestSystem::programVersion() const { return program; }

Text TestSystem::commandLine() const { return arguments; }

std::string_view TestSystem::resource(TextView type, TextView name) const
{
    return type == u"CUSTOM" && name == u"LANGUAGE" ? std::string_view{languageTable} : std::string_view{};
}

void TestSystem::initCommonControls(std::uint32_t classFlags) { commonControls.push_back(classFlags); }

void TestSystem::launch(TextView command, WindowStyle style) { launched.emplace_back(command, style); }

void TestSystem::invokeVerb(TextView verb, TextView path) { verbs.emplace_back(verb, path); }

Text TestSystem::browserCommand() const { return browser; }

void TestSystem::endProcess() { throw ProgramEnded{}; }

TestProcesses::TestProcesses() = default;
TestProcesses::~TestProcesses() = default;

void TestProcesses::walk(const std::function<bool(const ProcessEntry&)>& visit) const
{
    for (const auto& process : running)
        if (visit(process))
            return;
}

bool TestProcesses::previousInstanceRuns() const { return previousInstance; }

TextView TestProcesses::programFile() const { return u"RFBOOKINGINFO.EXE"; }

std::uint32_t TestProcesses::ownId() const { return own; }

void TestProcesses::terminate(std::uint32_t id) { terminated.push_back(id); }

} // namespace rf::test
