#include "platform/qt/qt_pictures.h"

#include "platform/files.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>

namespace corvanta {

namespace {

constexpr std::uintmax_t mostFileBytes = 64 << 20;
constexpr int mostImageMegabytes = 128;

PicturePtr loadPicture(const std::string &drivePath)
{
    const FileContent file = readFile(drivePath, mostFileBytes);
    QByteArray bytes = QByteArray::fromRawData(file.bytes.data(), static_cast<qsizetype>(file.bytes.size()));
    QBuffer source(&bytes);
    QImageReader reader(&source);
    reader.setDecideFormatFromContent(true);
    const auto picture = std::make_shared<QtPicture>();
    if (bytes.isEmpty() || !reader.read(&picture->image))
        return nullptr;
    picture->image.setDevicePixelRatio(1);
    picture->width = picture->image.width();
    picture->height = picture->image.height();
    return picture;
}

} // namespace

const QImage *imageOf(const PicturePtr &picture)
{
    const auto *loaded = dynamic_cast<const QtPicture *>(picture.get());
    return loaded ? &loaded->image : nullptr;
}

void installPictureLoader()
{
    QImageReader::setAllocationLimit(mostImageMegabytes);
    pictureLoader() = loadPicture;
}

} // namespace corvanta
