#include "app/session.h"
#include "orders/supply_list.h"
#include "storage/settings.h"

namespace rf {

Text cSettings::fncBuildSupplyList() const
{
    session_.trace.subTrace(u"Building supply list");
    Text text;
    for (const auto& supply : Supply.items())
        text += supplyLine(*supply, session_.services.regional);
    return text;
}

void cSettings::subFillSupply(TextView text)
{
    session_.trace.subTrace(u"Filling the supply list from " + Text{text});
    for (const cSupplyItem& supply : readSupplyList(text, session_.services.regional))
        if (!Supply.exists(supply.ItemName))
            Supply.add(supply.ItemName, supply);
}

} // namespace rf
