#pragma once

#include <cstdint>
#include <functional>

namespace corvanta {

// The system's tick count in milliseconds; wraps round. Tests put a clock of their own here.
std::function<std::uint32_t()> &tickSource();

inline std::uint32_t tickCount() { return tickSource()(); }

} // namespace corvanta
