#include "orders/orders.h"

#include "app/session.h"
#include "storage/settings.h"

namespace rf {

cOrders::cOrders(Session& session)
    : session_(session)
    , objOrderRows_(session.scripting.fncCreateDic())
{
}

void cOrders::Add(const cOrderRow& OrderRow)
{
    const auto supply = session_.objSettings ? session_.objSettings->Supply.find(OrderRow.ItemName) : nullptr;
    if (supply == nullptr)
        return;
    objOrderRows_.add(decimal(objOrderRows_.count() + 1), OrderRow);
    curOrderTotal_ += Currency::fromInteger(OrderRow.Quantity) * supply->Price;
}

Text cOrders::OrdersString() const
{
    Text text;
    for (const auto& row : objOrderRows_.items())
        text.append(row->ItemName).append(u"\t").append(decimal(row->Quantity)).append(lineBreak);
    return text;
}

} // namespace rf
