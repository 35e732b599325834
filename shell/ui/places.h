#pragma once

#include "document/settings.h"

class QWidget;

namespace corvanta {

// The windows' positions and sizes in twips; check marks as in a new record.
WindowSettings windowPlaces(const QWidget &main, const QWidget &canvas);

// Moves the windows to their places, kept on the screen. The canvas carries the tag "IN INPOPTS" meanwhile.
void placeWindows(QWidget &main, QWidget &canvas, const WindowSettings &places);

// Where the windows stand before there are settings: the main window at the top left, the canvas below it.
void placeAtFirst(QWidget &main, QWidget &canvas);

} // namespace corvanta
