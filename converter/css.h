#pragma once

#include "document/page.h"

#include <cstdint>
#include <string>
#include <string_view>

// Colours, fonts and numbers of the page in CSS.
namespace corvanta {

// 0x00BBGGRR as "#rrggbb"; with 0x80 in the top byte the system colour of that index.
std::string cssColour(std::int32_t colour);

// Declarations of a font block: colour, and the font with fallbacks that every system has, in px at 96 dpi.
std::string cssFont(const FontBlock &font);

// The size of a font in whole px, as on the canvas; unusable sizes give that of a new object.
int fontPixels(const FontBlock &font);

// The height of a line of text in px, without the gap between lines.
int lineHeight(const FontBlock &font);

// About how wide a line of text is, in px; rather too much than too little.
int textWidth(const FontBlock &font, std::string_view utf8);

// The colours of an edge of a raised face: as the face in light, in shadow, and its outline; 0x00BBGGRR.
struct EdgeColours {
    std::int32_t light, shadow, outline;
};
EdgeColours edgeColours(std::int32_t face);

// A number with at most two decimals, no locale.
std::string cssNumber(double value);

// "text-align:right;" and so on from an object's alignment.
std::string cssAlignment(std::int16_t alignment);

} // namespace corvanta
