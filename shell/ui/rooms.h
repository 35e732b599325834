#pragma once

#include <functional>

class QWidget;

namespace corvanta {

// Fills the commands of the rooms below: object and page properties, HTML export, the animation player. owner gives the
// window over which the player stands.
void installRooms(std::function<QWidget *()> owner);

} // namespace corvanta
