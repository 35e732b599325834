#pragma once

#include "platform/pictures.h"

#include <QImage>

namespace corvanta {

struct QtPicture : Picture {
    QImage image;
};

// The picture's image; nullptr for no picture, or one that another toolkit has loaded.
const QImage *imageOf(const PicturePtr &picture);

// Makes pictureLoader() load the image formats of the toolkit, by content and not by the file's name. A file that
// ends within its pixels gives what there is.
void installPictureLoader();

} // namespace corvanta
