#include "document/byte_codec.h"
#include "document/object_file.h"
#include "tests/support/fresh_page.h"
#include "tests/support/samples.h"
#include "tests/support/scripted_asking.h"

namespace corvanta {
namespace {

using namespace std::string_literals;

Page parsed(std::string_view bytes)
{
    Page p;
    parsePage(p, bytes);
    return p;
}

// Whatever is read from damaged bytes is written in a form that reads the same again.
void expectStable(std::string_view bytes)
{
    const std::string once = serialisePage(parsed(bytes));
    EXPECT_EQ(serialisePage(parsed(once)), once);
}

void expectStableObject(std::string_view bytes)
{
    Page p, again;
    const std::string once = objectFileText(p, appendObjectFile(p, bytes));
    EXPECT_EQ(objectFileText(again, appendObjectFile(again, once)), once);
}

TEST(PageFile, EveryCutOfEverySampleReads)
{
    for (const auto &file : std::filesystem::directory_iterator(samples::folder())) {
        const std::string bytes = file.path().extension() != ".json" ? hostBytes(file.path()) : std::string();
#ifdef __SANITIZE_ADDRESS__
        const std::size_t step = bytes.size() > 4000 ? 41 : 1; // the large page's objects are all alike
#else
        const std::size_t step = 1;
#endif
        for (std::size_t n = 0; n < bytes.size(); n += step)
            if (const auto cut = std::string_view(bytes).substr(0, n); file.path().extension() == ".ods")
                expectStable(cut);
            else
                expectStableObject(cut);
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

TEST(PageFile, CountsFromAFileAreBounded)
{
    const auto counts = [](std::int16_t kind, const std::string &tail) {
        ObjectRecord o;
        o.kind = kind;
        std::string bytes;
        ByteWriter body(bytes);
        body.int16("", o.kind);
        commonFields(body, o);
        return parsed(serialisePage(Page()) + encodeString(bytes + tail));
    };
    const std::string fontBlock(4 + 2 + 2 + 2 + 4 + 2 + 2, '\0');
    const std::string white(4, '\xFF');
    EXPECT_EQ(counts(3, white + fontBlock + encodeInt16(32767)).lbxextras[1].size(), 51U);
    EXPECT_EQ(counts(3, white + fontBlock + encodeInt16(-5)).lbxextras[1].size(), 0U);
    EXPECT_EQ(counts(11, white + fontBlock + encodeInt16(52)).cbxextras[1].size(), 51U);
    EXPECT_EQ(gridColumnCount(counts(9, encodeInt16(51) + encodeString(""))), 50U);
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

TEST(ObjectFile, SaysWhatIsWrongWithIt)
{
    const std::string lamp = samples::sample("lamp.hdo");
    std::string old = lamp; // version 1 had no strict timing
    old[0] = 1;
    old.erase(old.size() - 6 - 3 * 6 + 4, 2);
    old[2] = static_cast<char>(old[2] - 2);
    std::string unknown = lamp;
    unknown[4] = 14;
    const auto shortened = [&](std::size_t by) { // the length says so as well
        std::string text = lamp.substr(0, lamp.size() - by);
        text[2] = static_cast<char>(text[2] - static_cast<char>(by));
        return text;
    };
    const std::pair<std::string, std::string> cases[]{
        {lamp, ""},
        {samples::sample("quitbutton.hdo"), ""},
        {old, ""},
        {samples::sample("record.ods"), "is a page"},
        {serialisePage(Page()), "is a page"},
        {unknown, "holds no object of a known kind"},
        {lamp.substr(0, lamp.size() - 1), "is damaged"},
        {lamp + "x", "is damaged or no object file"},
        {"GIF89a", "is damaged or no object file"},
        {shortened(1), "is damaged"},
        {shortened(20), "is damaged"},
    };
    for (const auto &[text, fault] : cases)
        EXPECT_EQ(objectFileFault(text), fault);
}

class PageFileMessages : public FreshPage {};

TEST_F(PageFileMessages, AreToldAndNoFileIsMadeOrChanged)
{
    const TemporaryDrive drive;
    drive.add("LARGE.ODS", std::string(fileLimit + 1, 'x'));
    drive.add("EMPTY.ODS");
    drive.add("FOLDER.ODS/x");
    ScriptedAsking user;
    editing().msgflag = true;
    for (const auto &[path, text] : {std::pair{"C:\\LARGE.ODS", "File too large - more than 16384 bytes."},
                                     {"C:\\EMPTY.ODS", "File doesn't exist."},
                                     {"C:\\NONE.ODS", "File doesn't exist."},
                                     {"C:\\FOLDER.ODS", "Is a directory"}}) {
        user.expectMessage(text, "Reading File");
        openPage(path);
        EXPECT_EQ(objectCount(page()), 0);
        EXPECT_EQ(editing().filetag, path);
    }
    EXPECT_FALSE(std::filesystem::exists(drive.root() / "NONE.ODS"));
    user.expectMessage("File too large.", "Saving File");
    EXPECT_FALSE(writeWholeFile("C:\\EMPTY.ODS", std::string(fileLimit + 1, 'x')));
    EXPECT_EQ(hostBytes(drive.root() / "EMPTY.ODS"), "");
    user.expectMessage("No such file or directory", "Saving File");
    EXPECT_FALSE(writeWholeFile("C:\\NONE\\X.ODS", "x"));
}

} // namespace
} // namespace corvanta
