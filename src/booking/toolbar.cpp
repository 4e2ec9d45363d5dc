#include "booking/toolbar.h"

#include "app/session.h"
#include "diagnostics/product.h"

namespace rf {

outlook::CommandBar findToolbar(const outlook::Inspector& inspector)
{
    const auto bars = inspector.commandBars();
    const std::int32_t count = bars.count();
    for (std::int32_t position = 1; position <= count; ++position)
        if (auto bar = bars.item(position); bar.name() == productCaption)
            return bar;
    return {};
}

outlook::CommandBar fncGetToolbar(Session& session, const outlook::Inspector& inspector)
{
    return session.reporter.handled(u"genTools.fncGetToolbar", [&] {
        auto bar = findToolbar(inspector);
        if (!bar)
            bar = inspector.commandBars().add(productCaption, outlook::BarPosition::Top, false, true);
        bar.setPosition(outlook::BarPosition::Top);
        bar.setVisible(true);
        return bar;
    });
}

} // namespace rf
