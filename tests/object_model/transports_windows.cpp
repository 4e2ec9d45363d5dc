#include "object_model/object_model.h"

namespace rf::test {

std::vector<TransportKind> transports() { return {inProcess()}; }

std::unique_ptr<host::RecurrenceEngine> recurrenceEngine() { return nullptr; }

} // namespace rf::test
