#include "platform/codepage.h"
#include "platform/qt/colours.h"
#include "platform/qt/fonts.h"
#include "platform/qt/text.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QGuiApplication>
#include <QPalette>

#include <limits>
#include <string>

namespace corvanta {
namespace {

class CodePage {
public:
    explicit CodePage(int number) { EXPECT_TRUE(setCodePage(number)); }
    ~CodePage() { setCodePage(before); }

private:
    int before = codePageNumber();
};

std::string everyByte()
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    return bytes;
}

TEST(QtText, EveryByteComesBackInEveryCodePage)
{
    for (const int number : {874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258}) {
        const CodePage codePage(number);
        EXPECT_EQ(toBytes(toQString(everyByte())), everyByte()) << number;
    }
}

TEST(QtText, FollowsTheCodePage)
{
    EXPECT_EQ(toQString("\xE0"), QString(QChar(0xE0)));
    const CodePage hebrew(1255);
    EXPECT_EQ(toQString("\xE0"), QString(QChar(0x5D0)));
    EXPECT_EQ(toBytes(QString(QChar(0x5D0))), "\xE0");
}

TEST(QtText, WhatTheCodePageLacksBecomesOneQuestionMark)
{
    EXPECT_EQ(toBytes(QString::fromUtf8("a\u05D0b")), "a?b");
    EXPECT_EQ(toBytes(QString::fromUtf8("a\U0001F600b")), "a?b");
    EXPECT_EQ(toBytes(QString(QChar(0xD800))), "?");
}

TEST(QtColours, TheLowByteIsRed)
{
    EXPECT_EQ(toQColor(0x0000FF), QColor(Qt::red));
    EXPECT_EQ(toQColor(0xC08040), QColor(0x40, 0x80, 0xC0));
    EXPECT_EQ(toQColor(0x7F0000FF), QColor(Qt::red));
    EXPECT_EQ(fromQColor(QColor(0x40, 0x80, 0xC0, 0x10)), 0xC08040);
    EXPECT_EQ(fromQColor(QColor::fromHsv(240, 255, 255)), 0xFF0000);
}

TEST(QtColours, SystemColoursComeFromTheDesktop)
{
    const auto system = [](int index) { return toQColor(std::numeric_limits<std::int32_t>::min() + index); };
    const QPalette palette = QGuiApplication::palette();
    EXPECT_EQ(system(5), palette.color(QPalette::Base));
    EXPECT_EQ(system(8), palette.color(QPalette::Text));
    EXPECT_EQ(system(13), palette.color(QPalette::Highlight));
    EXPECT_EQ(system(15), palette.color(QPalette::Button));
    EXPECT_EQ(system(18), palette.color(QPalette::ButtonText));
    EXPECT_EQ(system(25), QColor(25, 0, 0));
    EXPECT_EQ(system(0xFFFFFF), QColor(Qt::white));
}

TEST(QtFonts, SizesArePointsAt96DotsPerInch)
{
    EXPECT_EQ(toQFont("Arial", 8.25F).pixelSize(), 11);
    EXPECT_EQ(toQFont("Arial", 12).pixelSize(), 16);
    EXPECT_EQ(toQFont("Arial", 0.1F).pixelSize(), 1);
    EXPECT_EQ(toQFont("Arial", 1e9F).pixelSize(), 2880);
    for (const float unusable :
         {0.0F, -12.0F, std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()})
        EXPECT_EQ(toQFont("Arial", unusable).pixelSize(), 11);
}

TEST(QtFonts, TakesEveryStyle)
{
    FontBlock block;
    block.FontItalic = block.FontUnderline = true;
    const QFont font = toQFont(block);
    EXPECT_TRUE(font.italic() && font.underline());
    EXPECT_FALSE(font.bold() || font.strikeOut());
    block.FontBold = block.FontStrikethru = true;
    EXPECT_TRUE(toQFont(block).bold() && toQFont(block).strikeOut());
}

TEST(QtFonts, OldNamesGiveFontsOfTheSameMetrics)
{
    registerFontSubstitutions();
    EXPECT_EQ(QFontInfo(toQFont("MS Sans Serif", 8.25F)).family(), "Liberation Sans");
    EXPECT_EQ(QFontInfo(toQFont("", 8.25F)).family(), "Liberation Sans");
    EXPECT_EQ(QFontInfo(toQFont("MS Serif", 8.25F)).family(), "Liberation Serif");
    EXPECT_EQ(QFontInfo(toQFont("Fixedsys", 9)).family(), "Liberation Mono");
    EXPECT_EQ(QFontInfo(toQFont("DejaVu Sans", 9)).family(), "DejaVu Sans");
}

} // namespace
} // namespace corvanta
