#pragma once

#include <string>
#include <string_view>

// Why a connection failed, in words that may be shown. Texts are UTF-8.
namespace corvanta {

// The text with the password masked where it stands as a whole word. A text that would reveal it otherwise is not told:
// another one says so.
std::string withoutPassword(const std::string &text, const std::string &password);

// The Debian package that holds a driver, by its name or its library; empty when it is not known.
std::string driverPackage(std::string_view driver);

} // namespace corvanta
