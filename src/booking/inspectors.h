#pragma once

#include "automation/events.h"
#include "booking/curr_inspector.h"
#include "outlook/inspector.h"

#include <memory>
#include <vector>

namespace rf {

class Session;

/// Listens for the host's new windows and gives each appointment window what a booking needs.
class cInspectors {
public:
    cInspectors(Session& session, OrdersForms ordersForms)
        : session_(session)
        , ordersForms_(std::move(ordersForms))
    {
    }

    /// Listens to the host's collection of windows.
    void setOuisInspectors(const outlook::Inspectors& inspectors);

    /// A window on an appointment or a meeting request is looked after from now on, and the hidden form finishes its
    /// set-up; others are left alone. No error leaves it.
    void ouisInspectors_NewInspector(const outlook::Inspector& inspector);

    /// Gives the windows that were opened while the settings were being read their box of the projects.
    void subAddProjects() const;

    /// The appointment windows in the order of their opening.
    [[nodiscard]] const std::vector<std::shared_ptr<cCurrInspector>>& windows() const { return windows_; }
    /// Drops the windows that are done. The one behind a dropped window is looked at the next time.
    void subDropClosed();

private:
    Session& session_;
    OrdersForms ordersForms_;
    std::vector<std::shared_ptr<cCurrInspector>> windows_;
    outlook::Inspectors ouisInspectors_;
    automation::Connection events_;
};

} // namespace rf
