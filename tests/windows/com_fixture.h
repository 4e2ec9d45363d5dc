#pragma once

#include "basic/error_of.h"
#include "support/boiler.h"
#include "windows/com_apartment.h"
#include "windows/com_bridge.h"
#include "windows/com_dispatch.h"

#include <gtest/gtest.h>

namespace rf::native::com {

using test::Boiler;
using test::boilerEvents;
using test::errorOf;
using test::offeredEvents;
using test::unknownEvents;
using test::unraisedEvents;

struct ComTest : testing::Test {
    ComApartment apartment;
    std::shared_ptr<Bridge> bridge = Bridge::make(offeredEvents);

    /// The object as another process sees it: reached through COM, although it lives here.
    [[nodiscard]] automation::Object throughCom(const std::shared_ptr<automation::Dispatch>& object)
    {
        return automation::Object{std::make_shared<ComDispatch>(bridge, bridge->exportObject(object))};
    }
};

} // namespace rf::native::com
