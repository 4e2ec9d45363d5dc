#include "booking/inspectors.h"

#include "outlook/events.h"

namespace rf {

void cInspectors::setOuisInspectors(const outlook::Inspectors& inspectors)
{
    ouisInspectors_ = inspectors;
    events_ = outlook::connect(inspectors, outlook::InspectorsEvents{.newInspector = [this](const auto& inspector) {
        ouisInspectors_NewInspector(inspector);
    }});
}

void cInspectors::ouisInspectors_NewInspector(const outlook::Inspector&) { }

} // namespace rf
