#pragma once

#include "document/page.h"

#include <cstdint>
#include <string>

// Colours, fonts and numbers of the page in CSS.
namespace corvanta {

// 0x00BBGGRR as "#rrggbb"; with 0x80 in the top byte the system colour of that index.
std::string cssColour(std::int32_t colour);

// Declarations of a font block: colour, and the font with fallbacks that every system has, in px at 96 dpi.
std::string cssFont(const FontBlock &font);

// The size of a font in px; unusable sizes give that of a new object.
double fontPixels(const FontBlock &font);

// A number with at most two decimals, no locale.
std::string cssNumber(double value);

// "text-align:right;" and so on from an object's alignment.
std::string cssAlignment(std::int16_t alignment);

} // namespace corvanta
