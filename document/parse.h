#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Numbers and colours that an author types into dialogs.
namespace corvanta {

// The leading decimal number of a text, rounded with halves to even and clamped to -32767..32767; 0 when
// there is none.
std::int16_t ParseInt16Clamped(std::string_view text);

// The same, clamped to -2147483647..2147483647. "&H" in front makes the digits hexadecimal.
std::int32_t ParseInt32Clamped(std::string_view text);

// Hexadecimal colour digits without prefix as 0x00BBGGRR. Digits beyond 32 bits are told while msgflag is
// set and read as 0.
std::int32_t ParseColourText(std::string_view text);

// The same without telling, for a text that is being typed.
std::int32_t colourShown(std::string_view text);

// A colour as upper-case hexadecimal digits without prefix or leading zeros.
std::string colourText(std::int32_t colour);

} // namespace corvanta
