#include "converter/labels.h"
#include "tests/rules/converter_page.h"

#include <gtest/gtest.h>

namespace corvanta {
namespace {

TEST(ConverterOrder, TabIndicesOrderTheirKindsAndOthersStay)
{
    Page p;
    const std::int16_t tabs[] = {2, 1, 0, 1};
    addTo(p, Kind::Label);
    for (const std::int16_t tab : tabs)
        recordAt(p, addTo(p, Kind::Button)).tbindex = tab;
    recordAt(p, 0).kind = 99; // an unknown kind has no element
    recordAt(p, addTo(p, Kind::HotSpot)).tbindex = -5;
    EXPECT_EQ(documentOrder(p), (std::vector<std::int16_t>{3, 2, 4, 1, 5}));
}

TEST(ConverterLabels, TheNearestLabelToTheLeftOrAboveIsTaken)
{
    Page p;
    const auto field = addTo(p, Kind::TextBox, 200, 100, 100, 20);
    EXPECT_EQ(nearestLabel(p, field), noObject);
    addCaptioned(p, Kind::Label, "right", 310, 100);
    addCaptioned(p, Kind::Label, "below", 200, 125);
    addCaptioned(p, Kind::Label, "other row", 95, 60);
    addCaptioned(p, Kind::Label, " \xa0", 100, 100);
    addCaptioned(p, Kind::Label, "too far at the left", 75, 100);
    const auto heading = addCaptioned(p, Kind::Label, "Heading", 200, 78);
    elementOf(p, heading)->font.FontSize = 14;
    EXPECT_EQ(nearestLabel(p, field), noObject);
    const auto above = addCaptioned(p, Kind::Label, "above", 190, 70);
    EXPECT_EQ(nearestLabel(p, field), above);
    const auto left = addCaptioned(p, Kind::Label, "as near at the left", 90, 102);
    EXPECT_EQ(nearestLabel(p, field), left);
    const auto nearer = addCaptioned(p, Kind::Label, "nearer above", 190, 79);
    EXPECT_EQ(nearestLabel(p, field), nearer);
    p.pgflags |= rtlFlag;
    EXPECT_EQ(nearestLabel(p, field), nearer);
    const auto right = addCaptioned(p, Kind::Label, "right of a right-to-left field", 302, 300);
    EXPECT_EQ(nearestLabel(p, addTo(p, Kind::TextBox, 200, 300)), right);
}

TEST(ConverterLabels, EachFieldHasALabelAReferenceOrAText)
{
    Page p;
    const auto label = addCaptioned(p, Kind::Label, "&City:", 0, 0);
    const auto far = addTo(p, Kind::ComboBox, 115, 0), near = addTo(p, Kind::TextBox, 110, 0);
    const auto told = addTo(p, Kind::File, 150, 300), named = addTo(p, Kind::TextBox, 300, 300);
    recordAt(p, told).sptext = "Status";
    recordAt(p, named).ctlname = "amount";
    EXPECT_EQ(elementLine(p, label), "<label id=\"o0\" class=\"text\" accesskey=\"c\" for=\"o2\"><u>C</u>ity:</label>");
    EXPECT_FALSE(holds(elementLine(p, near), "aria-label"));
    EXPECT_TRUE(holds(elementLine(p, far), " aria-labelledby=\"o0\""));
    EXPECT_TRUE(holds(elementLine(p, told), " aria-label=\"Status\""));
    EXPECT_TRUE(holds(elementLine(p, named), " aria-label=\"amount\""));
    recordAt(p, label).actlist = encodeAction({action::closePage, {}}); // a button cannot be a label element
    EXPECT_TRUE(holds(elementLine(p, near), " aria-labelledby=\"o0\""));
}

} // namespace
} // namespace corvanta
