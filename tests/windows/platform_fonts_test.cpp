#include "platform/qt/fonts.h"

#include <gtest/gtest.h>

#include <QFontInfo>

#include <limits>

namespace corvanta {

TEST(QtFonts, SizesArePointsAt96DotsPerInch)
{
    const float endless = std::numeric_limits<float>::infinity(), none = std::numeric_limits<float>::quiet_NaN();
    for (const auto &[points, pixels] : {std::pair{8.25F, 11},
                                         {12.0F, 16},
                                         {0.1F, 1},
                                         {1e9F, 2880},
                                         {0.0F, 11},
                                         {-12.0F, 11},
                                         {endless, 11},
                                         {none, 11}})
        EXPECT_EQ(toQFont("Arial", points).pixelSize(), pixels) << points;
}

TEST(QtFonts, OldNamesGiveFontsOfTheSameMetrics)
{
    const std::pair<const char *, const char *> families[] = {{"MS Sans Serif", "Liberation Sans"},
                                                              {"", "Liberation Sans"},
                                                              {"MS Serif", "Liberation Serif"},
                                                              {"Fixedsys", "Liberation Mono"},
                                                              {"DejaVu Sans", "DejaVu Sans"}};
    for (const auto &[name, family] : families)
        EXPECT_EQ(QFontInfo(toQFont(name, 8.25F)).family(), family);
}

} // namespace corvanta
