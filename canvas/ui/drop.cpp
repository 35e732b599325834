#include "canvas/ui/drop.h"

#include "canvas/selection.h"
#include "document/events.h"
#include "document/objects.h"

#include <algorithm>

namespace corvanta {

Rect droppedRect(const Rect &object, Point at, Size pageSize)
{
    return {std::max(0, std::min(at.x, pageSize.width - object.width)),
            std::max(0, std::min(at.y, pageSize.height - object.height)), object.width, object.height};
}

void placeObjectAt(std::int16_t index, Point at)
{
    const Rect place = droppedRect(rectOf(page().objects[static_cast<std::size_t>(index)]), at, sizeOf(page()));
    setObjectGeometry(index, toPixels(place.top), toPixels(place.left), toPixels(place.height), toPixels(place.width));
}

std::int16_t addObjectAt(Kind kind, Point at)
{
    const std::int16_t index = addObject(kind);
    if (index == noObject)
        return noObject;
    clearMultiSelection();
    selectObject(index);
    placeObjectAt(index, at);
    showTrackers();
    return index;
}

void dropObject(Kind kind, Point at)
{
    if (addObjectAt(kind, at) != noObject)
        pageEdited("Add " + objectName(static_cast<std::int16_t>(kind)));
}

} // namespace corvanta
