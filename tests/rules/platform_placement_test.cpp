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

} // namespace corvanta
