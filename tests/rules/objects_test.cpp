#include "actions/action.h"
#include "document/parse.h"
#include "objects/properties.h"
#include "platform/text.h"
#include "tests/support/fresh_page.h"
#include "tests/support/scripted_asking.h"

namespace corvanta {
namespace {

TEST(Parse, NumbersAreRoundedToEvenAndClamped)
{
    EXPECT_EQ(ParseInt16Clamped("12.5"), 12);
    EXPECT_EQ(ParseInt16Clamped("13.5"), 14);
    EXPECT_EQ(ParseInt16Clamped("-0.4"), 0);
    EXPECT_EQ(ParseInt16Clamped("-40000"), -32767);
    EXPECT_EQ(ParseInt16Clamped("  7 apples"), 7);
    EXPECT_EQ(ParseInt16Clamped("apples"), 0);
    EXPECT_EQ(ParseInt32Clamped("-99999999999"), -2147483647);
}

TEST(Parse, ColoursAreHexadecimalDigitsOfThirtyTwoBits)
{
    for (const char *text : {"0", "ff", " C0C0C0 ", "#FF0000", "&hff", "80000000", "FFFFFFFF", "00000000ff"})
        EXPECT_TRUE(isColourText(text)) << text;
    for (const char *text : {"", "#", "blue", "FF 00", "-1", "0x10", "123456789", "##1", "#&H1", "ffg"})
        EXPECT_FALSE(isColourText(text)) << text;
    EXPECT_EQ(ParseColourText("#FF"), 0) << "the digits alone are read";
    EXPECT_EQ(changedColour(" #ff0000", 1), 0xFF0000);
    EXPECT_EQ(changedColour("&H80000005", 1), static_cast<std::int32_t>(0x80000005));
    for (const std::uint32_t colour : {0x80000000U, 0xFFFFFFFFU, 0x7FFFFFFFU, 0x80000001U, 0U, 0x12345678U}) {
        const auto before = static_cast<std::int32_t>(colour);
        EXPECT_EQ(changedColour(colourText(before), before), before) << colour;
    }
}

class Properties : public FreshPage {
protected:
    Properties() : FreshPage(600, 420) {}

    // Confirms a new object of the kind after a change of its fields.
    static Confirmation confirm(Kind kind, const std::function<void(PropertyFields &)> &change)
    {
        const std::int16_t index = addObject(kind);
        editing().pagedirty = false;
        PropertyFields f = LoadProperties(index);
        change(f);
        return ConfirmProperties(index, f);
    }
    static void refused(ScriptedAsking &asking, Kind kind, const std::string &text, const std::string &focus,
                        const std::function<void(PropertyFields &)> &change)
    {
        asking.expectMessage(text, "Properties Error");
        const Confirmation confirmation = confirm(kind, change);
        EXPECT_FALSE(confirmation.stored);
        EXPECT_EQ(confirmation.focus, focus);
        EXPECT_FALSE(editing().pagedirty);
    }

    TemporaryDrive drive;
};

TEST_F(Properties, PlacementBoundsAreInclusiveAndToldInOrder)
{
    ScriptedAsking asking;
    const auto place = [](const char *top, const char *left, const char *height, const char *width) {
        return [=](PropertyFields &f) {
            f.ptop = top;
            f.pleft = left;
            f.pheight = height;
            f.pwidth = width;
        };
    };
    EXPECT_TRUE(confirm(Kind::Label, place("0", "0", "1", "1")).stored);
    EXPECT_TRUE(confirm(Kind::Label, place("420", "600", "420", "600")).stored);
    refused(asking, Kind::Label, "Invalid label \"Height\".", "", place("0", "0", "0", "601"));
    refused(asking, Kind::TextBox, "Invalid text box \"Top\".", "", place("-40000", "-1", "0", "0"));
    refused(asking, Kind::HotSpot, "Invalid hot spot \"Left\".", "", place("0", "601", "0", "0"));
    refused(asking, Kind::ListBox, "Invalid list box \"Width\".", "", place("0", "0", "1", ""));
}

TEST_F(Properties, ButtonTellsPlacementAndFileNameTogetherButNotTheBevel)
{
    ScriptedAsking asking;
    asking.expectMessage("Invalid button \"Top\".", "Properties Error");
    refused(asking, Kind::Button, "Invalid image file name.  To change the directory, use \"File... Directory\".",
            "imgfn", [](PropertyFields &f) {
                f.ptop = "-1";
                f.imgfn = "C:\\pic.bmp";
                f.bwidth = "99";
            });
}

TEST_F(Properties, BevelAndSpeedHaveBounds)
{
    ScriptedAsking asking;
    const char *bevel = "BevelWidth can only be between 0 and 10.", *speed = "Speed can only be between 1 and 10.";
    EXPECT_TRUE(confirm(Kind::Button, [](auto &f) { f.bwidth = "10"; }).stored);
    EXPECT_TRUE(confirm(Kind::Button, [](auto &f) { f.bwidth = "-0.4"; }).stored);
    refused(asking, Kind::Button, bevel, "bwidth", [](auto &f) { f.bwidth = "11"; });
    EXPECT_TRUE(confirm(Kind::Ticker, [](auto &f) { f.speed = "10"; }).stored);
    refused(asking, Kind::Ticker, speed, "speed", [](auto &f) { f.speed = "0"; });
    refused(asking, Kind::Ticker, speed, "speed", [](auto &f) { f.speed = "11"; });
}

TEST_F(Properties, ColoursAreCheckedWhereTheyCanBeTyped)
{
    ScriptedAsking asking;
    const auto told = [](const char *kind) {
        return "Invalid " + std::string(kind) + " \"BackColor\".  A color is one to eight hexadecimal digits.";
    };
    const auto blue = [](PropertyFields &f) { f.col = "blue"; };
    for (std::int16_t code = firstKind; code <= lastKind; ++code) {
        const Kind kind = *kindOf(code);
        if (hasColour(kind))
            refused(asking, kind, told(lowerCase(kindRow(kind).displayName).c_str()), "col", blue);
        else
            EXPECT_TRUE(confirm(kind, blue).stored) << code;
    }
    const std::int32_t before = page().lbl.front().BackColor;
    ASSERT_TRUE(confirm(Kind::Label, [&](PropertyFields &f) { f.trans = true, blue(f); }).stored);
    EXPECT_EQ(page().lbl.back().BackColor, before);
}

TEST_F(Properties, EntryListsHaveALimit)
{
    ScriptedAsking asking;
    EXPECT_TRUE(checkEntryLimit(49, "list box", "List Box Properties"));
    asking.expectMessage("You can only have up to 50 list box entries.", "List Box Properties");
    EXPECT_FALSE(checkEntryLimit(50, "list box", "List Box Properties"));
}

TEST_F(Properties, AnimationChecksFramesInOrderAndStoresThem)
{
    ScriptedAsking asking;
    const auto frames = [](std::vector<Frame> list, const char *plays = "0") {
        return [=](PropertyFields &f) {
            f.frames = list;
            f.nplay = plays;
        };
    };
    Frame good, bad;
    good.duration = 5;
    good.top = 30;
    bad.top = 421;
    refused(asking, Kind::Animation, "You cannot play the animation a negative number of times.", "nplay",
            frames({bad}, "-1"));
    refused(asking, Kind::Animation, "Invalid \"Top\" for frame 2.", "ptop", frames({good, bad}));
    bad = {};
    bad.duration = -1;
    bad.image = "none.bmp";
    refused(asking, Kind::Animation, "Invalid \"Duration\" for frame 1.", "duration", frames({bad}));
    bad.duration = 0;
    bad.sound = "a\\b";
    refused(asking, Kind::Animation,
            "Invalid image file name for frame 1.  To change the directory, use \"File... Directory\".", "imgfn",
            frames({bad}));
    bad.image.clear();
    refused(asking, Kind::Animation,
            "Invalid sound file name for frame 1.  To change the directory, use \"File... Directory\".", "sndfn",
            frames({bad}));
    ASSERT_TRUE(writeWholeFile("C:\\DING.WAV", "x"));
    good.sound = "ding.wav";
    ASSERT_TRUE(confirm(Kind::Animation, frames({Frame{}, good})).stored);
    const auto index = static_cast<std::int16_t>(objectCount(page()) - 1);
    EXPECT_EQ(page().objects[static_cast<std::size_t>(index)].srcfile, "\t\t\tding.wav");
    EXPECT_EQ(framesOf(page(), index).at(1).duration, 5);
}

} // namespace
} // namespace corvanta
