#pragma once

#include "platform/event.h"

#include <functional>
#include <memory>
#include <string>

namespace corvanta {

// A picture file that can be shown, as its header tells; its pixels stand in the picture cache.
struct Picture {
    int width = 0, height = 0; // pixels
    virtual ~Picture() = default;
};
using PicturePtr = std::shared_ptr<const Picture>;

// Looks at the header of a picture file (BMP in all depths, RLE, GIF, ICO, JPEG, PNG) by drive path; none when it
// cannot be shown. Empty without a desktop: then nothing loads and nobody is told.
std::function<PicturePtr(const std::string &drivePath)> &pictureLoader();

// Told on the event loop of pictures whose pixels were asked for and not there yet.
struct PictureEvents {
    Event<const Picture &> arrived;    // they can be shown now
    Event<const Picture &> unreadable; // the header promised what the file does not hold
};
PictureEvents &pictureEvents();

} // namespace corvanta
