#include "canvas/keys.h"
#include "canvas/tab_order.h"
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

TEST_F(CanvasSelection, ARubberBandSelectsWhatItEnclosesOrTouches)
{
    struct Case {
        Point from, to;
        bool shift;
        std::vector<std::int16_t> selected;
    };
    const Case cases[]{
        {{5, 5}, {165, 35}, false, {a, b}},       {{300, 100}, {90, 0}, false, {b, c}}, // backwards
        {{5, 5}, {159, 35}, false, {a}},          {{165, 35}, {100, 5}, true, {b}},
        {{5, 200}, {2000, -50}, true, {a, b, c}}, // beyond the page
        {{5, 200}, {100, 300}, true, {}},
    };
    for (const Case &test : cases) {
        const Mouse released{.at = test.to, .left = true, .shift = test.shift};
        pressObject(noObject, {.at = test.from, .left = true, .shift = test.shift});
        moveObject(released);
        EXPECT_TRUE(band);
        releaseObject(noObject, released);
        EXPECT_FALSE(band || gestureActive() || trackers);
        std::vector<std::int16_t> selected;
        for (std::int16_t i = 0; i < objectCount(page()); ++i)
            if (inMultiSelection(i))
                selected.push_back(i);
        EXPECT_EQ(selected, test.selected);
        EXPECT_EQ(editing().curobj, selected.empty() ? noObject : selected.front());
    }
    ctrlClick(a);
    pressObject(noObject, left({5, 200}));
    moveObject(left({300, 5}));
    EXPECT_EQ(keyPressCommand(escapeCharacter), CanvasCommand::Cancel);
    cancelGesture();
    EXPECT_FALSE(band);
    EXPECT_TRUE(inMultiSelection(a)) << "a band that is given up selects nothing";
    EXPECT_EQ(keyPressCommand(escapeCharacter), CanvasCommand::ClearSelection);
    clearSelection();
    EXPECT_FALSE(hasMembers());
    EXPECT_EQ(keyPressCommand(escapeCharacter), CanvasCommand::None);
}

TEST_F(CanvasSelection, TabWalksTheTabOrderAndThenTheTable)
{
    const auto d = add(Kind::TextBox, {10, 100, 50, 20});
    object(a).tbindex = 2;
    object(d).tbindex = 1;
    std::vector<std::int16_t> walked;
    for (int i = 0; i < 5; ++i) {
        walkObjects(true);
        walked.push_back(editing().curobj);
    }
    EXPECT_EQ(walked, (std::vector<std::int16_t>{d, a, b, c, d}));
    EXPECT_EQ(trackers, rect(d));
    walkObjects(false);
    EXPECT_EQ(editing().curobj, c);
}

TEST_F(CanvasSelection, TheTabOrderIsGivenByClicking)
{
    const auto d = add(Kind::TextBox, {10, 100, 50, 20});
    editing().pagedirty = false;
    startTabOrder();
    EXPECT_TRUE(badges);
    for (const std::int16_t index : {d, d, b, noObject, a}) // a Label has no number
        numberObject(index);
    EXPECT_EQ(object(d).tbindex, 1);
    EXPECT_EQ(object(a).tbindex, 2);
    EXPECT_TRUE(editing().pagedirty);
    EXPECT_EQ(edits, 0);
    endTabOrder();
    EXPECT_EQ(edits, 1) << "one act";
    EXPECT_FALSE(badges);
    startTabOrder();
    numberObject(d);
    endTabOrder();
    EXPECT_EQ(edits, 1) << "the number was its own";
    startTabOrder();
    deleteObject(d);
    EXPECT_FALSE(tabOrderActive());
}

} // namespace
} // namespace corvanta
