#include "canvas/ui/canvas_input.h"

#include "canvas/lifecycle.h"
#include "canvas/running.h"
#include "canvas/selection.h"
#include "canvas/tab_order.h"
#include "canvas/ui/visual.h"
#include "document/objects.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace corvanta {

namespace {

Mouse mouseOf(const QMouseEvent &event, QPoint at)
{
    const bool moving = event.type() == QEvent::MouseMove;
    Mouse mouse;
    mouse.at = {at.x(), at.y()};
    mouse.left = moving ? event.buttons().testFlag(Qt::LeftButton) : event.button() == Qt::LeftButton;
    mouse.otherButton = (event.buttons() & ~Qt::LeftButton) != 0;
    mouse.shift = event.modifiers().testFlag(Qt::ShiftModifier);
    mouse.ctrl = event.modifiers().testFlag(Qt::ControlModifier);
    mouse.alt = event.modifiers().testFlag(Qt::AltModifier);
    return mouse;
}

int keyCode(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return enterKey;
    case Qt::Key_Delete: return deleteKey;
    case Qt::Key_Escape: return escapeCharacter;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return tabKey;
    default: return event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z ? event.key() : 0;
    }
}

bool isTab(const QKeyEvent &event) { return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab; }

bool isKind(std::int16_t index, Kind kind)
{
    return hasObject(page(), index) && kindOf(page().objects[static_cast<std::size_t>(index)].kind) == kind;
}

} // namespace

CanvasInput::CanvasInput(QWidget &area, const Trackers &shownTrackers, EditformCommands &toCall)
    : QObject(&area), pageArea(area), trackers(shownTrackers), commands(toCall), tmdclk(this)
{
    area.installEventFilter(this);
    for (HandleBox *box : trackers.handles())
        box->installEventFilter(this);
    tmdclk.setObjectName(QStringLiteral("tmdclk"));
    tmdclk.setInterval(tmdclkInterval);
    connect(&tmdclk, &QTimer::timeout, this, [this] {
        if (!clicks.tick())
            tmdclk.stop();
    });
}

bool CanvasInput::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return mouseEvent(static_cast<QWidget &>(*watched), static_cast<const QMouseEvent &>(*event));
    case QEvent::KeyPress: // before the keyboard focus moves on
        return watched == &pageArea && isTab(static_cast<const QKeyEvent &>(*event)) &&
               keyDown(static_cast<const QKeyEvent &>(*event));
    case QEvent::Leave:
        if (pointed)
            pointed(noObject);
        return false;
    case QEvent::FocusOut:
    case QEvent::WindowDeactivate:
    case QEvent::WindowBlocked:
    case QEvent::EnabledChange:
    case QEvent::Hide:
        if (watched == &pageArea)
            loseMouseAndKeys();
        return false;
    default: return false;
    }
}

// The releases of what is held go to another window.
void CanvasInput::loseMouseAndKeys()
{
    mouseTaken();
    endTabOrder();
    deleteHeld = false;
}

std::int16_t CanvasInput::objectAt(const QWidget &widget, QPoint at) const
{
    if (&widget == &pageArea)
        return hitTestPage(page(), at.x(), at.y());
    const ControlReference control = static_cast<const Visual &>(widget).control();
    return findObjectByControl(page(), static_cast<Kind>(control.kind), control.element);
}

bool CanvasInput::mouseEvent(QWidget &widget, const QMouseEvent &event)
{
    const QPoint at = widget.mapTo(&pageArea, event.position().toPoint());
    const Mouse mouse = mouseOf(event, at);
    const auto &boxes = trackers.handles();
    if (tabOrderActive()) {
        if (event.type() == QEvent::MouseButtonPress && mouse.left)
            numberObject(objectAt(widget, at));
        return true;
    }
    const auto box = std::find(boxes.begin(), boxes.end(), &widget);
    if (box != boxes.end())
        return handleEvent(static_cast<Handle>(box - boxes.begin()), event, mouse);
    const std::int16_t index = objectAt(widget, at);
    switch (event.type()) {
    case QEvent::MouseButtonPress: press(index, event, mouse); break;
    case QEvent::MouseMove:
        moved(event, mouse);
        if (pointed)
            pointed(index);
        break;
    case QEvent::MouseButtonRelease: release(widget, index, event, mouse); break;
    case QEvent::MouseButtonDblClick: doubleClick(index, event, mouse); break;
    default: break;
    }
    return true;
}

void CanvasInput::moved(const QMouseEvent &event, const Mouse &mouse)
{
    lastMove = mouse;
    lastPointer = event.globalPosition().toPoint();
    gesture().resizing ? moveHandle(mouse) : moveObject(mouse);
    if (gestureActive() && dragged)
        dragged(lastPointer);
}

void CanvasInput::repeatMove()
{
    if (!gestureActive())
        return;
    const QPoint at = pageArea.mapFromGlobal(lastPointer);
    lastMove.at = {at.x(), at.y()};
    gesture().resizing ? moveHandle(lastMove) : moveObject(lastMove);
}

bool CanvasInput::handleEvent(Handle handle, const QMouseEvent &event, const Mouse &mouse)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: pressHandle(handle, mouse); break;
    case QEvent::MouseMove: moved(event, mouse); break;
    case QEvent::MouseButtonRelease: releaseHandle(mouse); break;
    default: break;
    }
    return true;
}

void CanvasInput::press(std::int16_t index, const QMouseEvent &event, const Mouse &mouse)
{
    pageArea.setFocus(Qt::MouseFocusReason);
    if (isKind(index, Kind::Ticker))
        pressTicker(event.button());
    const QScopedValueRollback press(inPress, true);
    pressObject(index, mouse);
}

void CanvasInput::release(QWidget &widget, std::int16_t index, const QMouseEvent &event, const Mouse &mouse)
{
    const bool moved = gesture().moved;
    const bool inside = widget.rect().contains(event.position().toPoint());
    const bool plain = mouse.left && !mouse.shift && !mouse.ctrl && !mouse.alt;
    releaseTicker(event.button());
    releaseObject(index, mouse);
    if (&widget != &pageArea && isKind(index, Kind::Button) && plain && inside && !moved)
        buttonClicked();
}

// A Button knows clicks only: for it a double click is one more press. So it is with a modifier, which selects.
void CanvasInput::doubleClick(std::int16_t index, const QMouseEvent &event, const Mouse &mouse)
{
    if (isKind(index, Kind::Button) || mouse.shift || mouse.ctrl || mouse.alt)
        press(index, event, mouse);
    else if (hasObject(page(), index) && event.button() == Qt::LeftButton)
        openProperties();
}

void CanvasInput::buttonClicked()
{
    const bool second = clicks.click();
    if (!clicks.waiting())
        tmdclk.stop();
    else if (!tmdclk.isActive())
        tmdclk.start();
    if (second)
        openProperties();
}

void CanvasInput::openProperties()
{
    if (!mayOpenProperties())
        return;
    if (commands.openProperties)
        commands.openProperties();
    showTrackers();
}

bool CanvasInput::keyDown(const QKeyEvent &event)
{
    if (event.key() == Qt::Key_Escape)
        return run(keyPressCommand(escapeCharacter));
    if (event.key() == Qt::Key_Delete && !event.isAutoRepeat())
        deleteHeld = true;
    const KeyModifiers held{event.modifiers().testFlag(Qt::ShiftModifier),
                            event.modifiers().testFlag(Qt::ControlModifier),
                            event.modifiers().testFlag(Qt::AltModifier)};
    return run(keyDownCommand(keyCode(event), held));
}

// A Delete that went down elsewhere, in a dialog that is closed now, deletes nothing here.
bool CanvasInput::keyUp(const QKeyEvent &event)
{
    if (event.isAutoRepeat() || (event.key() == Qt::Key_Delete && !std::exchange(deleteHeld, false)))
        return false;
    return run(keyUpCommand(keyCode(event)));
}

bool CanvasInput::run(CanvasCommand command)
{
    const auto openMenu = [this](char letter) {
        if (commands.openMenu)
            commands.openMenu(letter);
        return true;
    };
    switch (command) {
    case CanvasCommand::None: return false;
    case CanvasCommand::Properties: openProperties(); return true;
    case CanvasCommand::Delete:
        if (commands.deleteCurrent)
            commands.deleteCurrent();
        return true;
    case CanvasCommand::Cancel:
        if (!cancelGesture())
            endTabOrder();
        return true;
    case CanvasCommand::ClearSelection: clearSelection(); return true;
    case CanvasCommand::NextObject: walkObjects(true); return true;
    case CanvasCommand::FormerObject: walkObjects(false); return true;
    case CanvasCommand::FileMenu: return openMenu('F');
    case CanvasCommand::PageMenu: return openMenu('P');
    case CanvasCommand::ObjectMenu: return openMenu('O');
    case CanvasCommand::HelpMenu: return openMenu('H');
    }
    return false;
}

} // namespace corvanta
