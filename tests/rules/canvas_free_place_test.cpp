#include "canvas/free_place.h"
#include "tests/rules/canvas_page.h"

#include <gtest/gtest.h>

namespace corvanta {
namespace {

Page pageWith(const std::vector<Rect> &objects)
{
    Page p;
    p.bkgwd = 300;
    p.bkght = 200;
    for (const Rect &r : objects) {
        ObjectRecord o;
        o.kind = static_cast<std::int16_t>(Kind::TextBox);
        o.pleft = toPixels(r.left);
        o.ptop = toPixels(r.top);
        o.pwidth = toPixels(r.width);
        o.pheight = toPixels(r.height);
        p.objects.insert(p.objects.begin() + objectCount(p), o);
        p.ctlindex.push_back(0);
    }
    return p;
}

TEST(FreePlace, LiesUnderTheCurrentObjectOrWhereverThereIsRoom)
{
    const Rect box{20, 20, 100, 24}, picture{0, 0, 300, 200};
    const struct {
        std::vector<Rect> objects;
        std::int16_t current;
        Point expected;
    } cases[] = {
        {{}, noObject, {10, 10}},
        {{box}, noObject, {10, 50}},
        {{box}, 0, {20, 50}},
        {{box, {20, 50, 100, 24}}, 0, {20, 80}},
        {{picture, box}, 1, {20, 50}},                            // what lies behind
        {{box, {0, 70, 110, 130}}, 0, {116, 50}},                 // beside it when the column is full
        {{{10, 170, 100, 24}}, 0, {10, 10}},                      // nothing fits under it
        {{{150, 20, 140, 90}, {150, 110, 140, 90}}, 1, {10, 10}}, // nor to the right
    };
    for (const auto &c : cases)
        EXPECT_EQ(freePlace(pageWith(c.objects), c.current, {100, 24}), c.expected) << (&c - cases);
    EXPECT_EQ(
        freePlace(pageWith({{0, 0, 150, 90}, {150, 0, 150, 90}, {0, 90, 150, 110}, {150, 90, 150, 110}}), 0, {290, 50}),
        (Point{0, 96}));
}

TEST(FreePlace, RowsOfLabelsStandInColumnsOfThePagesHeight)
{
    const LabelledRows rows = labelledRows({{30, 18}, {50, 18}, {40, 18}}, {120, 24}, {600, 60});
    ASSERT_EQ(rows.rows.size(), 3U);
    EXPECT_EQ(rows.rows[0].label, (Rect{0, 3, 50, 18}));
    EXPECT_EQ(rows.rows[0].field, (Rect{56, 0, 120, 24}));
    EXPECT_EQ(rows.rows[1].field, (Rect{56, 30, 120, 24}));
    EXPECT_EQ(rows.rows[2].label, (Rect{188, 3, 50, 18}));
    EXPECT_EQ(rows.whole, (Size{364, 54}));
}

} // namespace
} // namespace corvanta
