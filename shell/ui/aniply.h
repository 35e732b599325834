#pragma once

class QWidget;

namespace corvanta {

// The animation player over its owner, where there is room beside the page in the canvas: plays the current animation
// until it is closed. Modal.
void showPlayer(QWidget &owner, const QWidget &canvas);

} // namespace corvanta
