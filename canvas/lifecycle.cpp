#include "canvas/lifecycle.h"

#include "canvas/gestures.h"
#include "canvas/running.h"
#include "canvas/selection.h"
#include "canvas/tab_order.h"

#include <algorithm>

namespace corvanta {

void objectEntersCanvas(std::int16_t index)
{
    if (!hasObject(page(), index))
        return;
    const auto i = static_cast<std::size_t>(index);
    if (kindOf(page().objects[i].kind) == Kind::Ticker)
        startTicker(page().ctlindex[i]);
}

void mouseTaken()
{
    cancelGesture();
    letTickersGo();
}

void objectLeavesCanvas(std::int16_t index)
{
    mouseTaken();
    dropTabOrder();
    if (inMultiSelection(index)) {
        removeFromMultiSelection(index);
        if (!hasMembers())
            editing().multcount = 0;
    }
    stopRunning(index);
}

void resetCanvas()
{
    mouseTaken();
    dropTabOrder();
    clearMultiSelection();
    selectObject(noObject);
    clearRunning();
}

} // namespace corvanta
