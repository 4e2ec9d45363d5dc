#pragma once

#include "basic/date.h"

namespace rf {

/// The current date and time. The program reads the clock through this only, so that tests can set it.
class Clock {
public:
    virtual ~Clock() = default;
    /// Local time, exact to the second.
    [[nodiscard]] virtual Date now() const = 0;
};

/// The clock of the system, in the system's time zone.
class SystemClock final : public Clock {
public:
    [[nodiscard]] Date now() const override;
};

/// A clock that stands where it was set.
class FixedClock final : public Clock {
public:
    explicit FixedClock(Date now)
        : now_(now)
    {
    }
    [[nodiscard]] Date now() const override { return now_; }
    void set(Date now) { now_ = now; }

private:
    Date now_;
};

} // namespace rf
