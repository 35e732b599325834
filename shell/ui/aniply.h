#pragma once

class QWidget;

namespace corvanta {

// The animation player over its owner: plays the current animation on the canvas until it is closed. Modal.
void showPlayer(QWidget *owner);

} // namespace corvanta
