#include "canvas/clicks.h"
#include "canvas/keys.h"
#include "tests/rules/canvas_page.h"

namespace corvanta {
namespace {

class CanvasSelection : public CanvasPage {
protected:
    std::int16_t a = add(Kind::Button, {10, 10, 50, 20});
    std::int16_t b = add(Kind::Label, {100, 10, 60, 20});
    std::int16_t c = add(Kind::Image, {200, 10, 70, 30});
};

TEST_F(CanvasSelection, PlainClickSelectsBringsToFrontAndShowsHandles)
{
    click(a);
    EXPECT_EQ(editing().curobj, a);
    EXPECT_EQ(fronted, std::vector<std::int16_t>{a});
    EXPECT_EQ(trackers, rect(a));
    EXPECT_EQ(page().objects[0].kind, static_cast<std::int16_t>(Kind::Button));

    click(noObject);
    EXPECT_EQ(editing().curobj, noObject);
    EXPECT_FALSE(trackers);
    EXPECT_FALSE(editing().pagedirty);
}

TEST_F(CanvasSelection, OtherPressesSelectNothing)
{
    pressObject(a, {.at = {12, 12}, .otherButton = true});
    pressObject(a, {.at = {12, 12}, .left = true, .shift = true});
    pressObject(a, {.at = {12, 12}, .left = true, .alt = true});
    EXPECT_EQ(editing().curobj, noObject);
    EXPECT_FALSE(gesture().dragging);
}

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
}

TEST_F(CanvasSelection, CtrlClickWithoutCurrentObjectTakesTheClickedOneOnly)
{
    ctrlClick(b);
    EXPECT_EQ(slot(b), 1);
    EXPECT_EQ(editing().curobj, noObject);
    click(a);
    EXPECT_EQ(slot(b), 0);
    EXPECT_EQ(editing().multcount, 0);
    EXPECT_TRUE(markers.empty());
    ctrlClick(a);
    EXPECT_EQ(slot(a), 1);
}

TEST_F(CanvasSelection, PlainClickOnAMemberKeepsTheMembersAndChangesTheReference)
{
    click(a);
    ctrlClick(b);
    click(b);
    EXPECT_EQ(editing().curobj, b);
    EXPECT_EQ(editing().multcount, 2);
    EXPECT_FALSE(trackers);
    click(c);
    EXPECT_EQ(editing().multcount, 0);
    EXPECT_EQ(trackers, rect(c));
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

TEST_F(CanvasSelection, AlignmentNeedsMembersAReferenceAndAMode)
{
    click(a);
    alignSelection(0);
    ctrlClick(b);
    alignSelection(4);
    alignSelection(-1);
    setCurrentObject(noObject);
    alignSelection(1);
    EXPECT_FALSE(editing().pagedirty);
    EXPECT_EQ(edits, 0);
}

TEST_F(CanvasSelection, KeysNeedACurrentObjectAndNoDrag)
{
    const KeyModifiers alt{.alt = true};
    EXPECT_EQ(keyDownCommand(13, alt), CanvasCommand::None);
    EXPECT_EQ(keyUpCommand(46), CanvasCommand::None);
    EXPECT_EQ(keyDownCommand('O', alt), CanvasCommand::ObjectMenu);
    EXPECT_EQ(keyDownCommand('O', {}), CanvasCommand::None);
    click(a);
    EXPECT_EQ(keyDownCommand(13, alt), CanvasCommand::Properties);
    EXPECT_EQ(keyDownCommand(13, {}), CanvasCommand::None);
    EXPECT_EQ(keyUpCommand(46), CanvasCommand::Delete);
    EXPECT_EQ(keyPressCommand(27), CanvasCommand::None);
    pressObject(a, left({12, 12}));
    EXPECT_EQ(keyDownCommand(13, alt), CanvasCommand::None);
    EXPECT_EQ(keyUpCommand(46), CanvasCommand::None);
    EXPECT_EQ(keyPressCommand(27), CanvasCommand::Cancel);
}

TEST(CanvasClicks, OnlyTheFirstIntervalMakesADoubleClick)
{
    ClickCounter counter;
    EXPECT_FALSE(counter.click());
    EXPECT_TRUE(counter.waiting());
    EXPECT_TRUE(counter.click());
    EXPECT_FALSE(counter.waiting());
    EXPECT_FALSE(counter.tick()); // a late tick starts nothing

    EXPECT_FALSE(counter.click());
    EXPECT_TRUE(counter.tick());
    EXPECT_FALSE(counter.click()); // 150 ms
    EXPECT_TRUE(counter.tick());
    EXPECT_FALSE(counter.click());
    EXPECT_FALSE(counter.tick());
    EXPECT_FALSE(counter.click());
    EXPECT_TRUE(counter.click());
}

} // namespace
} // namespace corvanta
