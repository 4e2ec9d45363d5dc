#pragma once

#include "host/store/store_fixture.h"

#include <thread>

namespace rf::host::test {

using namespace std::chrono_literals;

TEST_P(StoreSuite, HoldsALeaseUntilItIsGivenUp)
{
    EXPECT_FALSE(store().holdsLease(room()));
    EXPECT_TRUE(store().takeLease(room(), 10s, 0s));
    EXPECT_TRUE(store().holdsLease(room()));
    EXPECT_FALSE(store().holdsLease(store().addFolder(calendar(u"Other"))));

    store().giveUpLease(room());
    EXPECT_FALSE(store().holdsLease(room()));
    store().giveUpLease(room());
}

TEST_P(StoreSuite, LosesALeaseWhenItsTimeIsOver)
{
    EXPECT_TRUE(store().takeLease(room(), 20ms, 0s));
    std::this_thread::sleep_for(40ms);

    EXPECT_FALSE(store().holdsLease(room()));
}

TEST_P(StoreSuite, TakesItsOwnLeaseAnew)
{
    EXPECT_TRUE(store().takeLease(room(), 20ms, 0s));
    EXPECT_TRUE(store().takeLease(room(), 10s, 0s));
    std::this_thread::sleep_for(40ms);

    EXPECT_TRUE(store().holdsLease(room()));
}

TEST_P(StoreSuite, SavesUnderALease)
{
    EXPECT_TRUE(store().takeLease(room(), 10s, 0s));
    const ItemRecord item = saved(u"Allowed");

    EXPECT_TRUE(store().holdsLease(room()));
    EXPECT_TRUE(store().read(item.id));
}

} // namespace rf::host::test
