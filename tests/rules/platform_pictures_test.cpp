#include "platform/picture_cache.h"
#include "platform/post.h"
#include "tests/support/temporary_drive.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace corvanta {
namespace {

using std::chrono_literals::operator""min;
using std::string_literals::operator""s;

constexpr std::uint64_t sizeOfAll = 100; // bytes of each picture's pixels

std::string number(std::uint32_t value, int bytes, bool big)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(value >> (8 * (big ? bytes - 1 - i : i)));
    return text;
}

std::string gif(std::uint32_t width, std::uint32_t height)
{
    return "GIF89a" + number(width, 2, false) + number(height, 2, false);
}

std::string png(std::uint32_t width, std::uint32_t height, char depth = 8, char colours = 2)
{
    return "\x89PNG\r\n\x1A\n\0\0\0\rIHDR"s + number(width, 4, true) + number(height, 4, true) + depth + colours;
}

std::string bitmap(std::uint32_t width, std::uint32_t height, char bits)
{
    return "BM" + std::string(12, '\0') + number(40, 4, false) + number(width, 4, false) + number(height, 4, false) +
           number(1, 2, false) + bits + std::string(25, '\0');
}

std::string jpeg(std::uint32_t width, std::uint32_t height, const std::string &before)
{
    return "\xFF\xD8"s + before + "\xFF\xC0\0\x11\x08"s + number(height, 2, true) + number(width, 2, true) + '\3';
}

std::string icon(char side, const std::string &picture)
{
    return "\0\0\1\0\1\0"s + side + side + std::string(10, '\0') + number(22, 4, false) + picture;
}

TEST(PictureHeaders, TellSizesAndWhatDecodingTakes)
{
    struct Case {
        std::string content;
        int width, height; // 0: refused
        std::uint64_t bytes;
    };
    const std::string tables = "\xFF\xE1\xFF\xFE"s + std::string(0xFFFC, 'x') + "\xFF\xFF\xDB\0\3."s;
    const Case cases[] = {
        {gif(3, 4), 3, 4, 48},
        {gif(0, 4), 0, 0, 0},
        {png(5700, 5700), 5700, 5700, 129960000},
        {png(5800, 5800), 0, 0, 0},
        {png(5800, 5800, 8, 3), 5800, 5800, 33640000},
        {png(5700, 5700, 16, 6), 0, 0, 0},
        {png(70000, 1), 0, 0, 0},
        {png(0xFFFFFFFF, 0xFFFFFFFF), 0, 0, 0},
        {bitmap(9, 2, 1), 9, 2, 4},
        {bitmap(9, 2, 4), 9, 2, 18},
        {bitmap(9, 0xFFFFFFFE, 24), 9, 2, 72},
        {bitmap(9, 0x80000000, 24), 0, 0, 0},
        {bitmap(9, 2, 7), 0, 0, 0},
        {jpeg(8, 6, ""), 8, 6, 192},
        {jpeg(8, 6, tables), 8, 6, 192},
        {jpeg(8, 6, "\xFF\xDA\0\3."s), 0, 0, 0},
        {jpeg(8, 6, "\xFF\xE1\0\1"s), 0, 0, 0},
        {jpeg(8, 6, std::string(5000, '\xFF')), 0, 0, 0},
        {icon(16, number(40, 4, false)), 16, 16, 1024},
        {icon(0, png(256, 300)), 256, 300, 307200},
        {icon(0, number(40, 4, false) + number(256, 4, false) + number(512, 4, false)), 256, 256, 262144},
        {"hello, world", 0, 0, 0},
    };
    for (const Case &each : cases) {
        const auto found = pictureHeader(sourceOf(each.content)).value_or(PictureHeader{});
        EXPECT_EQ(found.width, each.width) << each.content.substr(0, 40);
        EXPECT_EQ(found.height, each.height);
        EXPECT_EQ(found.decodedBytes, each.bytes);
        for (std::size_t length = 0; length < std::min<std::size_t>(each.content.size(), 100); ++length) {
            const auto cut = pictureHeader(sourceOf(each.content.substr(0, length)));
            EXPECT_TRUE(!cut || (cut->width == each.width && cut->decodedBytes == each.bytes)) << length;
        }
    }
}

// Pictures of one size, decoded by a thread that stands still while the test holds it.
class PictureCaches : public testing::Test {
protected:
    PictureCaches()
    {
        arrival = pictureEvents().arrived.connect([this](const Picture &picture) { told += nameOf(picture); });
        failure = pictureEvents().unreadable.connect([this](const Picture &picture) { told += '!' + nameOf(picture); });
    }

    static std::string nameOf(const Picture &picture)
    {
        return dynamic_cast<const PictureFile &>(picture).path.substr(3);
    }
    PicturePtr picture(const std::string &name) const
    {
        drive.add(name, gif(5, 5));
        return cache.load("C:\\" + name);
    }
    bool shows(const PicturePtr &p) { return cache.shown(p, {}) != nullptr; }
    // Asks for pictures at once, and waits until they are decoded.
    std::string decodes(const std::vector<PicturePtr> &pictures)
    {
        held = true;
        for (const PicturePtr &p : pictures)
            cache.shown(p, {});
        held = false;
        EXPECT_TRUE(cache.finish(1min));
        runPostedJobs();
        return std::exchange(told, {});
    }

    TemporaryDrive drive;
    std::atomic<bool> held = false, begun = false;
    std::string told;
    EventConnection arrival, failure;
    mutable PictureCache cache{[this](const PictureFile &file, const PictureView &) -> PixelsPtr {
                                   begun = true;
                                   while (held)
                                       std::this_thread::yield();
                                   if (file.path.ends_with("BAD"))
                                       return nullptr;
                                   const auto pixels = std::make_shared<Pixels>();
                                   pixels->bytes = sizeOfAll;
                                   return pixels;
                               },
                               3 * sizeOfAll};
};

TEST_F(PictureCaches, DecodeWhatIsShownAndKeepWhatWasShownLast)
{
    const PicturePtr a = picture("A"), b = picture("B"), c = picture("C"), d = picture("D");
    EXPECT_EQ(cache.keptBytes(), 0U) << "loading decodes nothing";
    EXPECT_EQ(decodes({a}), "A");
    EXPECT_EQ(decodes({b}), "B");
    EXPECT_EQ(decodes({c}), "C");
    EXPECT_TRUE(shows(a));
    EXPECT_EQ(decodes({d}), "D");
    EXPECT_EQ(cache.keptBytes(), 3 * sizeOfAll);
    EXPECT_TRUE(shows(a) && shows(c) && shows(d));
    cache.paintsArrival(true);
    EXPECT_EQ(decodes({b}), "") << "no round of pictures that push each other out";
    cache.paintsArrival(false);
    EXPECT_EQ(decodes({b, b}), "B") << "it comes back when it is shown again";
    EXPECT_FALSE(shows(a));
    EXPECT_TRUE(cache.finish(1min));
}

TEST_F(PictureCaches, TheLastOnesFirstAndThoseThatAreGoneNotAtAll)
{
    const PicturePtr first = picture("1"), second = picture("2"), third = picture("3");
    PicturePtr gone = picture("4");
    held = true;
    cache.shown(first, {});
    while (!begun)
        std::this_thread::yield();
    cache.shown(gone, {});
    gone = nullptr;
    EXPECT_EQ(decodes({second, third}), "132");
    const PicturePtr fourth = picture("4"), fifth = picture("5");
    held = true;
    begun = false;
    cache.shown(fourth, {});
    while (!begun)
        std::this_thread::yield();
    cache.shown(fifth, {});
    cache.cancel();
    EXPECT_EQ(decodes({}), "4");
}

TEST_F(PictureCaches, OneRecordForEachVersionOfAFile)
{
    PicturePtr p = picture("A");
    EXPECT_EQ(cache.load("C:\\A"), p);
    EXPECT_EQ(decodes({p}), "A");
    drive.add("A", gif(7, 5) + "changed");
    const PicturePtr changed = cache.load("C:\\A");
    ASSERT_TRUE(changed);
    EXPECT_NE(changed, p);
    EXPECT_EQ(changed->width, 7);
    p = nullptr;
    EXPECT_EQ(cache.keptBytes(), 0U) << "pixels end with their picture";
    EXPECT_EQ(decodes({changed}), "A");
}

TEST_F(PictureCaches, WhatCannotBeDecodedIsToldOnceAndTriedAgainWhenItIsLoadedAgain)
{
    const PicturePtr bad = picture("BAD");
    EXPECT_EQ(decodes({bad}), "!BAD");
    EXPECT_EQ(decodes({bad}), "");
    EXPECT_NE(cache.load("C:\\BAD"), bad);
    EXPECT_FALSE(cache.load("C:\\NONE"));
    EXPECT_FALSE(cache.load("C:\\"));
    EXPECT_FALSE(cache.shown(nullptr, {}) || cache.shown(std::make_shared<Picture>(), {}));
}

} // namespace
} // namespace corvanta
