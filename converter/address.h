#pragma once

#include <optional>
#include <string>
#include <string_view>

// Addresses for href and src: percent-encoded, and only such as a template may hold. All take bytes of
// the code page and give ASCII. "@" stays, so that placeholders pass.
namespace corvanta {

// An address that the author wrote: relative or of http, https, mailto or ftp; "www." gets "http://" before
// it. None for any other scheme, for paths of drives and shares, and for malformed hosts.
std::optional<std::string> safeAddress(std::string_view address);

// The template of a page that an action names: "MENU" and "C:\PAGES\MENU.ODS" give "MENU.hts".
std::string pageAddress(std::string_view pageName);

// The name of a file without its directories, bytes of the code page.
std::string nameAlone(std::string_view path);

// A file of the page directory: directories in the name are left out.
std::string mediaAddress(std::string_view fileName);

// The image of an Image DB object: its path, unless that is a local directory, and its placeholder.
std::string imageAddress(std::string_view path, std::string_view objectName);

} // namespace corvanta
