#include "document/settings.h"

#include "document/page.h"
#include "platform/asking.h"
#include "platform/paths.h"
#include "platform/profile.h"
#include "platform/text.h"

#include <algorithm>
#include <cmath>

namespace corvanta {

namespace {

constexpr const char *profileFile = "CORVANTA.INI", *section = "Corvanta Page Editor", *canvasSection = "Canvas";

void readNumber(const char *key, int &value)
{
    const std::string stored = GetPrivateProfileString(section, key, profileNumber(value), profileFile);
    value = static_cast<int>(std::clamp(leadingNumber(stored), -1e6, 1e6));
}

void readSeconds(const char *key, int &value)
{
    constexpr int longest = 3600;
    readNumber(key, value);
    value = std::clamp(value, 1, longest);
}

void readTruth(const char *in, const char *key, bool &value)
{
    value = GetPrivateProfileInt(in, key, value ? -1 : 0, profileFile) != 0;
}

std::string storedDirectory()
{
    const std::string here = currentDirectory();
    std::string stored = GetPrivateProfileString(section, "DefaultPath", here, profileFile);
    stored = trimmed(stored.substr(0, stored.find('\0')));
    return withTrailingBackslash(!stored.empty() && directoryExists(stored) ? stored : here);
}

} // namespace

WindowSettings loadSettings(const WindowSettings &current)
{
    if (!profileUsable(profileFile))
        showExclamation("The settings file " + std::string(profileFile) +
                            " cannot be read. It is left as it is, and no settings are kept.",
                        "Reading File");
    WindowSettings s = current;
    readNumber("MainTop", s.MainTop);
    readNumber("MainLeft", s.MainLeft);
    readNumber("PageTop", s.PageTop);
    readNumber("PageLeft", s.PageLeft);
    readNumber("PageHeight", s.PageHeight);
    readNumber("PageWidth", s.PageWidth);
    readSeconds("OdbcLoginTimeout", s.OdbcLoginTimeout);
    readSeconds("OdbcCallTimeout", s.OdbcCallTimeout);
    readTruth(section, "ShowToolbar", s.ShowToolbar);
    readTruth(section, "ShowStatus", s.ShowStatus);
    readTruth(canvasSection, "ShowBindings", s.ShowBindings);
    editing().curdir = storedDirectory();
    return s;
}

bool saveSettings(const WindowSettings &s)
{
    const auto write = [](const char *key, const std::string &value) {
        return WritePrivateProfileString(section, key, value, profileFile);
    };
    const auto truth = [](bool value) { return profileNumber(value ? -1 : 0); };
    bool written = true;
    for (const auto &[key, value] :
         std::initializer_list<std::pair<const char *, std::string>>{{"MainTop", profileNumber(s.MainTop)},
                                                                     {"MainLeft", profileNumber(s.MainLeft)},
                                                                     {"PageTop", profileNumber(s.PageTop)},
                                                                     {"PageLeft", profileNumber(s.PageLeft)},
                                                                     {"PageHeight", profileNumber(s.PageHeight)},
                                                                     {"PageWidth", profileNumber(s.PageWidth)},
                                                                     {"ShowToolbar", truth(s.ShowToolbar)},
                                                                     {"ShowStatus", truth(s.ShowStatus)},
                                                                     {"DefaultPath", editing().curdir}})
        written = write(key, value) && written;
    return WritePrivateProfileString(canvasSection, "ShowBindings", truth(s.ShowBindings), profileFile) && written;
}

int keptOnScreen(int position, int extent, int screen) { return std::max(0, std::min(position, screen - extent)); }

} // namespace corvanta
