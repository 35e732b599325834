#include "converter/address.h"

#include "converter/convert.h"
#include "converter/host_names.h"
#include "converter/text.h"
#include "document/media.h"
#include "platform/codepage.h"
#include "platform/text.h"

#include <algorithm>
#include <cctype>

namespace corvanta {

namespace {

constexpr std::string_view inName = "-._~@", inPath = "-._~@!$&'()*+,;=:/?";

bool isLetterOrDigit(char c)
{
    return static_cast<unsigned char>(c) < 0x80 && std::isalnum(static_cast<unsigned char>(c));
}
bool isHex(char c) { return static_cast<unsigned char>(c) < 0x80 && std::isxdigit(static_cast<unsigned char>(c)); }

std::string percentEncoded(std::string_view utf8, std::string_view kept)
{
    constexpr char digits[] = "0123456789ABCDEF";
    std::string address;
    for (const char c : utf8) {
        if (isLetterOrDigit(c) || kept.find(c) != std::string_view::npos) {
            address += c;
            continue;
        }
        address += '%';
        address += digits[static_cast<unsigned char>(c) >> 4];
        address += digits[static_cast<unsigned char>(c) & 15];
    }
    return address;
}

// Encodes what is not yet encoded.
std::string encodedAddress(std::string_view utf8)
{
    std::string address;
    bool fragment = false;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const bool escape = utf8[i] == '%' && i + 2 < utf8.size() && isHex(utf8[i + 1]) && isHex(utf8[i + 2]);
        const bool mark = utf8[i] == '#' && !fragment;
        fragment = fragment || mark;
        address += escape || mark ? std::string(1, utf8[i]) : percentEncoded(utf8.substr(i, 1), inPath);
    }
    return address;
}

// Without the characters that a browser skips inside an address; "\" counts as "/" there.
std::string plainAddress(std::string_view bytes)
{
    std::string text = cleanText(bytes);
    std::erase_if(text, [](char c) { return c == '\n' || c == '\t'; });
    std::replace(text.begin(), text.end(), '\\', '/');
    return trimmed(text);
}

// The scheme in lower case; empty for a relative address.
std::string schemeOf(std::string_view address)
{
    const std::size_t end = address.find_first_of(":/?#@");
    if (end == std::string_view::npos || address[end] != ':')
        return {};
    std::string scheme(address.substr(0, end));
    std::transform(scheme.begin(), scheme.end(), scheme.begin(),
                   [](unsigned char c) { return static_cast<char>(c < 0x80 ? std::tolower(c) : c); });
    return scheme.empty() ? ":" : scheme;
}

bool isPort(std::string_view text)
{
    return text.size() <= 5 && leadingNumber(text) <= 65535 &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// "host", "host:80" or a placeholder, of what follows "//".
bool hasHost(std::string_view rest)
{
    const std::string_view authority = rest.substr(0, rest.find_first_of("/?#"));
    if (std::count(authority.begin(), authority.end(), '@') > 1)
        return true;
    const std::string_view host = authority.substr(authority.find('@') + 1);
    const std::string_view name = host.substr(0, host.find(':'));
    const bool port = name.size() == host.size() || isPort(host.substr(name.size() + 1));
    return port && !name.empty() && name.front() != '.' && std::all_of(name.begin(), name.end(), [](char c) {
               return isLetterOrDigit(c) || c == '-' || c == '.' || static_cast<unsigned char>(c) >= 0x80;
           });
}

bool isSafe(std::string_view address)
{
    const std::string scheme = schemeOf(address);
    if (scheme == "mailto")
        return address.size() > 7;
    if (scheme.empty())
        return !address.starts_with("//") || hasHost(address.substr(2));
    const std::string_view rest = address.substr(std::min(scheme.size() + 1, address.size()));
    return (scheme == "http" || scheme == "https" || scheme == "ftp") && rest.starts_with("//") &&
           hasHost(rest.substr(2));
}

// Relative without a way up, or of the web.
bool isImageDirectory(std::string_view path)
{
    const auto address = safeAddress(path);
    if (!address)
        return false;
    const std::string scheme = schemeOf(*address);
    if (!scheme.empty())
        return scheme == "http" || scheme == "https";
    return !address->starts_with('/') && ("/" + *address + "/").find("/../") == std::string::npos;
}

bool endsWith(std::string_view name, std::string_view extension)
{
    return name.size() > extension.size() && sameText(name.substr(name.size() - extension.size()), extension);
}

// The host name of a file in a folder, found without regard to case; empty when there is none.
std::string foundIn(const std::filesystem::path &folder, const std::string &name)
{
    std::error_code error;
    const std::filesystem::path file = folder.empty() ? folder : fileIn(folder, name);
    return !folder.empty() && std::filesystem::exists(file, error) ? file.filename().string() : std::string();
}

} // namespace

std::optional<std::string> safeAddress(std::string_view address)
{
    std::string text = plainAddress(address);
    if (sameText(text.substr(0, 4), "www."))
        text.insert(0, "http://");
    const bool share = trimmed(address).starts_with('\\');
    if (text.empty() || share || !isSafe(text))
        return std::nullopt;
    return encodedAddress(text);
}

std::string nameAlone(std::string_view path)
{
    std::string name = fileNamePart(trimmed(path));
    name = trimmed(std::string_view(name).substr(name.rfind('/') + 1));
    return plainFileName(name) && name != "." ? name : std::string();
}

std::string pageAddress(std::string_view pageName, const std::filesystem::path &folder)
{
    std::string name = nameAlone(pageName);
    if (endsWith(name, ".ods") || endsWith(name, ".hts"))
        name.resize(name.size() - 4);
    if (isBlank(name))
        name = "TOP";
    std::string page = foundIn(folder, name + ".ods");
    if (page.empty() && sameText(name, "TOP")) // the first page of an application, which is often its menu
        page = foundIn(folder, "MENU.ods");
    return percentEncoded(page.empty() ? cleanText(name) + ".hts" : templateOf(page).string(), inName);
}

std::string mediaAddress(std::string_view fileName, const std::filesystem::path &folder)
{
    const std::string name = nameAlone(fileName), found = foundIn(folder, name);
    return percentEncoded(name.empty() || found.empty() ? cleanText(name) : found, inName);
}

std::string imageAddress(std::string_view path, std::string_view objectName)
{
    const std::string placeholder = percentEncoded(cleanText("@" + std::string(objectName) + "@"), inName);
    const std::string directory = trimmed(path);
    if (directory.empty() || !isImageDirectory(directory))
        return placeholder;
    const std::string address = *safeAddress(directory);
    return address.ends_with('/') ? address + placeholder : address + "/" + placeholder;
}

} // namespace corvanta
