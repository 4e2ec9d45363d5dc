#include "booking/inspectors.h"

#include "app/frm_dummy.h"
#include "app/session.h"
#include "outlook/events.h"

namespace rf {

namespace {

bool isLookedAfter(const outlook::Inspector& inspector)
{
    const Text messageClass = upper(inspector.currentItem().messageClass());
    return messageClass == upper(outlook::message_class::meetingRequest)
        || messageClass == upper(outlook::message_class::appointment);
}

} // namespace

void cInspectors::setOuisInspectors(const outlook::Inspectors& inspectors)
{
    ouisInspectors_ = inspectors;
    events_ = outlook::connect(inspectors, outlook::InspectorsEvents{.newInspector = [this](const auto& inspector) {
        ouisInspectors_NewInspector(inspector);
    }});
}

void cInspectors::ouisInspectors_NewInspector(const outlook::Inspector& inspector)
{
    PendingError errors;
    if (!errors.attempt([&] { return isLookedAfter(inspector); }))
        return;
    errors.attempt([&] {
        const auto window = std::make_shared<cCurrInspector>(session_, ordersForms_);
        window->setOuiCurrInspector(inspector);
        windows_.push_back(window);
    });
    if (const auto form = hiddenForm(session_))
        form->setOuiPendingInspector(inspector);
}

void cInspectors::subAddProjects() const
{
    // A copy: others may be opened meanwhile, and they have their box from the start.
    const auto opened = windows_;
    for (const auto& window : opened)
        window->subAddProjects();
}

void cInspectors::subDropClosed()
{
    // Counted once: what is dropped moves the others up, and what lies beyond the end then is not there.
    const std::size_t count = windows_.size();
    for (std::size_t position = 0; position < count && position < windows_.size(); ++position) {
        const auto window = windows_[position];
        if (window->isDone())
            windows_.erase(windows_.begin() + static_cast<std::ptrdiff_t>(position));
    }
}

} // namespace rf
