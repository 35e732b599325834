#pragma once

#include "document/settings.h"

class QRect;
class QWidget;

namespace corvanta {

// From now on a window's place and size count as they are while it is normal: neither minimised, maximised nor hidden.
void rememberPlace(QWidget &window);

// Moves a window that was hidden to where it stood; nothing before it has been on the screen.
void putBack(QWidget &window);

// Keeps the place of a window that is remembered between runs of the program, under its title; puts it there again.
void storePlace(const QWidget &window);
void restorePlace(QWidget &window);

// The windows' positions and sizes in twips; check marks as in a new record.
WindowSettings windowPlaces(const QWidget &main, const QWidget &canvas);

// Moves the windows to their places, kept on the screen; the canvas gets its size before it is shown. The canvas
// carries the tag "IN INPOPTS" meanwhile.
void placeWindows(QWidget &main, QWidget &canvas, const WindowSettings &places);

// Where the windows stand before there are settings: the main window at the top left, the canvas below it.
void placeAtFirst(QWidget &main, QWidget &canvas);

// The part of the main window's screen where a canvas hides none of its menus and tools.
QRect roomForCanvas(const QWidget &main);

// Waits, a moment at most, until the window system has framed a window that was just shown: a window that gets another
// size before that ends up beside its place by its frame.
void waitForFrame(const QWidget &window);

} // namespace corvanta
