#pragma once

#include "ui/form.h"

namespace rf {

class Session;

/// Adds a resource to the installation: a calendar in the root folder or a mailbox.
class frmAddResource final : public ui::Form {
public:
    static constexpr TextView formName = u"frmAddResource";

    [[nodiscard]] TextView name() const override { return formName; }
};

/// Shows the dialog and waits until it is closed. No error leaves it.
void subShowAddResource(Session& session);

} // namespace rf
