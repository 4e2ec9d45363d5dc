#pragma once

#include "host/store/store_fixture.h"

#include <thread>

namespace rf::host::test {

using std::chrono::milliseconds;
using std::chrono::seconds;

TEST_P(StoreSuite, HoldsALeaseUntilItIsGivenUp)
{
    EXPECT_FALSE(store().holdsLease(room()));
    EXPECT_TRUE(store().takeLease(room(), seconds{10}, seconds{0}));
    EXPECT_TRUE(store().holdsLease(room()));
    EXPECT_FALSE(store().holdsLease(store().addFolder(calendar(u"Other"))));

    store().giveUpLease(room());
    EXPECT_FALSE(store().holdsLease(room()));
    store().giveUpLease(room());
}

TEST_P(StoreSuite, LosesALeaseWhenItsTimeIsOver)
{
    EXPECT_TRUE(store().takeLease(room(), milliseconds{20}, seconds{0}));
    std::this_thread::sleep_for(milliseconds{40});

    EXPECT_FALSE(store().holdsLease(room()));
}

TEST_P(StoreSuite, TakesItsOwnLeaseAnew)
{
    EXPECT_TRUE(store().takeLease(room(), milliseconds{20}, seconds{0}));
    EXPECT_TRUE(store().takeLease(room(), seconds{10}, seconds{0}));
    std::this_thread::sleep_for(milliseconds{40});

    EXPECT_TRUE(store().holdsLease(room()));
}

TEST_P(StoreSuite, SavesUnderALease)
{
    EXPECT_TRUE(store().takeLease(room(), seconds{10}, seconds{0}));
    const ItemRecord item = saved(u"Allowed");

    EXPECT_TRUE(store().holdsLease(room()));
    EXPECT_TRUE(store().read(item.id));
}

} // namespace rf::host::test
