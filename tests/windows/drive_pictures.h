#pragma once

#include "platform/qt/qt_pictures.h"
#include "tests/support/temporary_drive.h"

#include <QBuffer>

namespace corvanta {

// Picture files on a drive of their own, and a cache that shows them.
struct DrivePictures {
    explicit DrivePictures(Decoding how = Decoding::AtOnce, PictureCache::Decoder decoder = decodePicture)
    {
        installPictureLoader(how, std::move(decoder));
    }
    ~DrivePictures() { removePictureLoader(); }

    PicturePtr load(const std::string &name, const std::string &bytes) const
    {
        drive.add(name, bytes);
        return pictureLoader()("C:\\" + name);
    }
    PicturePtr load(const std::string &name, const QImage &image) const { return load(name, encoded(image)); }
    static std::string encoded(const QImage &image, const char *format = "PNG")
    {
        QBuffer bytes;
        image.save(&bytes, format, 100); // PNG: packed little, which is quick
        return bytes.data().toStdString();
    }
    static QImage filled(int width, int height, QRgb colour)
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(colour);
        return image;
    }
    // All of a picture, decoded; a null image when it cannot be.
    static QImage imageOf(const PicturePtr &picture)
    {
        const auto pixels =
            picture ? std::dynamic_pointer_cast<const QtPixels>(pictureCache()->shown(picture, {})) : nullptr;
        return pixels ? pixels->image : QImage();
    }

    TemporaryDrive drive;
};

} // namespace corvanta
