#pragma once

#include <functional>

namespace corvanta {

// Runs a function on the event loop when the system asks the program to end (SIGTERM, SIGHUP, SIGINT).
void watchSignals(std::function<void()> ended);

} // namespace corvanta
