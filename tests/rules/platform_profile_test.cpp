#include "platform/profile.h"
#include "tests/support/temporary_drive.h"

#include <gtest/gtest.h>

namespace corvanta {

namespace {

constexpr const char *file = "CORVANTA.INI", *section = "Corvanta Page Editor";

class Profile : public testing::Test {
protected:
    Profile() { setProfileFolder(drive.root() / "config"); }
    ~Profile() override { setProfileFolder("/dev/null/nothing"); }

    std::string read(std::string_view key, std::string_view fallback = "?") const
    {
        return GetPrivateProfileString(section, key, fallback, file);
    }
    bool write(std::string_view key, std::string_view value) const
    {
        return WritePrivateProfileString(section, key, value, file);
    }
    std::string stored() const { return hostBytes(drive.root() / "config/CORVANTA.INI"); }

    TemporaryDrive drive;
};

} // namespace

TEST_F(Profile, writesTheLeadingBlankAndReadsNone)
{
    EXPECT_TRUE(write("MainTop", profileNumber(1440)));
    EXPECT_TRUE(write("MainLeft", profileNumber(-1)));
    EXPECT_TRUE(write("DefaultPath", "C:\\B\xDC"
                                     "CHER\\\x81\\"));
    EXPECT_EQ(stored(), "[Corvanta Page Editor]\nMainTop= 1440\nMainLeft=-1\nDefaultPath=C:\\BÜCHER\\\u0081\\\n");
    EXPECT_EQ(read("MAINTOP"), "1440");
    EXPECT_EQ(GetPrivateProfileInt("CORVANTA PAGE EDITOR", "mainleft", 0, file), -1);
    EXPECT_EQ(read("DefaultPath"), "C:\\B\xDC"
                                   "CHER\\\x81\\");
    EXPECT_EQ(profileNumber(0), " 0");
}

TEST_F(Profile, keepsForeignContentByteForByte)
{
    const std::string head = "; made by hand\n\n[Other]\nempty=\n; about x\nx=<<<END\nX=2\n\n";
    const std::string tail = "\n[Last]\nz=1\n no equals sign\n[unclosed\n\n; the end\n\n# of it";
    const std::pair<std::string, std::string> files[] = {
        {head + "[corvanta page editor]\n; the top\nmaintop=5\nforeign=\"q\"\n" + tail,
         head + "[corvanta page editor]\n; the top\nmaintop= 7\nforeign=\"q\"\nMainLeft= 8\n" + tail},
        {"\xEF\xBB\xBF[Corvanta Page Editor]\r\n MainTop = 5 \r\n\r\n[Next]\r\n",
         "\xEF\xBB\xBF[Corvanta Page Editor]\r\n MainTop = 7\r\nMainLeft= 8\r\n\r\n[Next]\r\n"},
        {"[Other]\nx=1", "[Other]\nx=1\n\n[Corvanta Page Editor]\nMainTop= 7\nMainLeft= 8\n"},
        {"", "[Corvanta Page Editor]\nMainTop= 7\nMainLeft= 8\n"},
    };
    for (const auto &[before, after] : files) {
        drive.add("config/CORVANTA.INI", before);
        for (int times = 0; times < 3; ++times) {
            EXPECT_TRUE(write("MainTop", " 9") && write("MainTop", " 7") && write("MainLeft", " 8"));
            EXPECT_EQ(stored(), after);
        }
    }
    const std::string longPath = "C:\\" + std::string(400, 'x') + "\\";
    EXPECT_TRUE(write("DefaultPath", longPath));
    EXPECT_EQ(read("DefaultPath"), longPath);
    drive.add("config/CORVANTA.INI", std::string("MainTop=\0", 9));
    EXPECT_FALSE(profileUsable(file));
    EXPECT_FALSE(write("MainTop", " 7"));
    EXPECT_EQ(stored(), std::string("MainTop=\0", 9));
}

} // namespace corvanta
