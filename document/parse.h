#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Texts, numbers and colours that an author types into dialogs. What a field stores comes from the changed...
// functions: a field that still reads as what is stored keeps it as it is, also a value that the field could not take
// again.
namespace corvanta {

// The leading decimal number of a text, rounded with halves to even and clamped to -32767..32767; 0 when
// there is none.
std::int16_t ParseInt16Clamped(std::string_view text);

// The same, clamped to -2147483647..2147483647. "&H" in front makes the digits hexadecimal.
std::int32_t ParseInt32Clamped(std::string_view text);

// The text without blanks around it, and the number that it begins with; the ones of before when it still reads so.
std::string changedText(std::string_view text, const std::string &before);
std::int16_t changedInt16(std::string_view text, std::int16_t before);

// Hexadecimal colour digits without prefix as 0x00BBGGRR. Digits beyond 32 bits are told while msgflag is
// set and read as 0.
std::int32_t ParseColourText(std::string_view text);

// The same without telling, and with "#" or "&H" before the digits, for a text that is being typed.
std::int32_t colourShown(std::string_view text);

// Whether a text is a colour: hexadecimal digits of at most 32 bits, with or without "#" or "&H" before them.
bool isColourText(std::string_view text);

// The same, telling when it is not: a message, and what a colour looks like, under "Properties Error".
bool CheckColourText(std::string_view text, std::string_view message);

// The colour that such a text stands for; the one of before when it still reads so, and when it is none.
std::int32_t changedColour(std::string_view text, std::int32_t before);

// A colour as upper-case hexadecimal digits without prefix or leading zeros.
std::string colourText(std::int32_t colour);

} // namespace corvanta
