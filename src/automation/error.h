#pragma once

#include "basic/runtime_error.h"

namespace rf::automation {

/// A failure of a late-bound call. The place is that of the caller in the program's own code, since it is the
/// caller whom an error report names; the number is the classic one where there is one (438 for an unknown
/// member), else the platform's result code.
class Error : public RuntimeError {
public:
    struct Details {
        Text description;
        /// The name of the object's class or server, as far as it is known.
        Text source;
        Text member;
    };

    Error(std::int32_t number, Details details, std::source_location where = std::source_location::current());

    [[nodiscard]] const Text& source() const { return details_.source; }
    [[nodiscard]] const Text& member() const { return details_.member; }
    /// The same failure as seen from another place: a transport reports its caller's.
    [[nodiscard]] Error at(std::source_location where) const;

private:
    Details details_;
};

} // namespace rf::automation
