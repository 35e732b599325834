#include "canvas/selection.h"

#include "canvas/tab_order.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace corvanta {

namespace {

ObjectRecord &record(std::int16_t index) { return page().objects[static_cast<std::size_t>(index)]; }

std::int16_t lowestFreeSlot()
{
    std::vector<bool> taken(page().objects.size() + 1);
    for (const ObjectRecord &o : page().objects)
        if (o.selslot > 0 && static_cast<std::size_t>(o.selslot) < taken.size())
            taken[static_cast<std::size_t>(o.selslot)] = true;
    std::int16_t slot = 1;
    while (taken[static_cast<std::size_t>(slot)])
        ++slot;
    return slot;
}

} // namespace

bool hasCurrentObject() { return hasObject(page(), editing().curobj); }

void selectObject(std::int16_t index)
{
    if (hasObject(page(), index))
        canvasEvents().bringToFront(index);
    hideTrackers();
    setCurrentObject(index);
}

void setCurrentObject(std::int16_t index)
{
    editing().curobj = hasObject(page(), index) ? index : noObject;
    canvasEvents().currentChanged();
}

void showTrackers()
{
    if (hasCurrentObject())
        canvasEvents().showTrackers(rectOf(record(editing().curobj)));
}

void hideTrackers() { canvasEvents().hideTrackers(); }

bool inMultiSelection(std::int16_t index) { return hasObject(page(), index) && record(index).selslot > 0; }

void addToMultiSelection(std::int16_t index)
{
    if (!hasObject(page(), index) || inMultiSelection(index))
        return;
    const std::int16_t slot = lowestFreeSlot();
    record(index).selslot = slot;
    editing().multcount = slot;
    placeFrameMarkers(index);
}

void removeFromMultiSelection(std::int16_t index)
{
    if (!inMultiSelection(index))
        return;
    hideFrameMarkers(index);
    record(index).selslot = 0;
}

void clearMultiSelection()
{
    for (std::int16_t i = 0; i < objectCount(page()); ++i)
        removeFromMultiSelection(i);
    editing().multcount = 0;
}

void selectAllObjects()
{
    hideTrackers();
    for (std::int16_t i = 0; i < objectCount(page()); ++i)
        addToMultiSelection(i);
    if (!hasCurrentObject())
        setCurrentObject(0);
}

void chooseObjects(const std::vector<std::int16_t> &indices)
{
    clearMultiSelection();
    for (const std::int16_t index : indices)
        selectObject(index); // each in front of the one before
    selectObject(indices.front());
    if (indices.size() == 1)
        return showTrackers();
    for (const std::int16_t index : indices)
        addToMultiSelection(index);
}

void clearSelection()
{
    clearMultiSelection();
    selectObject(noObject);
}

void walkObjects(bool forward)
{
    std::vector<std::int16_t> order(page().objects.size() - 1);
    std::iota(order.begin(), order.end(), std::int16_t{0});
    if (order.empty())
        return;
    std::ranges::stable_sort(order, {}, [](std::int16_t i) {
        const bool numbered = hasTabNumber(i) && record(i).tbindex > 0;
        return std::pair(!numbered, numbered ? record(i).tbindex : 0);
    });
    if (!forward)
        std::ranges::reverse(order);
    const auto now = std::ranges::find(order, editing().curobj);
    const bool last = now == order.end() || now + 1 == order.end();
    clearMultiSelection();
    selectObject(last ? order.front() : *(now + 1));
    showTrackers();
}

void placeFrameMarkers(std::int16_t index)
{
    if (inMultiSelection(index))
        canvasEvents().placeFrameMarkers(record(index).selslot, rectOf(record(index)));
}

void hideFrameMarkers(std::int16_t index)
{
    if (inMultiSelection(index))
        canvasEvents().hideFrameMarkers(record(index).selslot);
}

bool hasMembers()
{
    const auto &objects = page().objects;
    return std::any_of(objects.begin(), objects.end(), [](const ObjectRecord &o) { return o.selslot > 0; });
}

void toggleMultiSelection(std::int16_t index)
{
    if (!hasObject(page(), index))
        return;
    if (inMultiSelection(index)) {
        editing().multcount = record(index).selslot;
        removeFromMultiSelection(index);
        if (!hasMembers()) { // the commands act on the current object again
            editing().multcount = 0;
            showTrackers();
        }
        return;
    }
    if (editing().multcount == 0 && hasCurrentObject() && editing().curobj != index)
        addToMultiSelection(editing().curobj);
    addToMultiSelection(index);
}

} // namespace corvanta
