#pragma once

#include "platform/clock.h"

#include <utility>

namespace corvanta {

// A clock that stands still until a test moves it. The clock of before comes back at the end.
class SteppedClock {
public:
    explicit SteppedClock(std::uint32_t start = 0) : now(start)
    {
        before = std::exchange(tickSource(), [this] { return now; });
    }
    ~SteppedClock() { tickSource() = before; }
    SteppedClock(const SteppedClock &) = delete;
    SteppedClock &operator=(const SteppedClock &) = delete;

    void step(std::uint32_t milliseconds) { now += milliseconds; }

    std::uint32_t now; // milliseconds

private:
    std::function<std::uint32_t()> before;
};

} // namespace corvanta
