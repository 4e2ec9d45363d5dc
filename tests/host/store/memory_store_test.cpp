#include "host/memory_store.h"

#include "host/store/store_suite.h"

namespace rf::host::test {
namespace {

INSTANTIATE_TEST_SUITE_P(
    Memory, StoreSuite, testing::Values(StoreKind{"MemoryStore", [] { return std::make_shared<MemoryStore>(); }}));

} // namespace
} // namespace rf::host::test
