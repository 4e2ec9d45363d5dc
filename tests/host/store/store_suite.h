#pragma once

// The behaviour that every store has. Who includes this says which kinds it runs over:
//
//     INSTANTIATE_TEST_SUITE_P(Memory, StoreSuite, testing::Values(StoreKind{…}));

#include "host/store/store_suite_changes.h"
#include "host/store/store_suite_folders.h"
#include "host/store/store_suite_items.h"
#include "host/store/store_suite_leases.h"
#include "host/store/store_suite_searches.h"
#include "host/store/store_suite_values.h"
