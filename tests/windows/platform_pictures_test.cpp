#include "platform/qt/qt_pictures.h"
#include "tests/support/temporary_drive.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QColor>

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

class QtPictures : public testing::Test {
protected:
    QtPictures() { installPictureLoader(); }

    PicturePtr load(const std::string &name, const std::string &bytes) const
    {
        drive.add(name, bytes);
        return pictureLoader()("C:\\" + name);
    }

    TemporaryDrive drive;
};

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
            EXPECT_EQ(imageOf(picture)->pixelColor(0, 0), QColor(Qt::red)) << bitmap.bits;
            EXPECT_EQ(imageOf(picture)->pixelColor(1, 0), QColor(0, 255, 0)) << bitmap.bits;
            EXPECT_EQ(imageOf(picture)->pixelColor(0, 1), QColor(0, 255, 0)) << bitmap.bits;
        }
    }
}

TEST_F(QtPictures, TheContentTellsTheFormat)
{
    const std::string gif("GIF89a\1\0\1\0\x80\0\0\xFF\0\0\0\0\0,\0\0\0\0\1\0\1\0\0\2\2D\1\0;", 35);
    const PicturePtr picture = load("PHOTO.BMP", gif);
    ASSERT_TRUE(picture);
    EXPECT_EQ(imageOf(picture)->pixelColor(0, 0), QColor(Qt::red));
    EXPECT_TRUE(pictureLoader()("c:\\photo.bmp"));

    QImage image(3, 1, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QBuffer png;
    ASSERT_TRUE(image.save(&png, "PNG"));
    const PicturePtr transparent = load("NOEXTENSION", png.data().toStdString());
    ASSERT_TRUE(transparent);
    EXPECT_TRUE(imageOf(transparent)->hasAlphaChannel());
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
    EXPECT_FALSE(imageOf(nullptr));
    EXPECT_FALSE(imageOf(std::make_shared<Picture>()));
}

} // namespace
} // namespace corvanta
