#pragma once

#include "platform/event.h"

#include <cstdint>
#include <string>

// The animation player: plays the current animation on the canvas while its window is open.
namespace corvanta {

struct PlayerEvents {
    // Told with the element: the animation's frame loses its border; at the end it has it again and the images rest in
    // their places.
    Event<std::int16_t> previewBegins, previewEnds;
};

PlayerEvents &playerEvents();

struct PlayerTexts {
    std::string playtext;
    std::string stopbut; // empty: the button keeps its caption
};

// The window opens: begins the preview when the current animation has a frame file.
PlayerTexts openPlayer();
// The window closes: ends the preview.
void closePlayer();
bool playerBusy();

} // namespace corvanta
