#include "converter/address.h"
#include "converter/css.h"
#include "converter/text.h"
#include "platform/codepage.h"

#include <gtest/gtest.h>

namespace corvanta {
namespace {

TEST(ConverterText, MarkupAndControlCharactersAreHarmless)
{
    EXPECT_EQ(escaped("<script>\"a\" & 'b'</script>"), "&lt;script&gt;&quot;a&quot; &amp; &#39;b&#39;&lt;/script&gt;");
    EXPECT_EQ(escaped(std::string("a\0\x01\x1b\x7f\tb\r\nc\rd", 12)), "a\tb&#10;c&#10;d");
    EXPECT_EQ(escaped("\x81 caf\xe9 \x80"), " café €"); // 0x81 is undefined in code page 1252
    EXPECT_TRUE(isBlank(" \r\n\x01"));
}

TEST(ConverterText, TextsFollowTheCodePage)
{
    ASSERT_TRUE(setCodePage(1251));
    EXPECT_EQ(escaped("\xcc\xe8\xf0"), "Мир");
    EXPECT_EQ(mediaAddress("\xcc.bmp"), "%D0%9C.bmp");
    ASSERT_TRUE(setCodePage(1252));
}

TEST(ConverterText, LinesAreCutByCharactersAndNotByBytes)
{
    EXPECT_EQ(oneLine(" a\r\nb\t", 10), "a b");
    EXPECT_EQ(oneLine("\xe9\xe9\xe9", 3), "ééé");
    EXPECT_EQ(oneLine("\xe9\xe9\xe9\xe9", 3), "éé…");
}

TEST(ConverterText, MnemonicMarksGo)
{
    EXPECT_EQ(withoutMnemonics("&Save && E&xit &", false), "Save & Exit &");
    EXPECT_EQ(withoutMnemonics("&copy; &Save", false), "copy; Save");
    EXPECT_EQ(withoutMnemonics("&copy; &#169; &Save; all", true), "&copy; &#169; &Save; all");
    EXPECT_EQ(withoutMnemonics("&Save all; &&", true), "Save all; &");
}

TEST(ConverterAddress, OnlyHarmlessSchemesPass)
{
    for (const char *address :
         {"javascript:alert(1)", "JavaScript:alert(1)", " java\tscript:alert(1)", "\x01javascript:alert(1)",
          "vbscript:x", "data:text/html,x", "file:///etc/passwd", "C:\\PAGES\\X.HTM", "\\\\server\\share", "ldap://x",
          "http:", "http://", "http://a b/", "http://x:99999/", "mailto:", ":x", ""})
        EXPECT_FALSE(safeAddress(address)) << address;
    EXPECT_EQ(safeAddress("HTTPS://example.com:80/a b?q=\"<&>#f#g"), "HTTPS://example.com:80/a%20b?q=%22%3C&%3E#f%23g");
    EXPECT_EQ(safeAddress("www.harbour.example"), "http://www.harbour.example");
    EXPECT_EQ(safeAddress("mailto:ann@example.com"), "mailto:ann@example.com");
    EXPECT_EQ(safeAddress("docs\\price list.htm?a=b:c"), "docs/price%20list.htm?a=b:c");
    EXPECT_EQ(safeAddress("a%20b%2"), "a%20b%252");
    EXPECT_EQ(safeAddress("@homepage@"), "@homepage@");
    EXPECT_EQ(safeAddress("http://@host@/x"), "http://@host@/x");
}

TEST(ConverterAddress, FilesAndPagesAreNamedWithoutDirectories)
{
    EXPECT_EQ(pageAddress("MENU"), "MENU.hts");
    EXPECT_EQ(pageAddress("C:\\SECRET\\menu.OdS"), "menu.hts");
    EXPECT_EQ(pageAddress(" "), "TOP.hts");
    EXPECT_EQ(pageAddress("javascript:alert(1)//"), "TOP.hts");
    EXPECT_EQ(mediaAddress("..\\secret/my \"pic\".bmp"), "my%20%22pic%22.bmp");
    EXPECT_EQ(mediaAddress("a');}</style>.bmp"), "style%3E.bmp");
}

TEST(ConverterAddress, ImagesOfDatabasesHaveNoLocalDirectory)
{
    for (const char *path : {"", "C:\\SECRET", "\\\\secret\\photos", "/home/secret", "javascript:x"})
        EXPECT_EQ(imageAddress(path, "photo"), "@photo@") << path;
    EXPECT_EQ(imageAddress("photos\\small", "photo"), "photos/small/@photo@");
    EXPECT_EQ(imageAddress("http://example.com/p/", "photo"), "http://example.com/p/@photo@");
}

TEST(ConverterCss, ColoursOfThePageAndOfTheSystem)
{
    EXPECT_EQ(cssColour(0x00123456), "#563412");
    EXPECT_EQ(cssColour(static_cast<std::int32_t>(0x80000005)), "Canvas");
    EXPECT_EQ(cssColour(static_cast<std::int32_t>(0x80000019)), "#000000"); // beyond the last system colour
    EXPECT_EQ(cssColour(0x7F123456), "#563412");
}

TEST(ConverterCss, FontsHaveFallbacksAndPixels)
{
    FontBlock font;
    font.FontBold = font.FontUnderline = true;
    EXPECT_EQ(cssFont(font), "color:#000000;font:bold 11px \"MS Sans Serif\",Arial,Helvetica,sans-serif;"
                             "text-decoration:underline;");
    font = {.FontItalic = true, .FontName = "Courier\"};x{\n", .FontSize = 7.3F, .FontStrikethru = true};
    EXPECT_EQ(cssFont(font), "color:#000000;font:italic 9.73px \"Courierx\",\"Courier New\",Courier,monospace;"
                             "text-decoration:line-through;");
    for (const float size : {0.0F, -3.0F, 1e30F}) {
        font.FontSize = size;
        EXPECT_EQ(fontPixels(font), 11) << size;
    }
}

} // namespace
} // namespace corvanta
