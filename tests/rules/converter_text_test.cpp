#include "converter/address.h"
#include "converter/text.h"

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

TEST(ConverterAddress, OnlyHarmlessSchemesPass)
{
    for (const char *address :
         {"javascript:alert(1)", "JavaScript:alert(1)", " java\tscript:alert(1)", "\x01javascript:alert(1)",
          "vbscript:x", "data:text/html,x", "file:///etc/passwd", "C:\\PAGES\\X.HTM", "\\\\server\\share", "ldap://x",
          "http:", "http://", "http://a b/", "http://x:99999/", "mailto:", ":x", ":", ""})
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
    EXPECT_EQ(pageAddress("menu.hts"), "menu.hts");
    EXPECT_EQ(pageAddress("..\\.."), "TOP.hts");
    EXPECT_EQ(mediaAddress("pictures/.."), "");
    EXPECT_EQ(mediaAddress("..\\secret/my \"pic\".bmp"), "my%20%22pic%22.bmp");
    EXPECT_EQ(mediaAddress("a');}</style>.bmp"), "style%3E.bmp");
}

TEST(ConverterAddress, ImagesOfDatabasesHaveNoLocalDirectory)
{
    for (const char *path : {"", "C:\\SECRET", "\\\\secret\\photos", "/home/secret", "javascript:x", "ftp://x.example/",
                             "photos\\..\\..", ".."})
        EXPECT_EQ(imageAddress(path, "photo"), "@photo@") << path;
    EXPECT_EQ(imageAddress("photos\\small", "photo"), "photos/small/@photo@");
    EXPECT_EQ(imageAddress("http://example.com/p/", "photo"), "http://example.com/p/@photo@");
}

} // namespace
} // namespace corvanta
