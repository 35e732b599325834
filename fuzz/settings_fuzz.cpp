#include "document/settings.h"
#include "fuzz/support.h"
#include "platform/profile.h"
#include <fstream>
#include <sstream>

using namespace corvanta;

namespace {

std::string contentOf(const std::filesystem::path &file)
{
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    std::string_view rest = bytesOf(data, size);
    const std::string section(takePart(rest)), key(takePart(rest)), value(takePart(rest));
    const std::filesystem::path file = scratchFolder() / "CORVANTA.INI";
    std::ofstream(file, std::ios::binary) << rest;
    GetPrivateProfileInt(section, key, 7, "CORVANTA.INI");
    GetPrivateProfileString("Corvanta Page Editor", "DefaultPath", "", "CORVANTA.INI");
    const std::string before = GetPrivateProfileString("Corvanta Page Editor", "Other", "", "CORVANTA.INI");
    const bool stored = WritePrivateProfileString("Corvanta Page Editor", "MainTop", profileNumber(12), "CORVANTA.INI");
    const std::string now = contentOf(file);
    if (!stored)
        require(now == rest, "a file that cannot be taken stays");
    else {
        require(GetPrivateProfileInt("Corvanta Page Editor", "MainTop", 0, "CORVANTA.INI") == 12, "a value comes back");
        require(GetPrivateProfileString("Corvanta Page Editor", "Other", "", "CORVANTA.INI") == before,
                "other values stay");
        require(now.size() <= rest.size() + 64, "a file does not grow");
        WritePrivateProfileString("Corvanta Page Editor", "MainTop", profileNumber(12), "CORVANTA.INI");
        require(contentOf(file) == now, "the same value changes nothing");
    }
    WritePrivateProfileString(section, key, value, "CORVANTA.INI");
    return 0;
}
