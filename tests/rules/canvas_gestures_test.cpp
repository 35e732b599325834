#include "tests/rules/canvas_page.h"

namespace corvanta {
namespace {

class CanvasGestures : public CanvasPage {
protected:
    std::int16_t a = add(Kind::Label, {100, 50, 100, 20});
    std::int16_t b = add(Kind::Image, {300, 200, 40, 30});
    std::int16_t c = add(Kind::Button, {400, 300, 50, 25});
};

TEST_F(CanvasGestures, DragShowsTheOutlineAndMovesAtTheRelease)
{
    pressObject(a, left({110, 55}));
    EXPECT_TRUE(gesture().dragging);
    EXPECT_FALSE(outline);
    moveObject(left({125, 45}));
    EXPECT_EQ(outline, (Rect{115, 40, 100, 20}));
    EXPECT_EQ(gesture().grabx, 25);
    EXPECT_EQ(rect(a), (Rect{100, 50, 100, 20}));
    moveObject(left({130, 65}));
    releaseObject(a, left({130, 65}));
    EXPECT_EQ(rect(a), (Rect{120, 60, 100, 20}));
    EXPECT_EQ(trackers, rect(a));
    EXPECT_FALSE(outline);
    EXPECT_TRUE(editing().pagedirty);
    EXPECT_EQ(edits, 1);
}

TEST_F(CanvasGestures, MovesAreProcessedWithTheLeftButtonAloneAtANewPlace)
{
    pressObject(a, left({110, 55}));
    moveObject(left({110, 55}));
    moveObject({.at = {150, 60}, .left = true, .otherButton = true});
    moveObject({.at = {150, 60}, .left = true, .shift = true});
    moveObject({.at = {150, 60}, .left = true, .alt = true});
    moveObject(ctrlLeft({150, 60}));
    moveObject({.at = {150, 60}});
    EXPECT_FALSE(outline);
    releaseObject(a, left({110, 55}));
    moveObject(left({150, 60}));
    EXPECT_FALSE(outline);
    EXPECT_EQ(trackers, rect(a));
    EXPECT_FALSE(editing().pagedirty);
    EXPECT_EQ(edits, 0);
}

TEST_F(CanvasGestures, DragStopsAtEveryEdge)
{
    drag(a, {110, 55}, {3000, 55});
    EXPECT_EQ(rect(a), (Rect{540, 50, 100, 20}));
    drag(a, {550, 55}, {550, 4000});
    EXPECT_EQ(rect(a), (Rect{540, 460, 100, 20}));
    drag(a, {550, 465}, {-2000, -2000});
    EXPECT_EQ(rect(a), (Rect{0, 0, 100, 20}));
}

TEST_F(CanvasGestures, EscEndsADragWithoutAChange)
{
    pressObject(a, left({110, 55}));
    moveObject(left({150, 60}));
    EXPECT_TRUE(cancelGesture());
    EXPECT_FALSE(outline);
    EXPECT_EQ(trackers, rect(a));
    moveObject(left({170, 60}));
    EXPECT_FALSE(outline);
    releaseObject(a, left({170, 60}));
    EXPECT_EQ(rect(a), (Rect{100, 50, 100, 20}));
    EXPECT_FALSE(editing().pagedirty);
    EXPECT_FALSE(cancelGesture());
}

class CanvasGroup : public CanvasGestures {
protected:
    CanvasGroup()
    {
        click(a);
        ctrlClick(b);
        ctrlClick(c);
    }
    Point displacement() const { return {rect(b).left - 300, rect(b).top - 200}; }
};

TEST_F(CanvasGroup, MembersMoveTogether)
{
    const auto d = add(Kind::Label, {10, 400, 50, 20});
    pressObject(b, left({310, 210}));
    moveObject(left({330, 200}));
    EXPECT_EQ(outline, (Rect{320, 190, 40, 30}));
    EXPECT_EQ(groupFrame, (Rect{120, 40, 350, 275}));
    releaseObject(b, left({330, 200}));
    EXPECT_EQ(rect(a), (Rect{120, 40, 100, 20}));
    EXPECT_EQ(rect(b), (Rect{320, 190, 40, 30}));
    EXPECT_EQ(rect(c), (Rect{420, 290, 50, 25}));
    EXPECT_EQ(rect(d), (Rect{10, 400, 50, 20}));
    EXPECT_EQ(markers.at(3), rect(c));
    EXPECT_FALSE(groupFrame);
    EXPECT_FALSE(trackers);
    EXPECT_EQ(editing().multcount, 3);
    EXPECT_EQ(edits, 1);
}

TEST_F(CanvasGroup, DisplacementIsCutAtEachEdge)
{
    drag(b, {310, 210}, {-900, 210});
    EXPECT_EQ(displacement(), (Point{-100, 0}));
    drag(b, {210, 210}, {2000, 210});
    EXPECT_EQ(displacement(), (Point{190, 0}));
    drag(b, {500, 210}, {500, -900});
    EXPECT_EQ(displacement(), (Point{190, -50}));
    drag(b, {500, 160}, {500, 900});
    EXPECT_EQ(displacement(), (Point{190, 155}));
    EXPECT_EQ(rect(c), (Rect{590, 455, 50, 25}));
    EXPECT_EQ(rect(a), (Rect{290, 205, 100, 20}));
}

TEST_F(CanvasGestures, ContentIsHiddenFromTheFirstMoveToTheEnd)
{
    const auto text = add(Kind::TextBox, {10, 10, 80, 20});
    const auto list = add(Kind::ListBox, {10, 100, 80, 60});
    drag(list, {12, 102}, {20, 110});
    EXPECT_TRUE(emptied.empty()); // an empty list

    page().lbxextras[1].push_back({"entry", ""});
    drag(list, {22, 112}, {30, 120});
    pressObject(text, left({12, 12}));
    EXPECT_EQ(emptied, std::vector<std::int16_t>{list});
    moveObject(left({13, 12}));
    moveObject(left({14, 12}));
    EXPECT_EQ(emptied, (std::vector<std::int16_t>{list, text}));
    EXPECT_EQ(restored, std::vector<std::int16_t>{list});
    cancelGesture();
    EXPECT_EQ(restored, emptied);
}

TEST_F(CanvasGestures, AGestureEndsWithItsMouseOrItsObject)
{
    const Rect before = rect(a);
    const std::vector<std::function<void()>> ends{mouseTaken,
                                                  [] {
                                                      moveObject({.at = {150, 60}});
                                                  },
                                                  [] {
                                                      moveHandle({.at = {150, 60}});
                                                  },
                                                  [this] { deleteObject(b); }, [this] { deleteObject(a); }};
    for (const auto &end : ends)
        for (const bool resize : {false, true}) {
            click(a);
            if (resize)
                pressHandle(Handle::Right, left({199, 60}));
            else
                pressObject(a, left({110, 55}));
            moveHandle(left({150, 60}));
            moveObject(left({150, 60}));
            if (&end == &ends[resize ? 1 : 2])
                continue;
            end();
            EXPECT_FALSE(gesture().dragging || gesture().resizing || outline);
            EXPECT_TRUE(!hasCurrentObject() || (trackers == before && rect(a) == before));
        }
}

TEST_F(CanvasGestures, ResizeFollowsTheHandleInsideThePage)
{
    click(a);
    pressHandle(Handle::BottomRight, left({199, 69}));
    EXPECT_EQ(outline, rect(a));
    moveHandle(left({900, 90}));
    EXPECT_EQ(outline, (Rect{100, 50, 540, 40}));
    moveHandle(left({900, 700}));
    EXPECT_EQ(outline, (Rect{100, 50, 540, 430}));
    releaseHandle(left({900, 700}));
    EXPECT_EQ(rect(a), (Rect{100, 50, 540, 430}));
    EXPECT_EQ(trackers, rect(a));
    EXPECT_FALSE(outline);
    EXPECT_EQ(edits, 1);

    pressHandle(Handle::TopLeft, left({100, 50}));
    moveHandle(left({-50, -60}));
    releaseHandle(left({-50, -60}));
    EXPECT_EQ(rect(a), (Rect{0, 0, 640, 480}));
}

TEST_F(CanvasGestures, HandleThatDoesNotMoveAndEscChangeNothing)
{
    click(a);
    pressHandle(Handle::Right, left({199, 60}));
    moveHandle(left({199, 60}));
    releaseHandle(left({199, 60}));
    EXPECT_FALSE(outline);
    pressHandle(Handle::Right, left({199, 60}));
    moveHandle(left({150, 60}));
    EXPECT_TRUE(cancelGesture());
    EXPECT_FALSE(outline);
    releaseHandle(left({150, 60}));
    EXPECT_EQ(rect(a), (Rect{100, 50, 100, 20}));
    EXPECT_EQ(trackers, rect(a));
    EXPECT_FALSE(editing().pagedirty);
}

} // namespace
} // namespace corvanta
