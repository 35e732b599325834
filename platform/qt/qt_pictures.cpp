#include "platform/qt/qt_pictures.h"

#include <QCoreApplication>
#include <QFile>
#include <QImageReader>
#include <QPainter>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace corvanta {

namespace {

constexpr std::uint64_t megabyte = 1 << 20;
constexpr std::uint64_t alwaysWhole = 4 * megabyte; // what is smaller is kept as it is, however it is shown

std::unique_ptr<PictureCache> &installed()
{
    static std::unique_ptr<PictureCache> cache;
    return cache;
}

PictureCache *&givenUp()
{
    static PictureCache *cache = nullptr;
    return cache;
}

const char *nameOf(PictureFormat format)
{
    switch (format) {
    case PictureFormat::Bmp: return "bmp";
    case PictureFormat::Gif: return "gif";
    case PictureFormat::Ico: return "ico";
    case PictureFormat::Jpeg: return "jpeg";
    case PictureFormat::Png: return "png";
    }
    return "";
}

// The file may have become another one since its header was looked at.
QImage wholePicture(const std::string &drivePath)
{
    const OpenMedia file(drivePath);
    const auto header = file ? pictureHeader(file.source()) : std::nullopt;
    QFile device;
    QImage image;
    if (!header || !device.open(file.descriptor(), QIODevice::ReadOnly))
        return image;
    QImageReader reader(&device, nameOf(header->format));
    reader.setAutoDetectImageFormat(false);
    if (!reader.read(&image))
        return {};
    image.setDevicePixelRatio(1);
    return image;
}

// The part as it is shown, from the same drawing that would show it from the whole picture.
QImage viewOf(const QImage &whole, const PictureView &view)
{
    const QRect part(view.left, view.top, view.width, view.height);
    const QSize shown(view.shownWidth, view.shownHeight);
    if (part.size() == shown)
        return whole.copy(part);
    QImage image(shown, whole.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect(QPoint(), shown), whole, part);
    return image;
}

// What is worth keeping for a part that is shown in so many pixels: all of a picture, unless that saves much room.
PictureView viewFor(const PictureFile &file, const QRect &part, QSize shown)
{
    constexpr std::uint64_t bytesOfPixel = 4, gain = 2;
    const std::uint64_t bytes =
        bytesOfPixel * static_cast<std::uint64_t>(shown.width()) * static_cast<std::uint64_t>(shown.height());
    if (file.decodedBytes <= alwaysWhole || bytes * gain >= file.decodedBytes)
        return {};
    return {part.left(), part.top(), part.width(), part.height(), shown.width(), shown.height()};
}

// In pixels of the screen; what is not scaled needs no more pixels than it has.
QSize shownSize(const QPainter &painter, QSize target, QSize part)
{
    if (target == part)
        return part;
    const qreal scale = std::max<qreal>(painter.deviceTransform().m11(), 1);
    return {static_cast<int>(std::ceil(target.width() * scale)), static_cast<int>(std::ceil(target.height() * scale))};
}

} // namespace

PixelsPtr decodePicture(const PictureFile &file, const PictureView &view)
{
    const QImage whole = wholePicture(file.path);
    if (whole.isNull())
        return nullptr;
    const auto pixels = std::make_shared<QtPixels>();
    pixels->image = view.whole() ? whole : viewOf(whole, view);
    pixels->bytes = static_cast<std::uint64_t>(pixels->image.sizeInBytes());
    return pixels;
}

void installPictureLoader(Decoding how, PictureCache::Decoder decoder)
{
    static const bool endsWithTheProgram = [] {
        qAddPostRoutine(removePictureLoader); // its thread uses the toolkit
        return true;
    }();
    static_cast<void>(endsWithTheProgram);
    QImageReader::setAllocationLimit(static_cast<int>(mostDecodedBytes / megabyte));
    removePictureLoader();
    installed() = std::make_unique<PictureCache>(std::move(decoder), mostPictureBytes - mostDecodedBytes, how);
    pictureLoader() = [](const std::string &drivePath) { return installed()->load(drivePath); };
}

void removePictureLoader()
{
    constexpr std::chrono::milliseconds longest(500);
    pictureLoader() = nullptr;
    if (!installed())
        return;
    installed()->cancel();
    if (!installed()->finish(longest))
        givenUp() = installed().release();
    installed().reset();
}

bool pictureInUse() { return givenUp() != nullptr; }

PictureCache *pictureCache() { return installed().get(); }

Drawn drawPicture(QPainter &painter, const QRect &target, const PicturePtr &picture, const QRect &part)
{
    const auto *file = dynamic_cast<const PictureFile *>(picture.get());
    if (!file || !pictureCache() || part.isEmpty() || target.isEmpty())
        return Drawn::Never;
    const PictureView view = viewFor(*file, part, shownSize(painter, target.size(), part.size()));
    const auto pixels = std::dynamic_pointer_cast<const QtPixels>(pictureCache()->shown(picture, view));
    if (!pixels)
        return file->unreadable ? Drawn::Never : Drawn::Later;
    painter.drawImage(target, pixels->image, view.whole() ? part : pixels->image.rect());
    return Drawn::Whole;
}

} // namespace corvanta
