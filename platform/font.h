#pragma once

#include <cstdint>
#include <string>

namespace corvanta {

// A font with its colour, as objects store it and the font dialog offers it.
struct FontBlock {
    std::int32_t ForeColor = 0; // 0x00BBGGRR
    bool FontBold = false, FontItalic = false;
    std::string FontName = "MS Sans Serif"; // bytes of the code page
    float FontSize = 8.25F;                 // points
    bool FontStrikethru = false, FontUnderline = false;

    bool operator==(const FontBlock &) const = default;
};

} // namespace corvanta
