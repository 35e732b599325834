#include "canvas/gestures.h"

#include "canvas/selection.h"
#include "document/events.h"

namespace corvanta {

namespace {

Gesture state;

const ObjectRecord &record(std::int16_t index) { return page().objects[static_cast<std::size_t>(index)]; }

bool unmodified(const Mouse &mouse) { return !mouse.shift && !mouse.ctrl && !mouse.alt; }

Point inObject(Point at) { return {at.x - record(state.object).pleft, at.y - record(state.object).ptop}; }

void setGeometry(std::int16_t index, const Rect &r)
{
    setObjectGeometry(index, toPixels(r.top), toPixels(r.left), toPixels(r.height), toPixels(r.width));
}

Rect membersBounds(Rect bounds)
{
    for (std::int16_t i = 0; i < objectCount(page()); ++i)
        if (inMultiSelection(i))
            bounds = united(bounds, rectOf(record(i)));
    return bounds;
}

bool showsContent(std::int16_t index)
{
    const Element *e = elementOf(page(), index);
    if (!e || !e->loaded)
        return false;
    const auto kind = kindOf(record(index).kind);
    if (kind == Kind::ListBox)
        return !page().lbxextras[static_cast<std::size_t>(page().ctlindex[static_cast<std::size_t>(index)])].empty();
    return kind == Kind::TextBox && !e->Caption.empty();
}

void emptyPressedObject()
{
    if (!showsContent(state.object))
        return;
    state.emptied = controlOfObject(page(), state.object);
    canvasEvents().emptyVisual(state.object);
}

// Ends the gesture: the page shows no trace of it.
void endGesture()
{
    hideOutline();
    if (state.banding)
        canvasEvents().hideBand();
    const Gesture ended = state;
    state = {};
    state.ctrlclick = ended.ctrlclick;
    const auto [kind, element] = ended.emptied;
    const std::int16_t index = element ? findObjectByControl(page(), static_cast<Kind>(kind), element) : noObject;
    if (index != noObject) // neither deleted nor undone meanwhile
        canvasEvents().restoreVisual(index);
}

void beginDrag(std::int16_t index, Point at)
{
    state.dragging = true;
    state.object = index;
    state.pressPoint = at;
    const Point grab = inObject(at);
    state.grabx = grab.x;
    state.graby = grab.y;
    state.group = inMultiSelection(index);
    state.multbox = membersBounds(rectOf(record(index)));
    state.groupOrigin = {state.multbox.left, state.multbox.top};
}

void beginBand(Point at)
{
    state.banding = true;
    state.pressPoint = clampedPoint(at, sizeOf(page()));
}

void moveBand(Point at)
{
    state.band = spanned(state.pressPoint, clampedPoint(at, sizeOf(page())));
    state.moved = state.moved || state.band.width >= smallestSide || state.band.height >= smallestSide;
    if (state.moved)
        canvasEvents().drawBand(state.band);
}

void selectInBand(const Rect &band, bool touched)
{
    clearMultiSelection();
    std::int16_t first = noObject;
    for (std::int16_t i = 0; i < objectCount(page()); ++i) {
        const Rect r = rectOf(record(i));
        if (touched ? !intersects(band, r) : united(band, r) != band)
            continue;
        addToMultiSelection(i);
        if (first == noObject)
            first = i;
    }
    hideTrackers();
    setCurrentObject(first);
}

void outlineTo(const Rect &r)
{
    refreshUnder(state.outline);
    drawOutline(r);
}

// The new place of the pressed object; the members of a group keep theirs relative to it.
Rect draggedTo(Point at)
{
    const Rect object = rectOf(record(state.object));
    const int dx = at.x - state.pressPoint.x, dy = at.y - state.pressPoint.y;
    if (!state.group)
        return pushedInside(movedBy(object, dx, dy), sizeOf(page()));
    const Rect start{state.groupOrigin.x, state.groupOrigin.y, state.multbox.width, state.multbox.height};
    state.multbox = pushedInside(movedBy(start, dx, dy), sizeOf(page()));
    return movedBy(object, state.multbox.left - start.left, state.multbox.top - start.top);
}

void drop()
{
    const std::int16_t object = state.object;
    hideOutline();
    if (state.moved)
        moveSelectionTo(state.outline);
    else if (!inMultiSelection(object))
        showTrackers();
    endGesture();
    if (!inMultiSelection(object))
        clearMultiSelection();
}

void moveGroup()
{
    const int dx = state.multbox.left - state.groupOrigin.x, dy = state.multbox.top - state.groupOrigin.y;
    for (std::int16_t i = 0; i < objectCount(page()); ++i) {
        if (!inMultiSelection(i))
            continue;
        hideFrameMarkers(i);
        setGeometry(i, movedBy(rectOf(record(i)), dx, dy));
        placeFrameMarkers(i);
    }
}

Rect aligned(Rect member, const Rect &reference, AlignMode mode)
{
    switch (mode) {
    case AlignMode::Left: member.left = reference.left; break;
    case AlignMode::Right: member.left = reference.right() - member.width; break;
    case AlignMode::Top: member.top = reference.top; break;
    case AlignMode::Bottom: member.top = reference.bottom() - member.height; break;
    }
    return member;
}

} // namespace

const Gesture &gesture() { return state; }

bool gestureActive() { return state.dragging || state.resizing || state.banding; }

std::string gestureText()
{
    const Rect &r = state.outline;
    if (state.group)
        return "Moved by " + std::to_string(state.multbox.left - state.groupOrigin.x) + ", " +
               std::to_string(state.multbox.top - state.groupOrigin.y);
    return "Left " + std::to_string(r.left) + ", top " + std::to_string(r.top) + ", width " + std::to_string(r.width) +
           ", height " + std::to_string(r.height);
}

void pressObject(std::int16_t index, const Mouse &mouse)
{
    const bool onPage = !hasObject(page(), index);
    if (mouse.left && onPage && mouse.shift && !mouse.ctrl && !mouse.alt) {
        endGesture();
        beginBand(mouse.at);
    }
    if (!mouse.left || !unmodified(mouse))
        return;
    endGesture();
    selectObject(index);
    if (onPage)
        beginBand(mouse.at);
    else
        beginDrag(index, mouse.at);
}

void moveObject(const Mouse &mouse)
{
    if ((state.dragging || state.banding) && !mouse.left) // its release went elsewhere
        cancelGesture();
    if (state.banding)
        return moveBand(mouse.at);
    if (!state.dragging || mouse.otherButton || !unmodified(mouse))
        return;
    const Point at = inObject(mouse.at);
    if (at == Point{state.grabx, state.graby})
        return;
    if (!state.moved) {
        state.moved = true;
        emptyPressedObject();
        drawOutline(draggedTo(mouse.at));
    } else {
        outlineTo(draggedTo(mouse.at));
    }
    state.grabx = at.x;
    state.graby = at.y;
}

void releaseObject(std::int16_t index, const Mouse &mouse)
{
    state.ctrlclick = mouse.ctrl;
    if (!mouse.left)
        return;
    if (state.banding && state.moved) {
        const Rect band = state.band;
        endGesture();
        selectInBand(band, mouse.shift);
    } else if (unmodified(mouse) && state.dragging) {
        drop();
    } else if (unmodified(mouse)) {
        endGesture();
        clearMultiSelection();
        showTrackers();
    } else if (mouse.ctrl && hasObject(page(), index)) {
        endGesture();
        hideTrackers();
        toggleMultiSelection(index);
    } else {
        cancelGesture();
    }
}

void pressHandle(Handle handle, const Mouse &mouse)
{
    if (!mouse.left || !hasCurrentObject())
        return;
    endGesture();
    state.resizing = true;
    state.object = editing().curobj;
    state.handle = handle;
    state.grabx = mouse.at.x;
    state.graby = mouse.at.y;
    drawOutline(rectOf(record(state.object)));
}

void moveHandle(const Mouse &mouse)
{
    if (state.resizing && !mouse.left)
        cancelGesture();
    if (!state.resizing || mouse.at == Point{state.grabx, state.graby})
        return;
    state.moved = true;
    state.grabx = mouse.at.x;
    state.graby = mouse.at.y;
    outlineTo(resized(rectOf(record(state.object)), state.handle, clampedPoint(mouse.at, sizeOf(page()))));
}

void releaseHandle(const Mouse &mouse)
{
    if (!state.resizing || !mouse.left)
        return;
    const bool moved = state.moved;
    const Rect outline = state.outline;
    endGesture();
    if (moved)
        moveSelectionTo(outline);
}

bool cancelGesture()
{
    const bool wasDragging = state.dragging;
    const bool any = gestureActive();
    endGesture();
    if (wasDragging && !inMultiSelection(editing().curobj))
        showTrackers();
    return any;
}

bool mayOpenProperties() { return hasCurrentObject() && !state.dragging; }

void drawOutline(const Rect &r)
{
    state.outline = r;
    state.outlineShown = true;
    canvasEvents().drawOutline(r);
    if (state.group)
        canvasEvents().showGroupFrame(state.multbox);
}

void hideOutline()
{
    if (!state.outlineShown)
        return;
    state.outlineShown = false;
    canvasEvents().hideOutline();
    if (state.group)
        canvasEvents().hideGroupFrame();
}

void moveSelectionTo(const Rect &r)
{
    const Rect before = rectOf(record(editing().curobj));
    const bool sameSize = state.group || (before.width == r.width && before.height == r.height);
    if (state.group) {
        moveGroup();
    } else {
        setGeometry(editing().curobj, r);
        placeFrameMarkers(editing().curobj);
        showTrackers();
    }
    pageEdited(sameSize ? "Move" : "Resize");
}

void alignSelection(std::int16_t mode)
{
    if (mode < 0 || mode > static_cast<std::int16_t>(AlignMode::Bottom) || editing().multcount < 1 ||
        !hasCurrentObject())
        return;
    const Rect reference = rectOf(record(editing().curobj));
    bool any = false;
    for (std::int16_t i = 0; i < objectCount(page()); ++i) {
        if (!inMultiSelection(i))
            continue;
        setGeometry(i, aligned(rectOf(record(i)), reference, static_cast<AlignMode>(mode)));
        placeFrameMarkers(i);
        any = true;
    }
    if (any)
        pageEdited("Align");
}

} // namespace corvanta
