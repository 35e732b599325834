#include "canvas/lifecycle.h"
#include "canvas/page_view.h"
#include "canvas/player.h"
#include "canvas/running.h"
#include "canvas/selection.h"
#include "canvas/tab_order.h"
#include "canvas/ui/drop.h"
#include "canvas/ui/editform.h"
#include "document/events.h"
#include "document/file_state.h"
#include "platform/qt/qt_pictures.h"
#include "platform/qt/text.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QScrollArea>
#include <QScrollBar>

#include <tuple>

// What the canvas window hears of the document, of the canvas's rules and of what runs on the page.
namespace corvanta {

namespace {

int inTwips(int pixels) { return pixels * running().twipsPerPixel; }

const Element &tickerElement(std::int16_t element) { return page().tkr.at(static_cast<std::size_t>(element)); }

void changeLive(Visual *visual, const auto &change)
{
    if (!visual)
        return;
    LiveState live = visual->live();
    change(live);
    visual->setLive(live);
}

} // namespace

Editform::~Editform()
{
    connections.clear();
    runningEvents().tickerTextWidth = runningEvents().tickerInnerWidth = {};
    clearRunning();
}

void Editform::listenToDocument()
{
    DocumentEvents &document = documentEvents();
    connections.add(document.objectCreated, [this](std::int16_t index) { createVisual(index); });
    connections.add(document.objectRemoving, [this](std::int16_t index) {
        objectLeavesCanvas(index);
        visuals.remove(index);
    });
    connections.add(document.objectChanged, [this](std::int16_t index) { objectChanged(index); });
    connections.add(document.currentCleared, [] {
        hideTrackers();
        canvasEvents().currentChanged();
    });
    connections.add(document.pageLayout, [this] { applyPageLayout(); });
    connections.add(document.pageChanged, [this] { repaintPage(); });
    connections.add(document.pageRestored, [this](const Page &before) { pageRestored(before); });
    connections.add(document.orderChanged, [this] {
        visuals.restack();
        area->update();
    });
    connections.add(document.notice, [this](std::string_view text) { statusPanel->setStatus(toQString(text)); });
    connections.add(document.pageReset, [this] {
        resetCanvas();
        trackers.hideAll();
        area->update();
    });
}

void Editform::listenToCanvas()
{
    CanvasEvents &events = canvasEvents();
    connections.add(events.bringToFront, [this](std::int16_t index) { visuals.raise(index); });
    connections.add(events.currentChanged, [this] {
        showStatus(noObject);
        showReference();
        if (!input.pressing()) // what is pressed is in sight, and stays where it is
            scrollToCurrent();
        tell(commands.currentChanged);
    });
    connections.add(events.showTrackers, [this](const Rect &r) { trackers.showHandles(r); });
    connections.add(events.hideTrackers, [this] { trackers.hideHandles(); });
    connections.add(events.placeFrameMarkers, [this](std::int16_t slot, const Rect &r) {
        trackers.placeMarkers(slot, r);
        showReference();
    });
    connections.add(events.hideFrameMarkers, [this](std::int16_t slot) { trackers.hideMarkers(slot); });
    connections.add(events.drawOutline, [this](const Rect &r) {
        trackers.drawOutline(r);
        showStatus(noObject);
    });
    connections.add(events.hideOutline, [this] {
        trackers.hideOutline();
        showStatus(noObject);
    });
    connections.add(events.drawBand, [this](const Rect &r) { trackers.drawBand(r); });
    connections.add(events.hideBand, [this] { trackers.hideBand(); });
    connections.add(events.tabOrder, [this](bool shown) {
        if (shown)
            takeFocus();
        badges->showNumbers(shown);
        showStatus(noObject);
    });
    connections.add(events.showGroupFrame, [this](const Rect &r) { trackers.showGroupFrame(r); });
    connections.add(events.hideGroupFrame, [this] { trackers.hideGroupFrame(); });
    connections.add(events.emptyVisual, [this](std::int16_t index) {
        changeLive(visuals.of(index), [](LiveState &live) { live.emptied = true; });
    });
    connections.add(events.restoreVisual, [this](std::int16_t index) {
        changeLive(visuals.of(index), [](LiveState &live) { live.emptied = false; });
    });
}

void Editform::listenToRunning()
{
    objtimer.setObjectName(QStringLiteral("objtimer"));
    objtimer.setInterval(objtimerInterval);
    objtimer.setTimerType(Qt::PreciseTimer);
    connect(&objtimer, &QTimer::timeout, this, [] { timerStep(); });
    RunningEvents &events = runningEvents();
    connections.add(events.enableTimer, [this](bool on) {
        if (on != objtimer.isActive())
            on ? objtimer.start() : objtimer.stop();
    });
    events.tickerTextWidth = [](std::int16_t element) { return inTwips(tickerTextWidth(tickerElement(element))); };
    events.tickerInnerWidth = [](std::int16_t element) { return inTwips(tickerInnerWidth(tickerElement(element))); };
    connections.add(events.tickerMoved, [this](std::int16_t element, int left) {
        changeLive(visuals.of(Kind::Ticker, element),
                   [left](LiveState &live) { live.textOffset = left / running().twipsPerPixel; });
    });
    connections.add(events.showFrame, [this](std::int16_t element, int frame) {
        changeLive(visuals.of(Kind::Animation, element), [frame](LiveState &live) { live.frame = frame; });
    });
    connections.add(playerEvents().previewBegins, [this](std::int16_t element) {
        changeLive(visuals.of(Kind::Animation, element), [](LiveState &live) { live.bordered = false; });
    });
    connections.add(playerEvents().previewEnds, [this](std::int16_t element) {
        changeLive(visuals.of(Kind::Animation, element), [](LiveState &live) { live = {}; });
    });
}

// What shows an arrived picture is painted at once, before another one may take its room. What else waits to be painted
// comes first: it may ask for its pictures again.
void Editform::listenToPictures()
{
    connections.add(pictureEvents().arrived, [this](const Picture &picture) {
        if (!pictureCache())
            return;
        paintNow();
        visuals.updateShowing(picture);
        pictureCache()->paintsArrival(true);
        paintNow();
        pictureCache()->paintsArrival(false);
    });
}

void Editform::paintNow()
{
    QEvent request(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(window(), &request);
}

void Editform::createVisual(std::int16_t index)
{
    if (Visual *visual = visuals.create(index))
        input.watch(*visual);
    objectEntersCanvas(index);
}

// Undo: only what differs is made or painted again.
void Editform::pageRestored(const Page &before)
{
    const auto lookOf = [](const Page &p) {
        return std::tie(p.bkgcol, p.bkght, p.bkgwd, p.pgflags, p.pgcaption, p.background);
    };
    mouseTaken();
    dropTabOrder();
    trackers.hideAll();
    stopRunningWithoutObjects();
    visuals.follow(before, [this](std::int16_t index) { createVisual(index); });
    if (lookOf(before) != lookOf(page()))
        applyPageLayout();
    for (std::int16_t i = 0; i < objectCount(page()); ++i)
        placeFrameMarkers(i);
    if (editing().multcount == 0)
        showTrackers();
    canvasEvents().currentChanged();
}

void Editform::objectChanged(std::int16_t index)
{
    visuals.refresh(index);
    placeFrameMarkers(index);
    if (index == editing().curobj) {
        showStatus(noObject);
        if (trackers.handlesShown())
            showTrackers();
    }
}

void Editform::drop(QPoint at, const DragPayload &payload)
{
    endTabOrder();
    takeFocus(); // the keys go to the new object
    const auto kind = kindOf(payload.payload.toShort());
    if (payload.tag == "obj" && kind)
        dropObject(*kind, {at.x(), at.y()});
    else if (payload.tag == "fld")
        tell(commands.fieldDropped, at, payload.payload);
}

// By the keyboard it is about the current object.
void Editform::contextMenuEvent(QContextMenuEvent *event)
{
    endTabOrder();
    std::int16_t index = editing().curobj;
    QPoint at = area->mapFromGlobal(event->globalPos());
    if (event->reason() == QContextMenuEvent::Keyboard) {
        const Rect r = hasCurrentObject() ? rectOf(page().objects[static_cast<std::size_t>(index)]) : Rect{};
        at = {r.left + r.width / 2, r.top + r.height / 2};
    } else if (const auto *visual = dynamic_cast<const Visual *>(area->childAt(at))) {
        const ControlReference control = visual->control();
        index = findObjectByControl(page(), static_cast<Kind>(control.kind), control.element);
    } else if (area->rect().contains(at) && (!area->childAt(at) || !trackers.handlesShown())) {
        index = hitTestPage(page(), at.x(), at.y());
    }
    tell(commands.contextMenu, index, at, area->mapToGlobal(at));
}

void Editform::takeFocus()
{
    activateWindow();
    area->setFocus();
}

void Editform::scrollOn()
{
    QWidget &view = *scroller->viewport();
    const QPoint at = view.mapFromGlobal(pointer);
    const Point step = scrollStep({at.x(), at.y()}, {view.width(), view.height()});
    if (!gestureActive() || step == Point{})
        return scrolling.stop();
    scroller->horizontalScrollBar()->setValue(scroller->horizontalScrollBar()->value() + step.x);
    scroller->verticalScrollBar()->setValue(scroller->verticalScrollBar()->value() + step.y);
    input.repeatMove();
}

void Editform::showReference()
{
    const bool current = hasCurrentObject();
    trackers.showReference(current ? page().objects[static_cast<std::size_t>(editing().curobj)].selslot : 0);
}

// All of it where there is room, else its top left corner.
void Editform::scrollToCurrent()
{
    if (!hasCurrentObject() || gestureActive())
        return;
    const Rect r = rectOf(page().objects[static_cast<std::size_t>(editing().curobj)]);
    scroller->ensureVisible(r.right(), r.bottom(), handleSize, handleSize);
    scroller->ensureVisible(r.left, r.top, handleSize, handleSize);
}

// What a gesture does, else the status text of the object under the pointer, else of the current object, else what is
// damaged in the page's file.
void Editform::showStatus(std::int16_t pointed)
{
    if (tabOrderActive())
        return statusPanel->setStatus(toQString(tabOrderText()));
    if (gesture().outlineShown)
        return statusPanel->setStatus(toQString(gestureText()));
    const std::int16_t index = pointed == noObject ? editing().curobj : pointed;
    statusPanel->setStatus(toQString(hasObject(page(), index) ? page().objects[static_cast<std::size_t>(index)].sptext
                                                              : fileDamage().summary));
}

} // namespace corvanta
