#pragma once

#include <cstdint>
#include <functional>

namespace corvanta {

// Opens the property dialog of the current object, by kind modal or with the other windows switched off. closed runs
// when it has closed. A kind outside 1..13, or no current object, opens nothing and runs nothing.
void OpenObjectProperties(std::int16_t kind, std::function<void()> closed = {});

} // namespace corvanta
