#include "platform/codepage.h"
#include "platform/media.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "tests/support/temporary_drive.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

namespace corvanta {

namespace {

namespace fs = std::filesystem;

class Paths : public testing::Test {
protected:
    TemporaryDrive drive;

    // The host path of a drive path, relative to the drive's root.
    std::string lookedUp(std::string_view path) const { return hostPath(path).lexically_relative(drive.root()); }
};

} // namespace

TEST_F(Paths, findNamesWithoutRegardToCase)
{
    drive.add("Pages/Menu.ods");
    EXPECT_EQ(lookedUp("C:\\PAGES\\MENU.ODS"), "Pages/Menu.ods");
    EXPECT_EQ(lookedUp("c:/pages/menu.ods"), "Pages/Menu.ods");
    EXPECT_EQ(lookedUp("\\pages\\.\\menu.ODS"), "Pages/Menu.ods");
    EXPECT_EQ(lookedUp("C:\\PAGES\\New.ODS"), "Pages/New.ODS");
    EXPECT_EQ(lookedUp("C:\\None\\MENU.ODS"), "None/MENU.ODS");
    EXPECT_TRUE(fileExists("C:\\PAGES\\MENU.ODS"));
    EXPECT_FALSE(fileExists("C:\\PAGES"));
    EXPECT_TRUE(directoryExists("C:\\PAGES\\"));
    EXPECT_FALSE(directoryExists("C:\\PAGES\\MENU.ODS"));
    EXPECT_FALSE(fileExists(""));
}

TEST_F(Paths, seeChangesOfAFolder)
{
    EXPECT_EQ(lookedUp("C:\\A.TXT"), "A.TXT");
    const auto listed = fs::last_write_time(drive.root());
    const fs::path file = drive.add("a.txt");
    fs::last_write_time(drive.root(), listed); // as if within one tick of the file system's clock
    EXPECT_EQ(lookedUp("C:\\A.TXT"), "a.txt");
    fs::remove(file);
    EXPECT_EQ(lookedUp("C:\\A.TXT"), "A.TXT");
    // A folder that has rested is listed once, until its time changes.
    using namespace std::chrono;
    fs::last_write_time(drive.root(), fs::file_time_type::clock::now() - 1h);
    EXPECT_EQ(lookedUp("C:\\A.TXT"), "A.TXT");
    drive.add("a.txt");
    EXPECT_EQ(lookedUp("C:\\A.TXT"), "a.txt");
}

TEST_F(Paths, neverLeaveTheDrive)
{
    drive.add("A/B/x");
    EXPECT_EQ(hostPath("C:\\..\\..\\etc\\passwd"), drive.root() / "etc/passwd");
    EXPECT_EQ(lookedUp("C:\\a\\..\\..\\A\\b"), "A/B");
    EXPECT_EQ(lookedUp("C:\\none\\..\\a/b/x"), "A/B/x");
    ASSERT_TRUE(changeDirectory("C:\\A\\B"));
    EXPECT_EQ(hostPath("../../../x"), drive.root() / "x");
    EXPECT_EQ(drivePath("/etc/passwd"), "");
    EXPECT_EQ(drivePath(drive.root().string() + "x/y"), "");
    EXPECT_EQ(drivePath(drive.root() / ".."), "");
}

TEST_F(Paths, startFromTheCurrentDirectory)
{
    drive.add("Pages/Menu.ods");
    EXPECT_EQ(currentDirectory(), "C:\\");
    EXPECT_FALSE(changeDirectory("C:\\NONE"));
    EXPECT_FALSE(changeDirectory("C:\\PAGES\\MENU.ODS"));
    EXPECT_EQ(currentDirectory(), "C:\\");
    EXPECT_TRUE(changeDirectory("pages\\"));
    EXPECT_EQ(currentDirectory(), "C:\\Pages");
    EXPECT_EQ(lookedUp("MENU.ODS"), "Pages/Menu.ods");
    EXPECT_EQ(lookedUp("C:MENU.ODS"), "Pages/Menu.ods");
    EXPECT_EQ(lookedUp("\\MENU.ODS"), "MENU.ODS");
    EXPECT_EQ(drivePath(hostPath("MENU.ODS")), "C:\\Pages\\Menu.ods");
    EXPECT_EQ(drivePath(drive.root() / "Pages" / ""), "C:\\Pages");
    EXPECT_EQ(drivePath(drive.root()), "C:\\");
}

TEST_F(Paths, ofNamesBeyondTheCodePageAreTheirOwnEach)
{
    const std::vector<std::string> names = {"日.ods",      "本.ods",     "日/Ünï.ods", "日/a\\b.ods",
                                            "日/c:d.ods",  "日/c_d.ods", "日/q?.ods",  "日",
                                            "日/\xff.ods", "a.ods",      "A.ods"};
    std::set<std::string> drivePaths;
    for (const std::string &name : names) {
        if (name != "日")
            drive.add(name, name);
        drivePaths.insert(drivePath(drive.root() / name));
    }
    EXPECT_EQ(drivePaths.size(), names.size());
    // What the alias of another file reads like is no other file's name.
    const std::string alias = fileNamePart(drivePath(drive.root() / "日.ods"));
    drive.add(alias, "imitation");
    for (const std::string &name : names) {
        EXPECT_EQ(hostPath(drivePath(drive.root() / name)), drive.root() / name);
        EXPECT_EQ(hostPath(upperCase(drivePath(drive.root() / name))).parent_path(),
                  (drive.root() / name).parent_path());
    }
    EXPECT_EQ(hostPath(drivePath(drive.root() / alias)), drive.root() / alias);
    EXPECT_EQ(lookedUp("C:\\A.ods"), "A.ods");
    EXPECT_EQ(lookedUp("C:\\a.ods"), "a.ods");
    EXPECT_EQ(realPath(drivePath(drive.root() / "日/Ünï.ods")), "C:\\日\\Ünï.ods");
    const fs::path unwritten = drive.root() / "new語.ods";
    EXPECT_EQ(hostPath(drivePath(unwritten)), unwritten);
}

} // namespace corvanta
