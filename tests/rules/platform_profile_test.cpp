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

TEST_F(Profile, keepsForeignContent)
{
    drive.add("config/CORVANTA.INI", "; made by hand\n\n"
                                     "[Other]\nempty=\n; about x\nx=<<<END\nX=2\n\n"
                                     "[corvanta page editor]\n; the top\nmaintop=5\nforeign=\"q\"\n\n"
                                     "[Last]\nz=1\n; the end\n\n# of it");
    EXPECT_TRUE(write("MainTop", " 7"));
    EXPECT_TRUE(write("MainLeft", " 8"));
    const std::string text = stored();
    std::size_t at = 0;
    for (const char *part :
         {"; made by hand\n", "[Other]\nempty=\n", "; about x\nx=<<<END\n", "=2\n", "[corvanta page editor]\n",
          "; the top\n", "= 7\n", "foreign=\"q\"\n", "MainLeft= 8\n", "[Last]\nz=1\n", "; the end\n", "# of it\n"}) {
        const std::size_t found = text.find(part, at);
        EXPECT_NE(found, std::string::npos) << part << "in order in\n" << text;
        at = found == std::string::npos ? at : found;
    }
    EXPECT_TRUE(text.ends_with("# of it\n"));
    EXPECT_TRUE(write("MainTop", " 9") && write("MainTop", " 7"));
    EXPECT_EQ(stored(), text) << "rewriting adds nothing";
}

} // namespace corvanta
