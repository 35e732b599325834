#include "canvas/clicks.h"

namespace corvanta {

namespace {
constexpr int lastWaiting = 3;
}

bool ClickCounter::click()
{
    const bool second = counter == 1;
    if (second)
        counter = 0;
    else if (counter == 0)
        counter = 1;
    return second;
}

bool ClickCounter::tick()
{
    if (counter > 0)
        counter = counter < lastWaiting ? counter + 1 : 0;
    return waiting();
}

} // namespace corvanta
