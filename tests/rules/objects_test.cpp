#include "actions/action.h"
#include "document/events.h"
#include "document/media.h"
#include "document/objects.h"
#include "document/page_file.h"
#include "document/parse.h"
#include "objects/properties.h"
#include "tests/support/samples.h"
#include "tests/support/scripted_asking.h"

#include <gtest/gtest.h>

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

TEST(Parse, ColoursAreHexadecimal)
{
    EXPECT_EQ(ParseColourText("ff"), 255);
    EXPECT_EQ(ParseColourText("FFFF"), 65535);
    EXPECT_EQ(ParseColourText(" C0C0C0 "), 0xC0C0C0);
    EXPECT_EQ(ParseColourText(""), 0);
    EXPECT_EQ(ParseColourText("zz"), 0);
    EXPECT_EQ(colourText(0xABCDEF), "ABCDEF");
    EXPECT_EQ(colourText(ParseColourText("8000000F")), "8000000F");
    ScriptedAsking asking;
    editing().msgflag = true;
    asking.expectMessage("Overflow", "Long conversion Error", Icon::Information);
    EXPECT_EQ(ParseColourText("123456789"), 0);
    editing().msgflag = false;
}

// A page of 600 by 420 pixels in a directory of its own.
class Properties : public testing::Test {
protected:
    Properties()
    {
        documentEvents() = {};
        newPage();
        editing() = {};
        editing().curdir = "C:\\";
        page().bkgwd = 600;
        page().bkght = 420;
    }
    ~Properties() override
    {
        newPage();
        editing() = {};
    }

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
    static const ObjectRecord &object(std::size_t index) { return page().objects[index]; }

    TemporaryDrive drive;
};

TEST_F(Properties, ConfirmingUntouchedChangesNoByte)
{
    for (const std::string &name : samples::currentPages()) {
        newPage();
        parsePage(page(), samples::sample(name));
        for (std::int16_t i = 0; i < objectCount(page()); ++i) {
            PropertyFields f = LoadProperties(i);
            const std::string before = serialisePage(page());
            f.imgfn.clear(); // the samples' pictures are not in this directory
            for (Frame &frame : f.frames)
                frame.image.clear(), frame.sound.clear();
            const std::string files = page().objects[static_cast<std::size_t>(i)].srcfile;
            EXPECT_TRUE(ConfirmProperties(i, f).stored);
            page().objects[static_cast<std::size_t>(i)].srcfile = files;
            EXPECT_EQ(serialisePage(page()), before) << name << " object " << i;
        }
    }
}

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
    refused(asking, Kind::Button, bevel, "", [](auto &f) { f.bwidth = "11"; });
    EXPECT_TRUE(confirm(Kind::Ticker, [](auto &f) { f.speed = "10"; }).stored);
    refused(asking, Kind::Ticker, speed, "", [](auto &f) { f.speed = "0"; });
    refused(asking, Kind::Ticker, speed, "", [](auto &f) { f.speed = "11"; });
}

TEST_F(Properties, ImageTellsOnlyTheFileName)
{
    ScriptedAsking asking;
    refused(asking, Kind::Image, "Invalid image file name.  To change the directory, use \"File... Directory\".",
            "imgfn", [](PropertyFields &f) {
                f.imgfn = "..\\x.bmp";
                f.ptop = "-1";
            });
}

TEST_F(Properties, BindingIsClearedForKindsWithout)
{
    const std::int16_t index = addObject(Kind::HotSpot);
    page().objects[0].ctlname = "a";
    page().objects[0].datacol = "b";
    page().objects[0].objflags = readonlyFlag | hoverFlag;
    PropertyFields f = LoadProperties(index);
    f.hover = false;
    f.keyreq = "  clerk ";
    ASSERT_TRUE(ConfirmProperties(index, f).stored);
    EXPECT_EQ(object(0).ctlname + object(0).datacol, "");
    EXPECT_EQ(object(0).objflags, readonlyFlag);
    EXPECT_EQ(object(0).keyreq, "clerk");
    EXPECT_TRUE(editing().pagedirty);
}

TEST_F(Properties, ButtonExtrasAreStoredAsTypedAndTheCaptionTrimmed)
{
    ASSERT_TRUE(confirm(Kind::Button, [](PropertyFields &f) {
                    f.cap = "  Go ";
                    f.enacond = " a = 1 ";
                    f.action = encodeAction({action::goToPage, {""}});
                }).stored);
    EXPECT_EQ(page().but[1].Caption, "Go");
    EXPECT_EQ(page().butextras[1].enacond, " a = 1 ");
    EXPECT_EQ(decodeAction(object(0).actlist).values.at(0), "TOP");
}

TEST_F(Properties, TextBoxStoresItsTypesAndLabelItsStyles)
{
    ASSERT_TRUE(confirm(Kind::TextBox, [](PropertyFields &f) {
                    f.sysobj = 0;
                    f.inptype = 6;
                    f.maxlen = "many";
                    f.multi = true;
                    f.col = "ff";
                }).stored);
    EXPECT_EQ(page().tbxextras[1].sysobj, -1);
    EXPECT_EQ(page().tbxextras[1].inptype, 6);
    EXPECT_EQ(page().tbxextras[1].maxlen, 0);
    EXPECT_TRUE(object(0).has(multiFlag));
    EXPECT_EQ(page().tbx[1].BackColor, 255);
    ASSERT_TRUE(confirm(Kind::Label, [](PropertyFields &f) {
                    f.trans = f.bstyle = true;
                    f.alignment = 2;
                }).stored);
    EXPECT_EQ(page().lbl[1].BackStyle, 0);
    EXPECT_EQ(page().lbl[1].BorderStyle, 1);
    EXPECT_EQ(page().lbl[1].alignment, 2);
}

TEST_F(Properties, TextFileIsShownWithoutEndOfFileCharacters)
{
    ASSERT_TRUE(writeWholeFile("C:\\NOTE.TXT", "one\x1Atwo\x1A"));
    ASSERT_TRUE(confirm(Kind::TextBox, [](PropertyFields &f) { f.txtfn = "note.txt"; }).stored);
    EXPECT_EQ(page().tbx[1].Caption, "onetwo");
    ASSERT_TRUE(confirm(Kind::TextBox, [](PropertyFields &f) { f.txtfn = "..\\NOTE.TXT"; }).stored);
    EXPECT_EQ(page().tbx[2].Caption, "");
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
    refused(asking, Kind::Animation, "You cannot play the animation a negative number of times.", "",
            frames({bad}, "-1"));
    refused(asking, Kind::Animation, "Invalid \"Top\" for frame 2.", "", frames({good, bad}));
    bad = {};
    bad.duration = -1;
    bad.image = "none.bmp";
    refused(asking, Kind::Animation, "Invalid \"Duration\" for frame 1.", "", frames({bad}));
    bad.duration = 0;
    bad.sound = "a\\b";
    refused(asking, Kind::Animation,
            "Invalid image file name for frame 1.  To change the directory, use \"File... Directory\".", "",
            frames({bad}));
    bad.image.clear();
    refused(asking, Kind::Animation,
            "Invalid sound file name for frame 1.  To change the directory, use \"File... Directory\".", "",
            frames({bad}));
    ASSERT_TRUE(writeWholeFile("C:\\DING.WAV", "x"));
    good.sound = "ding.wav";
    ASSERT_TRUE(confirm(Kind::Animation, frames({Frame{}, good})).stored);
    const auto index = static_cast<std::int16_t>(objectCount(page()) - 1);
    EXPECT_EQ(page().objects[static_cast<std::size_t>(index)].srcfile, "\t\t\tding.wav");
    EXPECT_EQ(framesOf(page(), index).at(1).duration, 5);
}

TEST_F(Properties, EntryListsHaveALimit)
{
    ScriptedAsking asking;
    EXPECT_TRUE(checkEntryLimit(49, "list box", "List Box Properties"));
    asking.expectMessage("You can only have up to 50 list box entries.", "List Box Properties");
    EXPECT_FALSE(checkEntryLimit(50, "list box", "List Box Properties"));
}

TEST_F(Properties, MovingAnAnimationMovesItsFrames)
{
    const std::int16_t index = addObject(Kind::Animation);
    Frame frame;
    frame.top = object(0).ptop;
    frame.left = 7;
    storeFrames(page(), index, {frame});
    setObjectGeometry(index, static_cast<std::int16_t>(object(0).ptop + 10), object(0).pleft, 64, 64);
    EXPECT_EQ(framesOf(page(), index)[0].top, object(0).ptop);
    EXPECT_EQ(framesOf(page(), index)[0].left, 7);
}

} // namespace
} // namespace corvanta
