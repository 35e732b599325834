#pragma once

namespace corvanta {

inline constexpr int tmdclkInterval = 100; // milliseconds

// Tells a Button's double click from two clicks, by the ticks of a timer that runs while a click waits.
struct ClickCounter {
    int counter = 0;

    // True when the click is the second of a double click. Afterwards the timer runs while waiting().
    bool click();
    // A tick of the timer; true while it is to run on.
    bool tick();
    bool waiting() const { return counter > 0; }
};

} // namespace corvanta
