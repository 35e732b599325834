#include "canvas/events.h"

namespace corvanta {

CanvasEvents &canvasEvents()
{
    static CanvasEvents events;
    return events;
}

} // namespace corvanta
