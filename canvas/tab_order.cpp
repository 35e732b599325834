#include "canvas/tab_order.h"

#include "canvas/events.h"
#include "document/events.h"
#include "document/kinds.h"
#include "document/objects.h"

#include <limits>
#include <utility>

namespace corvanta {

namespace {

struct Numbering {
    bool active = false, changed = false;
    std::int16_t next = 1, last = noObject;
};

Numbering numbering;

} // namespace

bool hasTabNumber(std::int16_t index)
{
    const auto kind =
        hasObject(page(), index) ? kindOf(page().objects[static_cast<std::size_t>(index)].kind) : std::optional<Kind>();
    return kind && kindRow(*kind).hasTabIndex;
}

bool hasTabNumbers()
{
    for (std::int16_t i = 0; i < objectCount(page()); ++i)
        if (hasTabNumber(i))
            return true;
    return false;
}

bool tabOrderActive() { return numbering.active; }

void startTabOrder()
{
    endTabOrder();
    numbering.active = hasTabNumbers();
    if (numbering.active)
        canvasEvents().tabOrder(true);
}

void numberObject(std::int16_t index)
{
    if (!numbering.active || !hasTabNumber(index) || index == numbering.last)
        return;
    std::int16_t &number = page().objects[static_cast<std::size_t>(index)].tbindex;
    numbering.changed = numbering.changed || number != numbering.next;
    number = numbering.next;
    if (numbering.changed)
        editing().pagedirty = true;
    numbering.last = index;
    if (numbering.next < std::numeric_limits<std::int16_t>::max())
        ++numbering.next;
    canvasEvents().tabOrder(true);
}

void endTabOrder()
{
    const Numbering ended = std::exchange(numbering, {});
    if (!ended.active)
        return;
    canvasEvents().tabOrder(false);
    if (ended.changed)
        pageEdited("Tab order");
}

void dropTabOrder()
{
    if (std::exchange(numbering, {}).active)
        canvasEvents().tabOrder(false);
}

std::string tabOrderText()
{
    return "Click the objects in their order: the next one gets " + std::to_string(numbering.next) + ". Esc ends.";
}

} // namespace corvanta
