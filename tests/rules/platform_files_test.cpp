#include "platform/files.h"
#include "platform/paths.h"
#include "tests/support/temporary_drive.h"

#include <gtest/gtest.h>

#include <csignal>
#include <random>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace corvanta {

namespace {

namespace fs = std::filesystem;

mode_t modeOf(const fs::path &file)
{
    struct stat status = {};
    EXPECT_EQ(stat(file.c_str(), &status), 0) << file;
    return status.st_mode & 07777;
}

std::size_t entryCount(const fs::path &folder)
{
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

// Root may write everywhere, so its tests of permissions run as another user.
class OrdinaryUser {
public:
    explicit OrdinaryUser(const fs::path &home) : root(geteuid() == 0)
    {
        if (root && (chown(home.c_str(), nobody, nobody) != 0 || seteuid(nobody) != 0))
            ADD_FAILURE() << "cannot become an ordinary user";
    }
    ~OrdinaryUser()
    {
        if (root && seteuid(0) != 0)
            ADD_FAILURE() << "cannot become root again";
    }

private:
    static constexpr uid_t nobody = 65534;
    bool root;
};

class Files : public testing::Test {
protected:
    TemporaryDrive drive;
};

} // namespace

TEST_F(Files, areReadWhole)
{
    const std::string bytes("a\0b\r\n\x1A\xFF", 7);
    drive.add("X.ODS", bytes);
    FileContent content = readFile("C:\\x.ods", 7);
    EXPECT_EQ(content.bytes, bytes);
    EXPECT_EQ(content.length, 7u);
    EXPECT_FALSE(content.tooLarge || content.missing || !content.error.empty());
    content = readFile("C:\\x.ods", 6);
    EXPECT_TRUE(content.tooLarge);
    EXPECT_EQ(content.length, 7u);
    EXPECT_EQ(content.bytes, "");
    drive.add("LONG", std::string(200000, 'x'));
    EXPECT_EQ(readFile("C:\\LONG", UINTMAX_MAX).bytes, std::string(200000, 'x'));
    drive.add("EMPTY");
    EXPECT_FALSE(readFile("C:\\EMPTY", 0).tooLarge);
}

TEST_F(Files, keepTheirModeAndLink)
{
    const fs::path secret = drive.add("real/Secret.ods", "old");
    fs::permissions(secret, fs::perms(0640));
    fs::create_symlink("real/Secret.ods", drive.root() / "Link.ods");
    EXPECT_EQ(writeFileAtomically("C:\\LINK.ODS", "new"), std::nullopt);
    EXPECT_TRUE(fs::is_symlink(drive.root() / "Link.ods"));
    EXPECT_EQ(hostBytes(secret), "new");
    EXPECT_EQ(modeOf(secret), 0640u);
    EXPECT_EQ(entryCount(drive.root() / "real"), 1u);

    fs::create_symlink("real/fresh.ods", drive.root() / "Dangling.ods");
    EXPECT_EQ(writeFileAtomically("C:\\DANGLING.ODS", "made"), std::nullopt);
    EXPECT_EQ(hostBytes(drive.root() / "real/fresh.ods"), "made");

    fs::create_symlink("Loop", drive.root() / "Loop");
    EXPECT_NE(writeFileAtomically("C:\\Loop", "x"), std::nullopt);
}

TEST_F(Files, thatAreReadOnlyAreReplaced)
{
    const OrdinaryUser user(drive.root());
    const fs::path file = drive.add("X.ODS", "old");
    fs::permissions(file, fs::perms(0444));
    EXPECT_EQ(writeFileAtomically("C:\\X.ODS", "new"), std::nullopt);
    EXPECT_EQ(hostBytes(file), "new");
    EXPECT_EQ(modeOf(file), 0444u);
}

TEST_F(Files, surviveAFullDisk)
{
    if (geteuid() != 0 || mount("none", drive.root().c_str(), "tmpfs", 0, "size=64k,mode=755") != 0)
        GTEST_SKIP() << "needs a small file system";
    const fs::path file = drive.add("X.ODS", "old");
    EXPECT_EQ(writeFileAtomically("C:\\X.ODS", std::string(200000, 'x')), "No space left on device");
    EXPECT_EQ(hostBytes(file), "old");
    EXPECT_EQ(entryCount(drive.root()), 1u);
    EXPECT_EQ(umount(drive.root().c_str()), 0);
}

TEST_F(Files, areWholeAfterAKillAtAnyMoment)
{
    const std::string one(30000, '1'), two(50000, '2');
    const fs::path file = drive.add("X.ODS", one);
    std::minstd_rand random(20);
    bool sawOne = false, sawTwo = false;
    for (int round = 0; round < 200; ++round) {
        const pid_t saver = fork();
        ASSERT_GE(saver, 0);
        if (saver == 0) {
            for (;;) {
                writeFileAtomically("C:\\X.ODS", two);
                writeFileAtomically("C:\\X.ODS", one);
            }
        }
        usleep(random() %
               (4000U + 200U * static_cast<unsigned>(round))); // a busy machine takes longer to come to a save
        kill(saver, SIGKILL);
        ASSERT_EQ(waitpid(saver, nullptr, 0), saver);
        const std::string bytes = hostBytes(file);
        sawOne = sawOne || bytes == one;
        sawTwo = sawTwo || bytes == two;
        ASSERT_TRUE(bytes == one || bytes == two) << "torn in round " << round << ": " << bytes.size() << " bytes";
    }
    EXPECT_TRUE(sawOne && sawTwo) << "the saver never came to save";
}

} // namespace corvanta
