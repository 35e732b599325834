#include "document/file_state.h"
#include "tests/support/fresh_page.h"
#include "tests/support/samples.h"
#include "tests/support/scripted_asking.h"

#include <sys/stat.h>

namespace corvanta {

namespace {
class Damage : public FreshPage {};
} // namespace

TEST_F(Damage, IsToldOfWhatSavingWouldLoseAndOfNothingElse)
{
    for (const std::string &name : samples::currentPages()) {
        const std::string bytes = samples::sample(name);
        EXPECT_FALSE(damageOf(bytes)) << name;
        EXPECT_TRUE(damageOf(bytes + 'x')) << name;
        for (std::size_t length = 1; length < bytes.size(); length += 7) {
            Page p;
            parsePage(p, bytes.substr(0, length));
            const bool whole = serialisePage(p) == bytes.substr(0, length);
            EXPECT_NE(bool(damageOf(bytes.substr(0, length))), whole) << name << " cut to " << length;
        }
    }
    EXPECT_FALSE(damageOf(samples::sample("version1.ods"))) << "an older file only gains fields";
    EXPECT_TRUE(damageOf(samples::sample("truncated.ods")));
    EXPECT_NE(damageOf("This is a letter.").summary.find("no page"), std::string::npos);
}

TEST_F(Damage, OldBytesAreKeptAtTheFirstSave)
{
    const TemporaryDrive drive;
    const std::string cut = samples::sample("menu.ods").substr(0, 700);
    drive.add("MENU.ODS", cut);
    std::vector<std::string> notices;
    const auto told = documentEvents().notice.connect([&](std::string_view text) { notices.emplace_back(text); });
    ScriptedAsking user;
    openPage("C:\\MENU.ODS");
    ASSERT_EQ(notices.size(), 1U);
    pageEdited("x");
    ASSERT_TRUE(savePage());
    pageEdited("y");
    ASSERT_TRUE(savePage());
    EXPECT_EQ(hostBytes(drive.root() / "MENU.ODS.bak"), cut);
    EXPECT_FALSE(std::filesystem::exists(drive.root() / "MENU.ODS.bak2"));
    openPage("C:\\MENU.ODS");
    EXPECT_FALSE(fileDamage());
}

TEST_F(Damage, AFileThatCouldNotBeReadIsKeptWithItsMode)
{
    const TemporaryDrive drive;
    const std::string large(fileLimit + 5, 'x');
    const auto file = drive.add("LARGE.ODS", large);
    std::filesystem::permissions(file, std::filesystem::perms(0600));
    ScriptedAsking user;
    editing().msgflag = false;
    openPage("C:\\LARGE.ODS");
    EXPECT_TRUE(fileDamage());
    pageEdited("x");
    ASSERT_TRUE(savePage());
    EXPECT_EQ(hostBytes(drive.root() / "LARGE.ODS.bak"), large);
    EXPECT_EQ(std::filesystem::status(drive.root() / "LARGE.ODS.bak").permissions(), std::filesystem::perms(0600));
}

TEST_F(Damage, FilesThatHoldPasswordsAreTheUsersOwn)
{
    const TemporaryDrive drive;
    ScriptedAsking user;
    umask(022);
    page().dbconnect = "dsn\tann\tsecret\t";
    editing().filetag = "C:\\SECRET.ODS";
    ASSERT_TRUE(savePage());
    struct stat status;
    ASSERT_EQ(stat((drive.root() / "SECRET.ODS").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
    page().dbconnect = "\t\t\t";
    editing().filetag = "C:\\OPEN.ODS";
    ASSERT_TRUE(savePage());
    ASSERT_EQ(stat((drive.root() / "OPEN.ODS").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0644U);
    page().dbconnect = "dsn\tann\tsecret\t";
    user.expectMessage("This page holds a password, and other users of this computer may read its file.", "Saving File",
                       Icon::Information);
    ASSERT_TRUE(savePage());
    ASSERT_TRUE(savePage());
}

TEST_F(Damage, StrayFilesOfDeadWritersGo)
{
    const TemporaryDrive drive;
    const auto old = std::filesystem::file_time_type::clock::now() - std::chrono::minutes(1);
    const auto stray = drive.add(".corvanta-0123456789abcdef", "secret"),
               young = drive.add(".corvanta-1", "being made");
    std::filesystem::last_write_time(stray, old);
    drive.add("OTHER", "x");
    removeStrayFiles("C:\\");
    EXPECT_FALSE(std::filesystem::exists(stray));
    EXPECT_TRUE(std::filesystem::exists(young));
    EXPECT_TRUE(std::filesystem::exists(drive.root() / "OTHER"));
}

} // namespace corvanta
