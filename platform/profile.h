#pragma once

#include <string>
#include <string_view>

// Private profile (INI) files of the user's configuration directory. All other bytes of a file stay when a value is
// written. Values are bytes of the code page.
namespace corvanta {

// Sets the host folder that holds the profiles; by default $XDG_CONFIG_HOME/corvanta or
// ~/.config/corvanta.
void setProfileFolder(const std::string &hostFolder);

// The key's value, blanks around it removed; the default when absent.
std::string GetPrivateProfileString(std::string_view section, std::string_view key, std::string_view fallback,
                                    std::string_view fileName);

// The key's value as a decimal number (leading blanks ignored, sign allowed); the default when absent.
int GetPrivateProfileInt(std::string_view section, std::string_view key, int fallback, std::string_view fileName);

// Stores a value. False when the file could not be written; the old file then stays.
bool WritePrivateProfileString(std::string_view section, std::string_view key, std::string_view value,
                               std::string_view fileName);

// A number in the decimal text form of stored numbers: a leading blank unless it is negative.
std::string profileNumber(int value);

// Whether the file can be taken: one that is missing can; one that cannot be read, is too large or holds no text
// cannot, and is never written.
bool profileUsable(std::string_view fileName);

} // namespace corvanta
