#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Helpers for texts of the system's ANSI code page: one byte is one character.
namespace corvanta {

// The text without leading and trailing blanks (character 32 only).
std::string trimmed(std::string_view text);

// Upper case by the current code page; bytes without an upper case form stay.
std::string upperCase(std::string_view text);

// Lower case by the current code page.
std::string lowerCase(std::string_view text);

// True when the texts are equal without regard to letter case.
bool sameText(std::string_view a, std::string_view b);

// Every "&" doubled, for a text that is shown in a caption.
std::string doubleAmpersands(std::string_view text);

// The part of a path after the last ":" and the last "\".
std::string fileNamePart(std::string_view path);

// The directory part of a path with its trailing "\"; empty when the path has no "\".
std::string directoryPart(std::string_view path);

// The directory without its trailing "\", unless it is a three-character drive root such as "C:\".
std::string withoutTrailingBackslash(std::string_view directory);

// The directory with "\" appended when it does not end with one.
std::string withTrailingBackslash(std::string_view directory);

// The leading decimal number of a text (blanks skipped; "12.5px" gives 12.5); 0 when there is none.
// Reads as the decimal text form of the system does: no locale, no hexadecimal, no "inf" or "nan".
double leadingNumber(std::string_view text);

// The last so many hexadecimal digits of a value, in upper case, with leading zeros.
std::string hexDigits(std::uint64_t value, std::size_t digits);

} // namespace corvanta
