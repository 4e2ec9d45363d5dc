#pragma once

#include "host/records.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace rf::host {

/// Bytes of a store.
using Bytes = std::vector<std::byte>;

/// The lists of a record as one value of a row, so that an item is read and written in one piece. Numbers lie with
/// their lowest byte first, texts and lists behind their length, values behind the number of their kind.
[[nodiscard]] Bytes encode(const std::vector<UserPropertyRecord>& properties);
[[nodiscard]] Bytes encode(const RecurrenceRecord& recurrence);
[[nodiscard]] Bytes encode(const std::vector<FieldDefinition>& fields);

/// The way back. Nothing when the bytes are not what `encode` makes.
[[nodiscard]] std::optional<std::vector<UserPropertyRecord>> decodeProperties(std::span<const std::byte> bytes);
[[nodiscard]] std::optional<RecurrenceRecord> decodeRecurrence(std::span<const std::byte> bytes);
[[nodiscard]] std::optional<std::vector<FieldDefinition>> decodeFields(std::span<const std::byte> bytes);

} // namespace rf::host
