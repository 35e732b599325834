#pragma once

#include "canvas/clicks.h"
#include "canvas/gestures.h"
#include "canvas/keys.h"
#include "canvas/ui/trackers.h"

#include <QObject>
#include <QTimer>

#include <functional>

class QKeyEvent;
class QMouseEvent;

namespace corvanta {

// What the canvas asks of the rest of the program. Empty members are not called.
struct EditformCommands {
    std::function<void(char)> openMenu;   // 'F', 'P', 'O' or 'H': a menu of the main window
    std::function<void()> openProperties; // of the current object; may return before the dialog is closed
    std::function<void()> deleteCurrent;  // the main window's delete command
    std::function<void()> currentChanged; // curobj was set: object commands may switch
    std::function<void()> statusClicked;  // the status panel
    std::function<void()> closeRequested; // the user closed the canvas window
    std::function<void(QPoint, QByteArray)> fieldDropped; // a column: page point (pixels) and payload
    std::function<void(std::int16_t, QPoint, QPoint)>
        contextMenu; // object or noObject, page point, point of the screen
};

// Translates mouse and key events of the page area, the visuals and the tracker handles into the rules of
// the canvas. Points are page pixels whichever widget an event belongs to.
class CanvasInput : public QObject {
public:
    CanvasInput(QWidget &area, const Trackers &shownTrackers, EditformCommands &toCall);

    void watch(QWidget &visual) { visual.installEventFilter(this); }
    // Keys of the canvas window; true when the key was one of the canvas's.
    bool keyDown(const QKeyEvent &event);
    bool keyUp(const QKeyEvent &event);

    // The mouse's last move once more, after the page has scrolled under it.
    void repeatMove();
    bool pressing() const { return inPress; } // a mouse button goes down

    // The object under the pointer has changed; noObject for none.
    std::function<void(std::int16_t)> pointed;
    // A gesture goes on with the pointer at a point of the screen.
    std::function<void(QPoint)> dragged;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool mouseEvent(QWidget &widget, const QMouseEvent &event);
    void moved(const QMouseEvent &event, const Mouse &mouse);
    bool handleEvent(Handle handle, const QMouseEvent &event, const Mouse &mouse);
    void loseMouseAndKeys();
    void press(std::int16_t index, const QMouseEvent &event, const Mouse &mouse);
    void release(QWidget &widget, std::int16_t index, const QMouseEvent &event, const Mouse &mouse);
    void doubleClick(std::int16_t index, const QMouseEvent &event, const Mouse &mouse);
    void buttonClicked();
    void openProperties();
    bool run(CanvasCommand command);
    std::int16_t objectAt(const QWidget &widget, QPoint at) const;

    QWidget &pageArea;
    const Trackers &trackers;
    EditformCommands &commands;
    ClickCounter clicks;
    QTimer tmdclk;
    bool deleteHeld = false; // Delete went down on the canvas
    bool inPress = false;
    Mouse lastMove;
    QPoint lastPointer; // on the screen
};

} // namespace corvanta
