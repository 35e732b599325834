#include "canvas/ui/paint.h"
#include "document/encoding.h"
#include "document/objects.h"
#include "tests/windows/drive_pictures.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QPainter>

#include <sys/stat.h>

#include <string>
#include <vector>

namespace corvanta {
namespace {

std::string little(unsigned value, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(value >> (8 * i) & 0xFF);
    return text;
}

struct Bitmap {
    int bits = 24;
    int compression = 0; // 1: runs of 8 bits, 2: runs of 4 bits
    std::string pixels;  // rows from the bottom
    int width = 2, height = 2;
};

// Colours 0 to 3 are red, green, blue and white.
std::string bytesOf(const Bitmap &bitmap)
{
    const std::string colours =
        bitmap.bits > 8 ? "" : little(0xFF0000, 4) + little(0xFF00, 4) + little(0xFF, 4) + little(0xFFFFFF, 4);
    const std::string palette = bitmap.bits == 1 ? colours.substr(0, 8) : colours;
    const auto start = static_cast<unsigned>(54 + palette.size());
    return "BM" + little(start + static_cast<unsigned>(bitmap.pixels.size()), 4) + little(0, 4) + little(start, 4) +
           little(40, 4) + little(static_cast<unsigned>(bitmap.width), 4) +
           little(static_cast<unsigned>(bitmap.height), 4) + little(1, 2) +
           little(static_cast<unsigned>(bitmap.bits), 2) + little(static_cast<unsigned>(bitmap.compression), 4) +
           little(static_cast<unsigned>(bitmap.pixels.size()), 4) + little(2835, 4) + little(2835, 4) +
           little(static_cast<unsigned>(palette.size() / 4), 4) + little(0, 4) + palette + bitmap.pixels;
}

class QtPictures : public testing::Test, protected DrivePictures {};

TEST_F(QtPictures, BitmapsOfEveryDepth)
{
    using namespace std::string_literals;
    const std::string red = little(0xFF0000, 3), green = little(0xFF00, 3);
    const std::vector<Bitmap> bitmaps{
        {1, 0, "\x80\0\0\0\x40\0\0\0"s},
        {4, 0, "\x10\0\0\0\x01\0\0\0"s},
        {8, 0, "\1\0\0\0\0\1\0\0"s},
        {16, 0, little(0x03E07C00U, 4) + little(0x7C0003E0U, 4)},
        {24, 0, green + red + "\0\0"s + red + green + "\0\0"s},
        {32, 0, little(0xFF00, 4) + little(0xFF0000, 4) + little(0xFF0000, 4) + little(0xFF00, 4)},
        {8, 1, "\1\1\1\0\0\0\1\0\1\1\0\1"s},
        {4, 2, "\2\x10\0\0\2\x01\0\1"s},
    };
    for (const Bitmap &bitmap : bitmaps) {
        const PicturePtr picture = load("A.BMP", bytesOf(bitmap));
        ASSERT_TRUE(picture) << bitmap.bits << " " << bitmap.compression;
        EXPECT_EQ(picture->width, 2);
        EXPECT_EQ(picture->height, 2);
        if (bitmap.bits != 16) {
            EXPECT_EQ(imageOf(picture).pixelColor(0, 0), QColor(Qt::red)) << bitmap.bits;
            EXPECT_EQ(imageOf(picture).pixelColor(1, 0), QColor(0, 255, 0)) << bitmap.bits;
            EXPECT_EQ(imageOf(picture).pixelColor(0, 1), QColor(0, 255, 0)) << bitmap.bits;
        }
    }
}

TEST_F(QtPictures, TheContentTellsTheFormat)
{
    const std::string gif("GIF89a\1\0\1\0\x80\0\0\xFF\0\0\0\0\0,\0\0\0\0\1\0\1\0\0\2\2D\1\0;", 35);
    const PicturePtr picture = load("PHOTO.BMP", gif);
    ASSERT_TRUE(picture);
    EXPECT_EQ(imageOf(picture).pixelColor(0, 0), QColor(Qt::red));
    EXPECT_TRUE(pictureLoader()("c:\\photo.bmp"));

    QImage image(3, 1, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    const PicturePtr transparent = load("NOEXTENSION", image);
    ASSERT_TRUE(transparent);
    EXPECT_TRUE(imageOf(transparent).hasAlphaChannel());
}

TEST_F(QtPictures, WhatIsNoPictureGivesNone)
{
    EXPECT_FALSE(load("EMPTY.BMP", ""));
    EXPECT_FALSE(load("TEXT.BMP", "hello, world"));
    const std::string whole = bytesOf({24, 0, std::string(16, '\1')});
    for (std::size_t length = 0; length < 54; ++length)
        EXPECT_FALSE(load("CUT.BMP", whole.substr(0, length))) << length;
    EXPECT_FALSE(load("HUGE.BMP", bytesOf({24, 0, std::string(64, '\1'), 60000, 60000})));
    EXPECT_FALSE(pictureLoader()("C:\\MISSING.BMP"));
    EXPECT_FALSE(pictureLoader()("C:\\"));
    const std::string png = encoded(filled(300, 200, qRgb(9, 9, 9)));
    EXPECT_TRUE(imageOf(load("CUT.PNG", png.substr(0, png.size() / 2))).isNull()) << "its header is good";
    EXPECT_TRUE(imageOf(nullptr).isNull());
}

TEST_F(QtPictures, FormatsAndTheirSizes)
{
    const QImage image = filled(31, 17, qRgb(10, 200, 30));
    for (const char *format : {"BMP", "ICO", "JPEG", "PNG"}) {
        const PicturePtr picture = load(std::string("A.") + format, encoded(image, format));
        ASSERT_TRUE(picture) << format;
        EXPECT_EQ(QSize(picture->width, picture->height), image.size()) << format;
        EXPECT_EQ(imageOf(picture).size(), image.size()) << format;
    }
    for (const QImage::Format depth : {QImage::Format_Mono, QImage::Format_Grayscale8, QImage::Format_Grayscale16,
                                       QImage::Format_ARGB32, QImage::Format_RGBA64}) {
        const PicturePtr picture = load("DEPTH.PNG", image.convertToFormat(depth));
        ASSERT_TRUE(picture) << depth;
        const auto &file = dynamic_cast<const PictureFile &>(*picture);
        const auto bytes = static_cast<std::uint64_t>(imageOf(picture).sizeInBytes());
        EXPECT_LE(file.decodedBytes, bytes) << depth << ": what could be decoded is not refused";
        EXPECT_GE(2 * file.decodedBytes + 68, bytes) << depth;
    }
}

// What is kept of a large picture gives the same pixels as the picture itself.
TEST_F(QtPictures, PartsOfLargePicturesShowWhatTheWholeShows)
{
    QImage large(1800, 1200, QImage::Format_RGB32);
    for (int y = 0; y < large.height(); ++y)
        for (int x = 0; x < large.width(); ++x)
            large.setPixel(x, y, qRgb(x * 7 + y, y * 3, x ^ y));
    const PicturePtr picture = load("LARGE.PNG", large);
    Page p;
    p.bkgwd = 320;
    p.bkght = 200;
    p.background = picture;
    const auto image = createVisual(p, encodeInt16(static_cast<std::int16_t>(Kind::Image)));
    p.imgpictures[1].picture = picture;
    const auto button = createVisual(p, encodeInt16(static_cast<std::int16_t>(Kind::Button)));
    p.but[1].picture = picture;
    p.but[1].Caption.clear();
    p.but[1].BevelWidth = 0;
    QImage shown(p.bkgwd, p.bkght, QImage::Format_RGB32), expected = shown;
    {
        QPainter painter(&shown), whole(&expected);
        paintPageBackground(painter, p, QRect(0, 0, 320, 200));
        paintObject(painter, p, image, QRect(5, 3, 111, 77));
        paintObject(painter, p, button, QRect(150, 20, 102, 52));
        whole.drawImage(0, 0, large);
        whole.setRenderHint(QPainter::SmoothPixmapTransform);
        whole.drawImage(QRect(5, 3, 111, 77), large);
        paintObject(whole, p, button, QRect(150, 20, 102, 52)); // its outline
        whole.drawImage(QRect(151, 21, 100, 50), large.copy(850, 575, 100, 50));
    }
    EXPECT_EQ(shown, expected);
    EXPECT_LT(pictureCache()->keptBytes(), 4U * (320 * 200 + 111 * 77 + 100 * 50 + 1));
}

} // namespace
} // namespace corvanta
