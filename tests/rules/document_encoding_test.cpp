#include "document/encoding.h"
#include "document/tablist.h"

#include <gtest/gtest.h>

namespace corvanta {
namespace {

using namespace std::string_literals;

TEST(Encoding, LiteralBytes)
{
    EXPECT_EQ(encodeInt16(3), "\x03\x00"s);
    EXPECT_EQ(encodeInt16(-1), "\xFF\xFF"s);
    EXPECT_EQ(encodeInt16(300), "\x2C\x01"s);
    EXPECT_EQ(encodeInt32(0xC0C0C0), "\xC0\xC0\xC0\x00"s);
    EXPECT_EQ(encodeSingle(8.25F), "\x00\x00\x04\x41"s);
    EXPECT_EQ(encodeString("Hi"), "\x02\x00Hi"s);
    EXPECT_EQ(encodeString(""), "\x00\x00"s);
}

TEST(Encoding, ShortInputReadsAsZeroAndEmpty)
{
    std::string_view one = "A";
    EXPECT_EQ(decodeInt16(one), 65);
    EXPECT_TRUE(one.empty());
    std::string_view nothing;
    EXPECT_EQ(decodeInt32(nothing), 0);
    EXPECT_EQ(decodeString(nothing), "");
    const std::string cut = "\x05\x00"s + "AB";
    std::string_view left = cut;
    EXPECT_EQ(decodeString(left), "AB");
    EXPECT_TRUE(left.empty());
}

TEST(Encoding, EveryByteSurvivesAndNothingIsLeft)
{
    std::string all;
    for (int i = 0; i < 256; ++i)
        all += static_cast<char>(i);
    const std::string bytes = encodeString(all) + encodeInt16(-32768) + encodeInt32(INT32_MIN);
    std::string_view left = bytes;
    EXPECT_EQ(decodeString(left), all);
    EXPECT_EQ(decodeInt16(left), -32768);
    EXPECT_EQ(decodeInt32(left), INT32_MIN);
    EXPECT_TRUE(left.empty());
}

TEST(Encoding, NegativeLengthEndsTheText)
{
    const std::string bytes = "\x00\x80"s + "payload";
    std::string_view left = bytes;
    EXPECT_EQ(decodeString(left), "");
    EXPECT_TRUE(left.empty());
}

TEST(TabList, FieldsCountFromZero)
{
    EXPECT_EQ(fieldCount(""), 1);
    EXPECT_EQ(fieldCount("\t\t"), 3);
    EXPECT_EQ(fieldAt("a\tb\tc", 1), "b");
    EXPECT_EQ(fieldAt("a\tb\tc", 2), "c");
    EXPECT_EQ(fieldAt("a\tb", 2), "");
    EXPECT_EQ(fieldAt("x|y", 1, '|'), "y");
}

TEST(TabList, SettingAFieldKeepsTheOthers)
{
    EXPECT_EQ(setFieldAt("a", 2, "x"), "a\t\tx");
    EXPECT_EQ(setFieldAt("a\tb\tc", 1, ""), "a\t\tc");
    EXPECT_EQ(setFieldAt("a\tb\tc", 0, "long"), "long\tb\tc");
    EXPECT_EQ(setFieldAt("", 0, "x"), "x");
}

} // namespace
} // namespace corvanta
