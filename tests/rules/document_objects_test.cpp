#include "tests/support/fresh_page.h"

namespace corvanta {
namespace {

class Objects : public FreshPage {};

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
    documentEvents().currentCleared.listen([&] { ++cleared; });
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

} // namespace
} // namespace corvanta
