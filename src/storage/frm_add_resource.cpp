#include "storage/frm_add_resource.h"

#include "app/session.h"
#include "diagnostics/pending_error.h"

namespace rf {

void subShowAddResource(Session& session)
{
    PendingError errors;
    const auto form = std::make_shared<frmAddResource>();
    errors.attempt([&] { session.forms.load(form); });
    errors.attempt([&] { form->show(); });
    // Whoever has no window to close the dialog with is not kept waiting for it.
    session.services.toolkit.run(
        [&] { return form->window() != 0 && session.forms.find(frmAddResource::formName) == form; });
    errors.attempt([&] { session.forms.unload(frmAddResource::formName); });
}

} // namespace rf
