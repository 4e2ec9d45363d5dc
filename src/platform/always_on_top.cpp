#include "platform/always_on_top.h"

namespace rf {

void subEnsureVisibleTaskBar(Trace& trace, ui::Toolkit& toolkit, const ui::Form& form)
{
    trace.subTrace(u"Trying to make sure the form appears in the Activity bar");
    toolkit.showInTaskBar(form.window());
}

} // namespace rf
