#pragma once

#include <cstdint>
#include <functional>
#include <string>

// The animation player: plays the current animation on the canvas while its window is open.
namespace corvanta {

struct PlayerEvents {
    // The animation's frame loses its border; at the end it has it again and the images rest in their places.
    std::function<void(std::int16_t element)> previewBegins, previewEnds;
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
