#include "converter/css.h"

#include "converter/text.h"
#include "platform/text.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <initializer_list>

namespace corvanta {

namespace {

constexpr double pixelsPerPoint = 96.0 / 72, largestPoints = 2160;

// By index of the desktop's colour table; where CSS has no such colour, the desktop's usual one.
constexpr std::array<const char *, 25> systemColours{
    "#c8c8c8",       "#008080",    "#000080", "#808080",    "Canvas",     "Canvas",  "CanvasText",
    "CanvasText",    "CanvasText", "#ffffff", "ButtonFace", "ButtonFace", "#808080", "Highlight",
    "HighlightText", "ButtonFace", "#808080", "GrayText",   "ButtonText", "#c0c0c0", "#ffffff",
    "#404040",       "#dfdfdf",    "#000000", "#ffffe1"};

bool names(std::string_view fontName, std::initializer_list<const char *> parts)
{
    const std::string name = lowerCase(fontName);
    for (const char *part : parts)
        if (name.find(part) != std::string::npos)
            return true;
    return false;
}

enum class Family { Sans, Serif, Mono };

Family familyOf(std::string_view fontName)
{
    if (names(fontName, {"courier", "fixedsys", "terminal", "console", "mono", "typewriter"}))
        return Family::Mono;
    if (names(fontName,
              {"times", "ms serif", "roman", "georgia", "garamond", "bookman", "century", "palatino", "book"}))
        return Family::Serif;
    return Family::Sans;
}

const char *fallbacks(std::string_view fontName)
{
    switch (familyOf(fontName)) {
    case Family::Mono: return "\"Courier New\",Courier,monospace";
    case Family::Serif: return "\"Times New Roman\",Times,serif";
    case Family::Sans: break;
    }
    return "Arial,Helvetica,sans-serif";
}

// The part of a font's pixels that a character is wide.
double characterWidth(char c)
{
    constexpr std::string_view narrow = "ijl.,;:!|'`/\\ ftr()[]I", wide = "mwMW@%";
    if (narrow.find(c) != std::string_view::npos)
        return 0.34;
    if (wide.find(c) != std::string_view::npos)
        return 1.02;
    return c >= 'A' && c <= 'Z' ? 0.78 : 0.61;
}

// The name in quotes with its comma; characters that could end a CSS string are left out.
std::string family(const std::string &fontName)
{
    std::string name = cleanText(fontName);
    std::erase_if(name, [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 0x80 && c != ' ' && c != '-' && c != '_' && std::isalnum(byte) == 0;
    });
    const bool listed = std::string_view(fallbacks(fontName)).find(name) != std::string_view::npos;
    return isBlank(name) || listed ? std::string() : "\"" + name + "\",";
}

std::string decoration(const FontBlock &font)
{
    if (font.FontUnderline && font.FontStrikethru)
        return "underline line-through";
    if (font.FontUnderline)
        return "underline";
    return font.FontStrikethru ? "line-through" : "none";
}

} // namespace

std::string cssColour(std::int32_t colour)
{
    const auto value = static_cast<std::uint32_t>(colour);
    if (value >> 24 == 0x80)
        return (value & 0xFFFFFF) < systemColours.size() ? systemColours[value & 0xFFFFFF] : "#000000";
    constexpr char digits[] = "0123456789abcdef";
    std::string text = "#";
    for (const int shift : {4, 0, 12, 8, 20, 16})
        text += digits[(value >> shift) & 15];
    return text;
}

int fontPixels(const FontBlock &font)
{
    const bool usable = std::isfinite(font.FontSize) && font.FontSize > 0;
    const double points = usable ? std::min<double>(font.FontSize, largestPoints) : FontBlock{}.FontSize;
    return std::max(1, static_cast<int>(std::lround(points * pixelsPerPoint)));
}

int lineHeight(const FontBlock &font)
{
    struct Metrics {
        double ascent, descent; // of a font's pixels
    };
    constexpr Metrics metrics[] = {{0.905, 0.212}, {0.891, 0.216}, {0.833, 0.300}};
    const Metrics &m = metrics[static_cast<int>(familyOf(font.FontName))];
    const int pixels = fontPixels(font);
    return static_cast<int>(std::lround(m.ascent * pixels) + std::lround(m.descent * pixels));
}

int textWidth(const FontBlock &font, std::string_view utf8)
{
    double width = 0;
    for (const char c : utf8)
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80)
            width += familyOf(font.FontName) == Family::Mono ? 0.61 : characterWidth(c) * (font.FontBold ? 1.08 : 1);
    return static_cast<int>(std::ceil(width * fontPixels(font)));
}

EdgeColours edgeColours(std::int32_t face)
{
    const bool system = static_cast<std::uint32_t>(face) >> 24 != 0;
    const std::int32_t base = system ? 0xC0C0C0 : face;
    const auto mixed = [base](int other, int percent) {
        std::int32_t colour = 0;
        for (const int shift : {0, 8, 16})
            colour |= (((base >> shift) & 0xFF) * (100 - percent) + other * percent) / 100 << shift;
        return colour;
    };
    return {mixed(255, 85), mixed(0, 38), mixed(0, 75)};
}

std::string cssFont(const FontBlock &font)
{
    std::string css = "color:" + cssColour(font.ForeColor) + ";font:";
    css += font.FontItalic ? "italic " : "";
    css += font.FontBold ? "bold " : "";
    css += cssNumber(fontPixels(font)) + "px " + family(font.FontName) + fallbacks(font.FontName);
    return css + ";text-decoration:" + decoration(font) + ";";
}

std::string cssNumber(double value)
{
    const double rounded = std::round(value * 100) / 100;
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), rounded, std::chars_format::fixed).ptr;
    return {digits.data(), end};
}

std::string cssAlignment(std::int16_t alignment)
{
    if (alignment == 1)
        return "text-align:right;";
    return alignment == 2 ? "text-align:center;" : "text-align:left;";
}

} // namespace corvanta
