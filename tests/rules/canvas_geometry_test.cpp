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

} // namespace
} // namespace corvanta
