#include "platform/codepage.h"
#include "platform/text.h"

#include <gtest/gtest.h>

#include <set>

namespace corvanta {

namespace {

class CodePageTest : public testing::Test {
protected:
    ~CodePageTest() override { setCodePage(1252); }
};

class EveryCodePage : public CodePageTest, public testing::WithParamInterface<int> {};

constexpr int allCodePages[] = {874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258};

} // namespace

TEST_P(EveryCodePage, takesEveryByteThroughUnicodeAndBack)
{
    ASSERT_TRUE(setCodePage(GetParam()));
    EXPECT_EQ(codePageNumber(), GetParam());
    std::string all;
    std::set<char32_t> characters;
    for (int i = 0; i < 256; ++i) {
        all += static_cast<char>(i);
        characters.insert(characterOf(static_cast<unsigned char>(i)));
        EXPECT_EQ(byteOf(characterOf(static_cast<unsigned char>(i))), i);
    }
    EXPECT_EQ(characters.size(), 256u);
    EXPECT_EQ(fromUtf8(toUtf8(all)), all);
    EXPECT_EQ(fromUtf8Lossy(toUtf8(all)), all);
}

INSTANTIATE_TEST_SUITE_P(All, EveryCodePage, testing::ValuesIn(allCodePages));

TEST_F(CodePageTest, knowsItsCharacters)
{
    EXPECT_FALSE(setCodePage(437));
    EXPECT_EQ(codePageNumber(), 1252);
    EXPECT_EQ(toUtf8("\x80 \xE4\x81"), "€ ä\u0081");
    setCodePage(1251);
    EXPECT_EQ(toUtf8("\xCF\xF0\xE8\xE2\xE5\xF2"), "Привет");
    setCodePage(1255);
    EXPECT_EQ(fromUtf8("שלום"), "\xF9\xEC\xE5\xED");
    setCodePage(1253);
    EXPECT_EQ(characterOf(0xAA), 0xF8F9u);
}

TEST_F(CodePageTest, refusesOrReplacesWhatItLacks)
{
    EXPECT_EQ(fromUtf8("日"), std::nullopt);
    EXPECT_EQ(fromUtf8Lossy("a日本😀b"), "a???b");
    for (const char *malformed :
         {"\xC0\xAF", "\xE0\x80\xAF", "\xE2\x82", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\x80", "\xFF", "\xE4x"})
        EXPECT_EQ(fromUtf8(malformed), std::nullopt) << malformed;
    EXPECT_EQ(fromUtf8Lossy("\xE4x\xE2\x82"), "?x??");
}

TEST_F(CodePageTest, changesCaseByThePage)
{
    EXPECT_EQ(upperCase("stra\xDF"
                        "e \xFC\xFF\x9A"),
              "STRA\xDF"
              "E \xDC\x9F\x8A");
    EXPECT_EQ(lowerCase("\xC4pfel"), "\xE4pfel");
    EXPECT_TRUE(sameText("\xC4PFEL", "\xE4pfel"));
    EXPECT_FALSE(sameText("abc", "abcd"));
    setCodePage(1251);
    EXPECT_EQ(upperCase("\xE6"), "\xC6");
    EXPECT_TRUE(sameText("\xB8", "\xA8"));
}

TEST(Text, readsTheLeadingNumber)
{
    const std::pair<const char *, double> cases[] = {
        {"12.5px", 12.5}, {"  -3", -3}, {"+7", 7},  {".5", 0.5}, {"1e3x", 1000}, {"2e", 2},   {"1,5", 1},
        {"0x10", 0},      {"inf", 0},   {"nan", 0}, {"- 5", 0},  {"--5", 0},     {"+-5", 0},  {"", 0},
        {" ", 0},         {"abc12", 0}, {".", 0},   {"-.e5", 0}, {"1e-999", 0},  {"\xB2", 0}, {"5.", 5},
    };
    for (const auto &[text, value] : cases)
        EXPECT_EQ(leadingNumber(text), value) << text;
    EXPECT_GT(leadingNumber("1e999"), 1e300);
    EXPECT_LT(leadingNumber("-" + std::string(500, '9')), -1e300);
    EXPECT_EQ(leadingNumber("0." + std::string(500, '0') + "1"), 0);
}

} // namespace corvanta
