#include "tests/rules/canvas_page.h"

namespace corvanta {
namespace {

class CanvasSelection : public CanvasPage {
protected:
    std::int16_t a = add(Kind::Button, {10, 10, 50, 20});
    std::int16_t b = add(Kind::Label, {100, 10, 60, 20});
    std::int16_t c = add(Kind::Image, {200, 10, 70, 30});
};

TEST_F(CanvasSelection, CtrlClicksGiveAndFreeSlots)
{
    click(a);
    ctrlClick(b);
    EXPECT_TRUE(gesture().ctrlclick);
    EXPECT_EQ(slot(a), 1);
    EXPECT_EQ(slot(b), 2);
    EXPECT_EQ(editing().multcount, 2);
    EXPECT_EQ(editing().curobj, a);
    EXPECT_FALSE(trackers);
    EXPECT_EQ(markers, (std::map<std::int16_t, Rect>{{1, rect(a)}, {2, rect(b)}}));

    ctrlClick(a);
    EXPECT_EQ(slot(a), 0);
    EXPECT_EQ(editing().multcount, 1);
    EXPECT_EQ(markers.count(1), 0U);
    ctrlClick(c);
    EXPECT_EQ(slot(c), 1);
    EXPECT_EQ(editing().multcount, 1);
    EXPECT_EQ(markers.at(1), rect(c));
    EXPECT_FALSE(trackers);
    ctrlClick(b);
    ctrlClick(c);
    EXPECT_EQ(trackers, rect(a)) << "nothing but the current object is left";
}

TEST_F(CanvasSelection, DeletedObjectsLeaveTheSelection)
{
    click(a);
    ctrlClick(b);
    ctrlClick(c);
    deleteObject(b);
    EXPECT_EQ(markers.count(2), 0U);
    EXPECT_EQ(editing().multcount, 3);
    deleteObject(1);
    deleteObject(0);
    EXPECT_TRUE(markers.empty());
    EXPECT_EQ(editing().multcount, 0);
    EXPECT_EQ(editing().curobj, noObject);
}

TEST_F(CanvasSelection, AlignmentFollowsTheCurrentObject)
{
    const Rect atB = rect(b), atC = rect(c);
    click(b);
    ctrlClick(c);
    const std::array<Rect, 4> expected{{{100, 10, 70, 30}, {90, 10, 70, 30}, {90, 10, 70, 30}, {90, 0, 70, 30}}};
    for (std::int16_t mode = 0; mode < 4; ++mode) {
        alignSelection(mode);
        EXPECT_EQ(rect(c), expected[static_cast<std::size_t>(mode)]) << mode;
        EXPECT_EQ(markers.at(2), rect(c));
    }
    EXPECT_EQ(rect(b), atB);
    EXPECT_NE(rect(c), atC);
    EXPECT_EQ(edits, 4);
    EXPECT_EQ(editing().multcount, 2);

    click(a);
    ctrlClick(b);
    ctrlClick(a); // stays the reference
    alignSelection(2);
    EXPECT_EQ(rect(a), (Rect{10, 10, 50, 20}));
}

} // namespace
} // namespace corvanta
