#include "platform/placement.h"

#include <gtest/gtest.h>

namespace corvanta {

TEST(Placement, OverTheScreenOrTheOwnerButOnTheScreen)
{
    const Area screen{0, 0, 12000, 9000}, dialog{500, 700, 4000, 2000};
    EXPECT_EQ(centredArea(dialog, screen, {}), (Area{4000, 3500, 4000, 2000}));
    EXPECT_EQ(centredArea({0, 0, 13000, 9001}, screen, {}), (Area{0, 0, 12000, 9000}));
    EXPECT_EQ(centredArea(dialog, screen, Area{1000, 1000, 6000, 4000}), (Area{2000, 2000, 4000, 2000}));
    EXPECT_EQ(centredArea(dialog, screen, Area{-500, -500, 1000, 1000}), (Area{0, 0, 4000, 2000}));
    EXPECT_EQ(centredArea(dialog, screen, Area{11000, 8500, 1000, 500}), (Area{8000, 7000, 4000, 2000}));
}

TEST(Placement, BesideAWindowWhereThereIsRoom)
{
    const Area screen{0, 0, 1000, 800};
    EXPECT_EQ(roomBeside({10, 10, 700, 90}, screen), (Area{0, 100, 1000, 700}));
    EXPECT_EQ(roomBeside({10, 600, 700, 90}, screen), (Area{0, 0, 1000, 600}));
    const Area dialog{300, 100, 200, 100};
    EXPECT_EQ(movedOff(dialog, {100, 250, 500, 400}, screen), dialog);
    EXPECT_EQ(movedOff(dialog, {100, 150, 500, 400}, screen), (Area{300, 50, 200, 100}));
    EXPECT_EQ(movedOff(dialog, {100, 90, 500, 700}, screen), (Area{600, 100, 200, 100}));
    EXPECT_EQ(movedOff(dialog, {100, 90, 880, 500}, screen), (Area{300, 590, 200, 100}));
    EXPECT_EQ(movedOff(dialog, {10, 10, 980, 780}, screen), dialog);
}

} // namespace corvanta
