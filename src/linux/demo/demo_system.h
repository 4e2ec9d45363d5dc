#pragma once

#include "linux/system.h"
#include "program_version.h"

namespace rf::demo {

/// The system for the procedures of the program that the demonstration calls itself: they find the phrases here, and
/// where one of them reports an error and ends the process, that is a failed demonstration.
class DemoSystem final : public System {
public:
    [[nodiscard]] SystemVersion version() const override { return linux_.version(); }
    [[nodiscard]] ProgramVersion programVersion() const override { return rf::programVersion; }
    [[nodiscard]] Text commandLine() const override { return {}; }
    [[nodiscard]] std::string_view resource(TextView type, TextView name) const override
    {
        return linux_.resource(type, name);
    }
    void initCommonControls(std::uint32_t) override { }
    void launch(TextView, WindowStyle) override { }
    void invokeVerb(TextView, TextView) override { }
    [[nodiscard]] Text browserCommand() const override { return linux_.browserCommand(); }

protected:
    void endProcess() override;

private:
    native::LinuxSystem linux_{rf::programVersion, {}};
};

} // namespace rf::demo
