#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// Addresses for href and src: percent-encoded, and only such as a template may hold. All take bytes of
// the code page and give ASCII. "@" stays, so that placeholders pass.
namespace corvanta {

// An address that the author wrote: relative or of http, https, mailto or ftp; "www." gets "http://" before
// it. None for any other scheme, for paths of drives and shares, and for malformed hosts.
std::optional<std::string> safeAddress(std::string_view address);

// The name of a file without its directories, bytes of the code page; empty when that is no plain file name.
std::string nameAlone(std::string_view path);

// The template of a page that an action names: "MENU", "MENU.hts" and "C:\PAGES\MENU.ODS" give "MENU.hts". With the
// host folder of the page: the template of the page file that stands there, in its spelling; for "TOP" also that of
// "MENU".
std::string pageAddress(std::string_view pageName, const std::filesystem::path &folder = {});

// A file of the page directory: directories in the name are left out. With the page's host folder: in the spelling of
// the file that stands there.
std::string mediaAddress(std::string_view fileName, const std::filesystem::path &folder = {});

// The image of an Image DB object: its path, when that is relative or of http or https, and its placeholder.
std::string imageAddress(std::string_view path, std::string_view objectName);

} // namespace corvanta
