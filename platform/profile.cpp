#include "platform/profile.h"

#include "platform/codepage.h"
#include "platform/host_files.h"
#include "platform/text.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <optional>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wall"
#pragma GCC diagnostic ignored "-Wextra"
#pragma GCC diagnostic ignored "-Wpedantic"
#pragma GCC diagnostic ignored "-Wshadow"
#define SI_NO_CONVERSION
#define SI_IMPLEMENTATION
#include <SimpleIni.h>
#pragma GCC diagnostic pop

namespace corvanta {

namespace {

constexpr std::uintmax_t profileLimit = 1 << 20;
constexpr std::size_t longestValue = 255;

std::filesystem::path defaultFolder()
{
    const char *config = std::getenv("XDG_CONFIG_HOME");
    if (config != nullptr && config[0] == '/')
        return std::filesystem::path(config) / "corvanta";
    const char *home = std::getenv("HOME");
    return std::filesystem::path(home != nullptr ? home : "/") / ".config" / "corvanta";
}

std::filesystem::path &profileFolder()
{
    static std::filesystem::path folder = defaultFolder();
    return folder;
}

std::filesystem::path profilePath(std::string_view fileName) { return profileFolder() / toUtf8(fileName); }

// Stands after the last key while a file is rewritten: the library keeps comments that precede something only.
constexpr char endMark[] = "[corvanta: end of the file]";

// Stands before a value's leading blanks while a file is rewritten: the library drops those too.
constexpr char blankGuard = '\x01';

std::string withGuardedBlanks(std::string text)
{
    for (std::size_t at = text.find("= "); at != std::string::npos; at = text.find("= ", at + 2))
        text.insert(at + 1, 1, blankGuard);
    return text;
}

// False when there is a file that cannot be read as a profile.
bool readProfile(std::string_view fileName, CSimpleIniA &ini)
{
    const FileContent content = readHostFile(profilePath(fileName), profileLimit);
    if ((!content.error.empty() && !content.missing) || content.tooLarge ||
        content.bytes.find('\0') != std::string::npos)
        return false;
    ini.SetUnicode();
    ini.SetMultiKey();
    ini.SetSpaces(false);
    return ini.LoadData(withGuardedBlanks(content.bytes) + "\n" + endMark + "\n") >= 0;
}

std::optional<std::string> storedValue(const CSimpleIniA &ini, std::string_view section, std::string_view key)
{
    const char *value = ini.GetValue(toUtf8(section).c_str(), toUtf8(key).c_str());
    if (value == nullptr)
        return std::nullopt;
    std::string text = value;
    std::erase(text, blankGuard);
    return trimmed(fromUtf8Lossy(text));
}

std::optional<std::string> profileText(const CSimpleIniA &ini)
{
    std::string text;
    if (ini.Save(text) < 0)
        return std::nullopt;
    std::erase(text, blankGuard);
    const std::size_t mark = text.find(endMark);
    if (mark != std::string::npos)
        text.erase(mark, text.find('\n', mark) + 1 - mark);
    text.erase(text.find_last_not_of('\n') + 1);
    return text + "\n";
}

} // namespace

void setProfileFolder(const std::string &hostFolder) { profileFolder() = hostFolder; }

std::string GetPrivateProfileString(std::string_view section, std::string_view key, std::string_view fallback,
                                    std::string_view fileName)
{
    CSimpleIniA ini;
    const auto value = readProfile(fileName, ini) ? storedValue(ini, section, key) : std::nullopt;
    return value ? value->substr(0, longestValue) : std::string(fallback);
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
    CSimpleIniA ini;
    if (!readProfile(fileName, ini))
        return false;
    value = value.substr(0, value.find_first_of(std::string_view("\0\r\n", 3)));
    if (storedValue(ini, section, key) == trimmed(value))
        return true;
    ini.SetValue(toUtf8(section).c_str(), toUtf8(key).c_str(), toUtf8(value).c_str(), nullptr, true);
    const auto text = profileText(ini);
    std::error_code error;
    std::filesystem::create_directories(profileFolder(), error);
    return text && !writeHostFileAtomically(profilePath(fileName), *text);
}

std::string profileNumber(int value) { return (value < 0 ? "" : " ") + std::to_string(value); }

} // namespace corvanta
