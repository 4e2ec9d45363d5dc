#pragma once

#include "basic/system.h"

namespace rf::native {

/// The operating system as this program sees it on Linux.
class LinuxSystem final : public System {
public:
    /// `arguments` are those behind the program's name.
    LinuxSystem(ProgramVersion version, Text arguments)
        : version_(version)
        , commandLine_(std::move(arguments))
    {
    }

    [[nodiscard]] SystemVersion version() const override;
    [[nodiscard]] ProgramVersion programVersion() const override { return version_; }
    [[nodiscard]] Text commandLine() const override { return commandLine_; }
    [[nodiscard]] std::string_view resource(TextView type, TextView name) const override;
    void initCommonControls(std::uint32_t) override { }
    void launch(TextView command, WindowStyle style) override;
    /// "Print" hands the file to the print spooler; there is no other verb.
    void invokeVerb(TextView verb, TextView path) override;
    [[nodiscard]] Text browserCommand() const override { return u"xdg-open"; }
    void endProcess() override;

private:
    ProgramVersion version_;
    Text commandLine_;
};

} // namespace rf::native
