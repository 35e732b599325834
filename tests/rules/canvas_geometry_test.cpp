#include "canvas/page_view.h"
#include "tests/rules/canvas_page.h"

namespace corvanta {
namespace {

TEST(CanvasGeometry, HandlesStandOnTheEdgePixels)
{
    const auto corners = trackerPositions({100, 50, 85, 25});
    const std::array<Point, 8> expected{
        {{98, 48}, {140, 48}, {182, 48}, {182, 60}, {182, 72}, {140, 72}, {98, 72}, {98, 60}}};
    EXPECT_EQ(corners, expected);
    EXPECT_EQ(trackerPositions({0, 0, 10, 10})[0], (Point{-2, -2}));
    EXPECT_EQ(pointerShape(Handle::BottomLeft), PointerShape::SizeNeSw);
}

struct ResizeCase {
    Handle handle;
    Rect inwards, tooFar; // with the point at (120, 65), and far beyond the opposite corner
};

class CanvasResize : public testing::TestWithParam<ResizeCase> {};

TEST_P(CanvasResize, MovesTheHandlesEdgesOnly)
{
    const auto &[handle, inwards, tooFar] = GetParam();
    const Rect object{100, 50, 80, 40};
    const bool toTheRight = tooFar.left > object.left || tooFar.width == object.width;
    const bool downwards = tooFar.top > object.top || tooFar.height == object.height;
    EXPECT_EQ(resized(object, handle, {120, 65}), inwards);
    EXPECT_EQ(resized(object, handle, {toTheRight ? 400 : 0, downwards ? 400 : 0}), tooFar);
}

INSTANTIATE_TEST_SUITE_P(Handles, CanvasResize,
                         testing::Values(ResizeCase{Handle::TopLeft, {120, 65, 60, 25}, {176, 86, 4, 4}},
                                         ResizeCase{Handle::Top, {100, 65, 80, 25}, {100, 86, 80, 4}},
                                         ResizeCase{Handle::TopRight, {100, 65, 20, 25}, {100, 86, 4, 4}},
                                         ResizeCase{Handle::Right, {100, 50, 20, 40}, {100, 50, 4, 40}},
                                         ResizeCase{Handle::BottomRight, {100, 50, 20, 15}, {100, 50, 4, 4}},
                                         ResizeCase{Handle::Bottom, {100, 50, 80, 15}, {100, 50, 80, 4}},
                                         ResizeCase{Handle::BottomLeft, {120, 50, 60, 15}, {176, 50, 4, 4}},
                                         ResizeCase{Handle::Left, {120, 50, 60, 40}, {176, 50, 4, 40}}));

TEST(CanvasView, ThePageFollowsTheUsersWindow)
{
    constexpr int bar = 10;
    const Size room{1000, 700};
    struct Case {
        Size page;
        std::vector<Size> views; // that the user gives one after the other
        Size expected;
    };
    const Case cases[]{
        {{400, 300}, {{450, 320}}, {450, 320}},
        {{400, 300}, {{450, 300}, {380, 300}}, {380, 300}},
        {{400, 900}, {{450, 700}}, {440, 900}},             // the vertical bar
        {{400, 900}, {{410, 950}}, {400, 950}},             // goes
        {{400, 900}, {{410, 950}, {410, 800}}, {400, 800}}, // it fits now
        {{400, 900}, {{410, 500}, {410, 600}}, {400, 900}},
        {{3000, 300}, {{1000, 350}}, {3000, 340}},
        {{3000, 2000}, {{500, 400}}, {3000, 2000}},
        {{3000, 2000}, {{3100, 2100}, {600, 500}}, {600, 500}},
        {{400, 300}, {{400, -5}}, {400, 300}},
    };
    for (const Case &c : cases) {
        Size page = c.page, view = viewOf(page, room, bar);
        const Size bars = barsFor(page, view, bar);
        Size fitted{view.width - bars.width, view.height - bars.height};
        for (const Size next : c.views) {
            const Size after = pageSizeFor(page, fitted, view, next, bar);
            fitted = {after.width == page.width ? fitted.width : after.width,
                      after.height == page.height ? fitted.height : after.height};
            page = after;
            view = next;
        }
        EXPECT_EQ(page, c.expected) << c.page.width << "x" << c.page.height;
    }
    EXPECT_EQ(viewOf({400, 900}, room, bar), (Size{410, 700}));
    EXPECT_EQ(viewOf({995, 900}, room, bar), (Size{1000, 700}));
}

} // namespace
} // namespace corvanta
