#pragma once

#include "basic/system.h"

namespace rf::native {

/// What stands behind the program's name on a command line, without the blanks around it. The name may be quoted in
/// part or as a whole; everything behind it stays as it was typed.
[[nodiscard]] Text argumentsOf(TextView commandLine);

/// This Windows, as it shows itself to a program with this one's manifest.
class WindowsSystem final : public System {
public:
    explicit WindowsSystem(ProgramVersion version)
        : programVersion_(version)
    {
    }

    [[nodiscard]] SystemVersion version() const override;
    [[nodiscard]] ProgramVersion programVersion() const override { return programVersion_; }
    [[nodiscard]] Text commandLine() const override;
    [[nodiscard]] std::string_view resource(TextView type, TextView name) const override;
    void initCommonControls(std::uint32_t classFlags) override;
    void launch(TextView command, WindowStyle style) override;
    void invokeVerb(TextView verb, TextView path) override;
    [[nodiscard]] Text browserCommand() const override;
    void endProcess() override;

private:
    ProgramVersion programVersion_;
};

} // namespace rf::native
