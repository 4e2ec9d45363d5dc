#pragma once

#include "outlook/appointment_item.h"
#include "ui/form.h"

#include <functional>
#include <memory>

namespace rf {

/// The orders form as an appointment window uses it, loaded among the session's forms. It stays alive through the
/// raising of its event, whose receiver lets go of it.
class OrdersForm : public ui::Form {
public:
    /// Places it over the appointment's window.
    virtual void subSetPosition() = 0;
    /// Keeps it above that window; 0 lets it go.
    virtual void setParent(ui::WindowHandle parent) = 0;

    /// Raised once, when the form has gone, for whatever reason.
    std::function<void()> Closed;
};

/// Makes the orders form of an appointment, not yet loaded.
using OrdersForms = std::function<std::shared_ptr<OrdersForm>(const outlook::AppointmentItem& item)>;

} // namespace rf
