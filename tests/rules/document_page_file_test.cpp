#include "document/byte_codec.h"
#include "document/object_file.h"
#include "document/objects.h"
#include "document/page_file.h"
#include "tests/support/samples.h"

#include <gtest/gtest.h>

namespace corvanta {
namespace {

using namespace std::string_literals;

Page parsed(std::string_view bytes)
{
    Page p;
    parsePage(p, bytes);
    return p;
}

TEST(PageFile, EmptyPageIsThirtyBytes)
{
    const std::string expected = "\x1C\x00\x03\x00\x00\x00\x02\x00\x09\x09\x00\x00\x00\x00\x00\x00\xC0\xC0\xC0\x00"
                                 "\x00\x00\x00\x00\x08\x00\x00\x00\x00\x00"s;
    EXPECT_EQ(serialisePage(Page()), expected);
    EXPECT_EQ(samples::sample("empty.ods"), expected);
}

TEST(PageFile, SamplesAreWrittenBackByteForByte)
{
    for (const std::string &name : samples::currentPages())
        EXPECT_EQ(serialisePage(parsed(samples::sample(name))), samples::sample(name)) << name;
}

TEST(PageFile, VersionOneReadsWithoutKeyAndIsWrittenAsThree)
{
    const Page p = parsed(samples::sample("version1.ods"));
    EXPECT_EQ(p.pgversion, 1);
    EXPECT_EQ(p.keyreq, "");
    EXPECT_EQ(serialisePage(p), samples::sample("menu.ods"));
}

// Whatever is read from damaged bytes is written in a form that reads the same again.
void expectStable(std::string_view bytes)
{
    const std::string once = serialisePage(parsed(bytes));
    EXPECT_EQ(serialisePage(parsed(once)), once);
}

TEST(PageFile, EveryCutOfEverySampleReads)
{
    for (const auto &file : std::filesystem::directory_iterator(samples::folder())) {
        const std::string bytes = file.path().extension() == ".ods" ? samples::bytesOf(file.path()) : std::string();
#ifdef __SANITIZE_ADDRESS__
        const std::size_t step = bytes.size() > 4000 ? 41 : 1; // the large page's objects are all alike
#else
        const std::size_t step = 1;
#endif
        for (std::size_t n = 0; n < bytes.size(); n += step)
            expectStable(std::string_view(bytes).substr(0, n));
    }
}

TEST(PageFile, EveryFlippedByteReads)
{
    std::string bytes = samples::sample("record.ods");
    for (char &byte : bytes)
        for (const char mask : {'\x01', '\xFF'}) {
            byte = static_cast<char>(byte ^ mask);
            expectStable(bytes);
            byte = static_cast<char>(byte ^ mask);
        }
}

TEST(PageFile, UnknownKindKeepsItsCommonFields)
{
    ObjectRecord o;
    o.kind = 14;
    o.sptext = "kept";
    ByteWriter body;
    body.int16("", o.kind);
    commonFields(body, o);
    const Page p = parsed(serialisePage(Page()) + encodeString(body.out + "tail"));
    ASSERT_EQ(objectCount(p), 1);
    EXPECT_EQ(p.objects[0].sptext, "kept");
    EXPECT_EQ(serialiseObject(p, 0), encodeString(body.out));
}

TEST(PageFile, CountsFromAFileAreBounded)
{
    const auto counts = [](std::int16_t kind, const std::string &tail) {
        ObjectRecord o;
        o.kind = kind;
        ByteWriter body;
        body.int16("", o.kind);
        commonFields(body, o);
        return parsed(serialisePage(Page()) + encodeString(body.out + tail));
    };
    const std::string fontBlock(4 + 2 + 2 + 2 + 4 + 2 + 2, '\0');
    const std::string white(4, '\xFF');
    EXPECT_EQ(counts(3, white + fontBlock + encodeInt16(32767)).lbxextras[1].size(), 51U);
    EXPECT_EQ(counts(3, white + fontBlock + encodeInt16(-5)).lbxextras[1].size(), 0U);
    EXPECT_EQ(counts(11, white + fontBlock + encodeInt16(52)).cbxextras[1].size(), 51U);
    EXPECT_EQ(gridColumnCount(counts(9, encodeInt16(51) + encodeString(""))), 50U);
}

TEST(PageFile, OddTruthValuesAndSizesAreWrittenPlain)
{
    ObjectRecord o;
    o.kind = 12;
    ByteWriter body;
    body.int16("", o.kind);
    commonFields(body, o);
    const std::string nan = "\x00\x00\xC0\x7F"s;
    const std::string tail = encodeInt32(0) + encodeInt32(0) + encodeInt16(7) + encodeInt16(0) + encodeString("X") +
                             nan + encodeInt16(0) + encodeInt16(1);
    const Page p = parsed(serialisePage(Page()) + encodeString(body.out + tail));
    EXPECT_EQ(p.fbx[1].font.FontSize, 0);
    EXPECT_NE(serialiseObject(p, 0).find("\xFF\xFF\x00\x00\x01\x00X"s), std::string::npos);
}

TEST(ObjectFile, SamplesAreWrittenBackByteForByte)
{
    for (const char *name : {"lamp.hdo", "quitbutton.hdo"}) {
        Page p;
        const std::int16_t index = appendObjectFile(p, samples::sample(name));
        EXPECT_EQ(objectFileText(p, index), samples::sample(name)) << name;
    }
}

TEST(ObjectFile, HotSpotOfZeroesIsThirtySixBytes)
{
    Page p;
    ObjectRecord hotspot;
    hotspot.kind = 2;
    appendObject(p, hotspot);
    const std::string text = objectFileText(p, 0);
    EXPECT_EQ(text, "\x03\x00\x20\x00\x02\x00"s + std::string(30, '\0'));
}

TEST(ObjectFile, VersionOneAnimationHasNoStrictTimingAndThePageKeepsItsVersion)
{
    std::string bytes = samples::sample("lamp.hdo");
    bytes[0] = 1;
    const std::size_t frozen = bytes.size() - 6 - 3 * 6; // frozen, nplay, strictime, three frames
    bytes.erase(frozen + 4, 2);
    bytes[2] = static_cast<char>(bytes[2] - 2);
    Page p;
    const std::int16_t index = appendObjectFile(p, bytes);
    EXPECT_EQ(p.pgversion, currentVersion);
    EXPECT_EQ(p.aniextras[1].nplay, 3);
    EXPECT_EQ(p.aniextras[1].strictime, 0);
    EXPECT_EQ(framesOf(p, index).size(), 3U);
    EXPECT_EQ(objectFileText(p, index), samples::sample("lamp.hdo"));
}

} // namespace
} // namespace corvanta
