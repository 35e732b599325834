#pragma once

#include "platform/picture_cache.h"

#include <QImage>
#include <QRect>

class QPainter;

namespace corvanta {

struct QtPixels : Pixels {
    QImage image;
};

// Decodes the image formats of the toolkit, by content and not by the file's name. A file that ends within its pixels
// gives what there is. For any thread.
PixelsPtr decodePicture(const PictureFile &file, const PictureView &view);

// Makes pictureLoader() load the pictures of a new cache, in the place of the one before.
void installPictureLoader(Decoding how = Decoding::InBackground, PictureCache::Decoder decoder = decodePicture);
// No loader any more: nothing is loaded or shown. A picture that takes longer than half a second to decode is given up.
void removePictureLoader();
// Whether a thread is still decoding one that was given up. It uses the toolkit: nothing may be torn down then.
bool pictureInUse();
// The one that was installed; nullptr without one.
PictureCache *pictureCache();

enum class Drawn {
    Whole, // the picture
    Later, // nothing yet: its pixels are being decoded, and pictureEvents() tells when they are there
    Never  // nothing: there is no picture, or none that can be decoded
};

// Draws a part of a picture into a rectangle, scaled where their sizes differ.
Drawn drawPicture(QPainter &painter, const QRect &target, const PicturePtr &picture, const QRect &part);

} // namespace corvanta
