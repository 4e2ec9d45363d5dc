#pragma once

#include "linux/demo/host_client.h"
#include "linux/demo/installation.h"

namespace rf::demo {

/// The program as this process sees it: by the handlers that it has connected to the host.
class ProgramWatch {
public:
    ProgramWatch(const HostClient& host, const Installation& installation)
        : host_(host)
        , installation_(installation)
    {
    }

    /// Shows the root folder, as a person does who opens a resource calendar: the home page lists the calendars and the
    /// host starts the program. Waits until it watches every room, and tries again when it ends before. The time that
    /// took; a `DemoError` when it does not come to that.
    std::chrono::milliseconds start() const;
    /// Whether it watches every room.
    [[nodiscard]] bool watches() const;
    /// Whether it is there at all.
    [[nodiscard]] bool isThere() const { return host_.trafficOfOthers().handlers > 0; }

private:
    [[nodiscard]] quint64 handlersOfProgram() const;
    void showRoot() const;
    [[nodiscard]] bool comesUp() const;

    const HostClient& host_;
    const Installation& installation_;
};

} // namespace rf::demo
