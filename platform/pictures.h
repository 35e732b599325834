#pragma once

#include <functional>
#include <memory>
#include <string>

namespace corvanta {

// A loaded picture. The toolkit's own picture stands in a record derived from it (platform/qt).
struct Picture {
    int width = 0, height = 0; // pixels
    virtual ~Picture() = default;
};
using PicturePtr = std::shared_ptr<const Picture>;

// Loads a picture file (BMP in all depths, RLE, GIF, ICO, JPEG, PNG) by drive path; none when it
// cannot be loaded. Empty without a desktop: then nothing loads and nobody is told.
std::function<PicturePtr(const std::string &drivePath)> &pictureLoader();

} // namespace corvanta
