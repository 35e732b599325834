#include "platform/clock.h"

#include <chrono>

namespace corvanta {

std::function<std::uint32_t()> &tickSource()
{
    static std::function<std::uint32_t()> source = [] {
        using namespace std::chrono;
        return static_cast<std::uint32_t>(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
    };
    return source;
}

} // namespace corvanta
