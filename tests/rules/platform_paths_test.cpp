#include "platform/codepage.h"
#include "platform/media.h"
#include "platform/paths.h"
#include "tests/support/temporary_drive.h"

#include <gtest/gtest.h>

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

TEST_F(Paths, preferTheExactNameThenTheFirstInByteOrder)
{
    for (const char *name : {"a.txt", "A.txt", "A.TXT"})
        drive.add(name);
    EXPECT_EQ(lookedUp("C:\\a.txt"), "a.txt");
    EXPECT_EQ(lookedUp("C:\\A.txt"), "A.txt");
    EXPECT_EQ(lookedUp("C:\\a.TXT"), "A.TXT");
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

TEST_F(Paths, ofUnknownDrivesAndWithNulDoNotExist)
{
    drive.add("x");
    EXPECT_EQ(driveList(), std::vector<std::string>{"C:"});
    for (const std::string &path :
         {std::string("Q:\\x"), std::string("Q:x"), std::string("Q:"), std::string("C:\\x\0", 5)}) {
        EXPECT_FALSE(fs::exists(hostPath(path))) << path;
        EXPECT_FALSE(fs::is_directory(hostPath(path).parent_path())) << path;
        EXPECT_FALSE(changeDirectory(path)) << path;
    }
    EXPECT_EQ(currentDirectory(), "C:\\");
}

TEST_F(Paths, ofNamesBeyondTheCodePageStayUsable)
{
    drive.add("日/Ünï.ods", "1");
    const fs::path second = drive.add("日/本.ods", "2");
    const fs::path first = drive.add("日/日.ods", "1");
    EXPECT_EQ(lookedUp("C:\\?\\\xDCN\xCF.ODS"), "日/Ünï.ods");
    EXPECT_EQ(lookedUp("C:\\?\\?.ODS"), "日/日.ods") << "the first in byte order";
    EXPECT_EQ(drivePath(second), "C:\\?\\?.ods");
    EXPECT_EQ(hostPath("C:\\?\\?.ODS"), second) << "the chosen file, not the first that matches";
    EXPECT_EQ(drivePath(first), "C:\\?\\?.ods");
    EXPECT_EQ(hostPath("C:\\?\\?.ods"), first);
    const fs::path unwritten = drive.root() / "new語.ods";
    EXPECT_EQ(hostPath(drivePath(unwritten)), unwritten);
}

TEST_F(Paths, ofHostNamesWithSeparatorsStayOneName)
{
    const fs::path odd = drive.add("a\\b:c.ods");
    EXPECT_EQ(drivePath(odd), "C:\\a?b?c.ods");
    EXPECT_EQ(hostPath("C:\\A?B?C.ODS"), odd);
    const fs::path broken = drive.add("bad\xFFname");
    EXPECT_EQ(hostPath(drivePath(broken)), broken);
}

TEST_F(Paths, followTheCodePage)
{
    drive.add("жук.ods");
    setCodePage(1251);
    EXPECT_EQ(lookedUp("C:\\\xC6\xD3\xCA.ODS"), "жук.ods");
    setCodePage(1252);
    EXPECT_EQ(lookedUp("C:\\???.ODS"), "жук.ods");
}

TEST_F(Paths, listSubdirectories)
{
    for (const char *name : {"b/x", "A/x", "C/x", ".hidden/x", "file"})
        drive.add(name);
    fs::create_directory_symlink("b", drive.root() / "D");
    EXPECT_EQ(subdirectories("C:\\"), (std::vector<std::string>{"A", "b", "C", "D"}));
    EXPECT_TRUE(subdirectories("C:\\NONE").empty());
    EXPECT_TRUE(subdirectories("C:\\file").empty());
}

TEST(Media, areReadFromTheMountTable)
{
    std::istringstream table("/dev/sda1 / ext4 rw 0 0\n"
                             "/dev/sdb1 /media/ann/USB\\040STICK vfat rw 0 0\n"
                             "/dev/sdb1 /media/ann/USB\\040STICK vfat rw 0 0\n"
                             "tmpfs /media tmpfs rw 0 0\n"
                             "tmpfs /media/ann tmpfs rw 0 0\n"
                             "x /media/ann/a/b ext4 rw 0 0\n"
                             "x /run/media/bob/cd\\134 iso9660 ro 0 0\n"
                             "x /run/user/0 tmpfs rw 0 0\n"
                             "x /mnt/data ext4 rw 0 0\n"
                             "x /mntx/data ext4 rw 0 0\n"
                             "broken\n\n");
    EXPECT_EQ(mountedMedia(table), (std::vector<fs::path>{"/media/ann/USB STICK", "/run/media/bob/cd\\", "/mnt/data"}));
}

} // namespace corvanta
