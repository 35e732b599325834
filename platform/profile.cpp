#include "platform/profile.h"

#include "platform/codepage.h"
#include "platform/environment.h"
#include "platform/host_files.h"
#include "platform/text.h"

#include <algorithm>
#include <filesystem>
#include <limits>
#include <optional>
#include <vector>

namespace corvanta {

namespace {

constexpr std::uintmax_t profileLimit = 1 << 20;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::filesystem::path defaultFolder()
{
    const std::filesystem::path config = environmentValue("XDG_CONFIG_HOME");
    if (config.is_absolute())
        return config / "corvanta";
    return std::filesystem::path("/") / environmentValue("HOME") / ".config" / "corvanta";
}

std::filesystem::path &profileFolder()
{
    static std::filesystem::path folder = defaultFolder();
    return folder;
}

std::filesystem::path profilePath(std::string_view fileName) { return profileFolder() / toUtf8(fileName); }

// The bytes of a profile; none when there is a file that cannot be read as one.
std::optional<std::string> readProfile(std::string_view fileName)
{
    FileContent content = readHostFile(profilePath(fileName), profileLimit);
    if ((!content.error.empty() && !content.missing) || content.tooLarge ||
        content.bytes.find('\0') != std::string::npos)
        return std::nullopt;
    return std::move(content.bytes);
}

// The lines of a text with their ends.
std::vector<std::string> linesOf(std::string_view text)
{
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::size_t length = end == std::string_view::npos ? text.size() : end + 1;
        lines.emplace_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return lines;
}

std::string_view withoutEnd(std::string_view line) { return line.substr(0, line.find_first_of("\r\n")); }

std::string joined(const std::vector<std::string> &lines)
{
    std::string text;
    for (const std::string &line : lines)
        text += line;
    return text;
}

std::optional<std::string> headerOf(std::string_view line)
{
    if (line.starts_with(byteOrderMark))
        line.remove_prefix(byteOrderMark.size());
    const std::string text = trimmed(withoutEnd(line));
    const std::size_t end = text.find(']');
    if (!text.starts_with('[') || end == std::string::npos)
        return std::nullopt;
    return trimmed(std::string_view(text).substr(1, end - 1));
}

bool hasKey(std::string_view line, std::string_view key)
{
    const std::size_t equals = line.find('=');
    const std::string name = trimmed(line.substr(0, std::min(equals, line.size())));
    return equals != std::string_view::npos && !name.starts_with(';') && !name.starts_with('#') && sameText(name, key);
}

// Where a key stands, or would.
struct KeyPlace {
    std::optional<std::size_t> line; // of the key
    std::optional<std::size_t> end;  // after the last line of its section that is not blank
};

KeyPlace placeOf(const std::vector<std::string> &lines, std::string_view section, std::string_view key)
{
    KeyPlace place;
    bool inside = false;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (const auto header = headerOf(lines[i])) {
            if (inside)
                break;
            inside = sameText(*header, section);
        } else if (inside && hasKey(lines[i], key)) {
            place.line = i;
            break;
        }
        if (inside && !trimmed(withoutEnd(lines[i])).empty())
            place.end = i + 1;
    }
    return place;
}

std::optional<std::string> storedValue(std::string_view text, std::string_view section, std::string_view key)
{
    const std::vector<std::string> lines = linesOf(text);
    const KeyPlace place = placeOf(lines, section, key);
    if (!place.line)
        return std::nullopt;
    const std::string_view line = lines[*place.line];
    return trimmed(fromUtf8Lossy(withoutEnd(line.substr(line.find('=') + 1))));
}

// The text with one value set; every other byte stays.
std::string withValue(std::string_view text, std::string_view section, std::string_view key, std::string_view value)
{
    std::vector<std::string> lines = linesOf(text);
    const KeyPlace place = placeOf(lines, section, key);
    if (place.line) {
        std::string &line = lines[*place.line];
        const std::size_t start = line.find('=') + 1;
        line.replace(start, withoutEnd(std::string_view(line).substr(start)).size(), value);
        return joined(lines);
    }
    const std::string end = !lines.empty() && lines.front().ends_with("\r\n") ? "\r\n" : "\n";
    const auto keyLine = std::string(key) + '=' + std::string(value) + end;
    if (!lines.empty() && !lines.back().ends_with('\n') && (!place.end || *place.end == lines.size()))
        lines.back() += end;
    if (place.end) {
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(*place.end), keyLine);
    } else {
        if (!lines.empty())
            lines.push_back(end);
        lines.push_back('[' + std::string(section) + ']' + end);
        lines.push_back(keyLine);
    }
    return joined(lines);
}

} // namespace

void setProfileFolder(const std::string &hostFolder) { profileFolder() = hostFolder; }

std::string GetPrivateProfileString(std::string_view section, std::string_view key, std::string_view fallback,
                                    std::string_view fileName)
{
    const auto text = readProfile(fileName);
    const auto value = text ? storedValue(*text, toUtf8(section), toUtf8(key)) : std::nullopt;
    return value.value_or(std::string(fallback));
}

int GetPrivateProfileInt(std::string_view section, std::string_view key, int fallback, std::string_view fileName)
{
    const std::string value = GetPrivateProfileString(section, key, "", fileName);
    if (value.empty())
        return fallback;
    constexpr double least = std::numeric_limits<int>::min(), greatest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(leadingNumber(value), least, greatest));
}

bool WritePrivateProfileString(std::string_view section, std::string_view key, std::string_view value,
                               std::string_view fileName)
{
    const auto before = readProfile(fileName);
    if (!before)
        return false;
    value = value.substr(0, value.find_first_of(std::string_view("\0\r\n", 3)));
    if (storedValue(*before, toUtf8(section), toUtf8(key)) == trimmed(value))
        return true;
    const std::string text = withValue(*before, toUtf8(section), toUtf8(key), toUtf8(value));
    std::error_code error;
    std::filesystem::create_directories(profileFolder(), error);
    return !writeHostFileAtomically(profilePath(fileName), text);
}

bool profileUsable(std::string_view fileName) { return readProfile(fileName).has_value(); }

std::string profileNumber(int value) { return (value < 0 ? "" : " ") + std::to_string(value); }

} // namespace corvanta
