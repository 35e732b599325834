#include "canvas/player.h"

#include "canvas/running.h"
#include "canvas/selection.h"
#include "document/objects.h"
#include "platform/profile.h"

#include <algorithm>
#include <utility>

namespace corvanta {

namespace {

std::int16_t playing = noObject; // animation element; none while not busy

std::int16_t currentAnimation()
{
    const std::int16_t index = editing().curobj;
    if (!hasObject(page(), index) || kindOf(page().objects[static_cast<std::size_t>(index)].kind) != Kind::Animation)
        return noObject;
    return page().ctlindex[static_cast<std::size_t>(index)];
}

bool hasFrameFile(const std::vector<int> &frames)
{
    return std::any_of(frames.begin(), frames.end(), [](int number) {
        const Frame &frame = page().frames[static_cast<std::size_t>(number)];
        return !frame.image.empty() || !frame.sound.empty();
    });
}

} // namespace

PlayerEvents &playerEvents()
{
    static PlayerEvents events;
    return events;
}

bool playerBusy() { return playing != noObject; }

PlayerTexts openPlayer()
{
    closePlayer();
    const std::int16_t element = currentAnimation();
    const std::vector<int> frames = element == noObject ? std::vector<int>{} : frameNumbers(page(), element);
    if (!hasFrameFile(frames))
        return {"No frames to play.", "Close"};
    playing = element;
    hideTrackers();
    playerEvents().previewBegins(element);
    startAnimation(element);
    return {"Playing" + profileNumber(static_cast<int>(frames.size())) + " frames...", ""};
}

void closePlayer()
{
    if (!playerBusy())
        return;
    const std::int16_t element = std::exchange(playing, noObject);
    stopRunning(findObjectByControl(page(), Kind::Animation, element));
    playerEvents().previewEnds(element);
    showTrackers();
}

} // namespace corvanta
