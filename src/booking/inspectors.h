#pragma once

#include "automation/events.h"
#include "outlook/inspector.h"

namespace rf {

class Session;

/// Listens for the host's new windows and gives each appointment window what a booking needs.
class cInspectors {
public:
    explicit cInspectors(Session& session)
        : session_(session)
    {
    }

    /// Listens to the host's collection of windows.
    void setOuisInspectors(const outlook::Inspectors& inspectors);

private:
    void ouisInspectors_NewInspector(const outlook::Inspector& inspector);

    [[maybe_unused]] Session& session_;
    outlook::Inspectors ouisInspectors_;
    automation::Connection events_;
};

} // namespace rf
