#include "document/entries.h"
#include "document/events.h"
#include "document/kinds.h"
#include "document/object_file.h"
#include "document/objects.h"
#include "document/page_file.h"
#include "tests/support/temporary_drive.h"

#include <gtest/gtest.h>

namespace corvanta {
namespace {

// A process-wide page of 400 by 300 pixels, left empty for the next test.
class Objects : public testing::Test {
protected:
    Objects()
    {
        documentEvents() = {};
        newPage();
        editing() = {};
        page().bkgwd = 400;
        page().bkght = 300;
    }
    ~Objects() override
    {
        newPage();
        editing() = {};
    }

    static const ObjectRecord &object(std::int16_t index) { return page().objects[static_cast<std::size_t>(index)]; }
};

TEST_F(Objects, NewButtonStandsInTheMiddleWithItsNumber)
{
    const std::int16_t index = addObject(Kind::Button);
    EXPECT_EQ(object(index).pleft, 157);
    EXPECT_EQ(object(index).ptop, 137);
    EXPECT_EQ(object(index).pwidth, 85);
    EXPECT_EQ(object(index).pheight, 25);
    EXPECT_EQ(elementOf(page(), index)->Caption, "Button1");
    EXPECT_TRUE(editing().pagedirty);
}

TEST_F(Objects, ElementNumbersAreNotUsedAgain)
{
    addObject(Kind::Button);
    deleteObject(0);
    addObject(Kind::Button);
    EXPECT_EQ(page().ctlindex[0], 2);
    EXPECT_EQ(page().but[2].Caption, "Button2");
    EXPECT_EQ(findObjectByControl(page(), Kind::Button, 1), noObject);
    EXPECT_EQ(findObjectByControl(page(), Kind::Button, 2), 0);
}

TEST_F(Objects, PageDrawnKindsTakeTheirShareOfThePage)
{
    addObject(Kind::HotSpot);
    EXPECT_EQ(object(0).pwidth, 133);
    EXPECT_EQ(object(0).pheight, 100);
    EXPECT_EQ(object(0).pleft, 134); // 200 - 66.5, halves to even
    EXPECT_EQ(object(0).sptext, "HotSpot1");
    EXPECT_TRUE(object(0).has(hoverFlag));
    addObject(Kind::ImageDb);
    EXPECT_EQ(object(1).pwidth, 200);
    EXPECT_EQ(object(1).ptop, 75);
    EXPECT_EQ(controlOfObject(page(), 1).element, 0);
}

TEST_F(Objects, FourthTickerIsRefusedAndLeavesTheTableAsItWas)
{
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(addObject(Kind::Ticker), i);
    editing().pagedirty = false;
    EXPECT_EQ(addObject(Kind::Ticker), noObject);
    EXPECT_EQ(objectCount(page()), 3);
    EXPECT_EQ(page().ctlindex.size(), 4U);
    EXPECT_FALSE(editing().pagedirty);
    deleteObject(1);
    EXPECT_EQ(addObject(Kind::Ticker), 2);
    EXPECT_EQ(page().ctlindex[2], 2);
}

TEST_F(Objects, DeletingMovesTheCurrentObject)
{
    for (int i = 0; i < 5; ++i)
        addObject(Kind::Label);
    int cleared = 0;
    documentEvents().currentCleared = [&] { ++cleared; };
    editing().curobj = 4;
    deleteObject(2);
    EXPECT_EQ(editing().curobj, 3);
    EXPECT_EQ(cleared, 0);
    deleteObject(3);
    EXPECT_EQ(editing().curobj, noObject);
    EXPECT_EQ(cleared, 1);
    deleteObject(99);
    EXPECT_EQ(objectCount(page()), 3);
}

TEST_F(Objects, ClickFindsTheHighestHotSpotElseTheLowestObject)
{
    for (const Kind kind : {Kind::HotSpot, Kind::HotSpot, Kind::Image, Kind::Image})
        setObjectGeometry(addObject(kind), 10, 10, 50, 50);
    EXPECT_EQ(hitTestPage(page(), 10, 10), 1);
    EXPECT_EQ(hitTestPage(page(), 60, 10), noObject);
    deleteObject(1);
    deleteObject(0);
    EXPECT_EQ(hitTestPage(page(), 59, 59), 0);
}

TEST_F(Objects, CopyHasTheSamePlaceAndKindData)
{
    const std::int16_t index = addObject(Kind::ComboBox);
    page().cbxextras[1] = {"one", "two"};
    page().cbx[1].font.FontBold = true;
    editing().curobj = index;
    duplicateObject();
    ASSERT_EQ(objectCount(page()), 2);
    EXPECT_EQ(page().ctlindex[1], 2);
    EXPECT_EQ(serialiseObject(page(), 1), serialiseObject(page(), 0));
}

TEST_F(Objects, FramesTakeTheLowestFreeNumbers)
{
    Page &p = page();
    const std::int16_t first = addObject(Kind::Animation), second = addObject(Kind::Animation);
    storeFrames(p, first, std::vector<Frame>(2));
    storeFrames(p, second, std::vector<Frame>(2));
    EXPECT_EQ(p.aniextras[2].frames, "3\t4");
    storeFrames(p, first, {});
    storeFrames(p, second, std::vector<Frame>(3));
    EXPECT_EQ(p.aniextras[2].frames, "1\t2\t3");
    deleteObject(second);
    for (const Frame &frame : p.frames)
        EXPECT_FALSE(frame.used);
}

TEST_F(Objects, APageThatIsLentASizeIsSavedWithItsOwnUntilItIsEdited)
{
    const TemporaryDrive drive;
    newPage();
    editing().filetag = "C:\\NEW.ODS";
    editing().lentSize = {{0, 0}};
    page().bkgwd = 600;
    page().bkght = 420;
    ASSERT_TRUE(savePage());
    EXPECT_EQ(hostBytes(drive.root() / "NEW.ODS"), serialisePage(Page()));
    EXPECT_EQ(page().bkgwd, 600);
    pageEdited();
    ASSERT_TRUE(savePage());
    EXPECT_EQ(hostBytes(drive.root() / "NEW.ODS"), serialisePage(page()));
    ASSERT_TRUE(savePage());
    EXPECT_EQ(hostBytes(drive.root() / "NEW.ODS"), serialisePage(page()));
}

TEST_F(Objects, NewPageForgetsEverything)
{
    addObject(Kind::Button);
    page().sndfn = "x.wav";
    editing().filetag = "C:\\X.ODS";
    newPage();
    EXPECT_EQ(objectCount(page()), 0);
    EXPECT_EQ(page().but.size(), 1U);
    EXPECT_EQ(page().sndfn, "");
    EXPECT_EQ(filePanelCaption(), "(New file)");
    EXPECT_FALSE(editing().pagedirty);
}

TEST(Entries, CommandsWithoutTheirEntryChangeNothing)
{
    std::vector<std::string> list;
    EXPECT_EQ(applyEntry(list, EntryCommand::Edit, -1, std::string("x")), -1);
    EXPECT_EQ(applyEntry(list, EntryCommand::Delete, 0), 0);
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(applyEntry(list, EntryCommand::New, -1, std::string("b")), 0);
    EXPECT_EQ(applyEntry(list, EntryCommand::Insert, 0, std::string("a")), 0);
    EXPECT_EQ(applyEntry(list, EntryCommand::Edit, 1, std::string("c")), 1);
    EXPECT_EQ(list, (std::vector<std::string>{"a", "c"}));
    EXPECT_EQ(applyEntry(list, EntryCommand::Delete, 0), -1);
    EXPECT_EQ(list, std::vector<std::string>{"c"});
}

TEST(Kinds, RegistryHasOneEntryBeyondTheHighestCodeAndGaps)
{
    buildKindRegistry();
    EXPECT_EQ(kindRegistry().size(), 15U);
    EXPECT_EQ(kindDisplayName(7), "");
    EXPECT_EQ(kindDisplayName(-1), "");
    EXPECT_EQ(kindDisplayName(10), "Image DB");
    EXPECT_EQ(kindMenuCaption(11), "Combo &Box");
    registerKind(20, "More", "&More");
    EXPECT_EQ(kindRegistry().size(), 22U);
    buildKindRegistry();
}

TEST(Kinds, AddMenuIsOrderedByName)
{
    buildKindRegistry();
    std::string names;
    for (const RegisteredKind &entry : orderedAddMenu())
        names += entry.displayName + ",";
    EXPECT_EQ(names, "Button,Combo Box,File,Grid,Hot Spot,Image,Image DB,Label,Text Box,Url,");
    EXPECT_EQ(kindRegistry()[13].menuIndex, 10);
}

} // namespace
} // namespace corvanta
