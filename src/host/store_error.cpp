#include "host/store_error.h"

#include <algorithm>
#include <iterator>

namespace rf::host {
namespace {

struct ResultCode {
    StoreFault fault;
    std::uint32_t code;
};

constexpr ResultCode resultCodes[] = {
    {StoreFault::Full, 0x8004010D},
    {StoreFault::ReadOnly, 0x80070005},
    {StoreFault::Damaged, 0x80040600},
    {StoreFault::NewerVersion, 0x80040110},
    {StoreFault::Missing, 0x8004010F},
    {StoreFault::Busy, 0x8004010B},
    {StoreFault::Failed, 0x80004005},
};

std::int32_t numberOf(StoreFault fault)
{
    const auto* const found = std::find_if(
        std::begin(resultCodes), std::end(resultCodes), [fault](const ResultCode& row) { return row.fault == fault; });
    return static_cast<std::int32_t>(found->code);
}

} // namespace

StoreError::StoreError(StoreFault fault, Text description, std::source_location where)
    : RuntimeError(numberOf(fault), std::move(description), where)
    , fault_(fault)
{
}

} // namespace rf::host
