#pragma once

namespace rf::test {

/// Thrown where the program would end its process: it unwinds to the test. It is no run-time error, so nothing that
/// suppresses errors keeps it.
struct ProgramEnded { };

} // namespace rf::test
