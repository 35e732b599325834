#include "document/file_state.h"
#include "document/history.h"
#include "document/recovery.h"
#include "shell/recovery_offer.h"
#include "tests/support/fresh_page.h"
#include "tests/support/samples.h"
#include "tests/support/scripted_asking.h"

#include <fstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace corvanta {

namespace {

class Recovery : public FreshPage {
protected:
    Recovery()
    {
        setenv("XDG_STATE_HOME", (drive.root() / "state").c_str(), 1);
        drive.add("MENU.ODS", samples::sample("menu.ods"));
        startHistory();
        newPage();
    }
    ~Recovery() override
    {
        stopRecovery(RecoveryFile::Remove);
        stopHistory();
    }

    void start()
    {
        startRecovery(folder(), [this](Job job) { soon = std::move(job); });
    }
    void runSoon()
    {
        if (const Job job = std::exchange(soon, nullptr))
            job();
        flushRecovery();
    }
    static void edit(const char *caption)
    {
        page().pgcaption = caption;
        pageEdited("Page properties");
    }
    // Another process edits the page and dies without a word.
    void leaveALostPage(const char *caption)
    {
        const pid_t child = fork();
        if (child == 0) {
            start();
            openPage("C:\\MENU.ODS");
            edit(caption);
            runSoon();
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
    }
    static std::filesystem::path folder() { return recoveryFolder(); }
    static std::vector<std::filesystem::path> files(const char *extension)
    {
        std::vector<std::filesystem::path> found;
        for (const auto &entry : std::filesystem::directory_iterator(folder()))
            if (entry.path().extension() == extension)
                found.push_back(entry.path());
        return found;
    }

    TemporaryDrive drive;
    Job soon;
};

} // namespace

TEST_F(Recovery, TheFileFollowsThePage)
{
    start();
    openPage("C:\\MENU.ODS");
    EXPECT_FALSE(soon);
    edit("one");
    edit("two");
    page().pgcaption = "half of an act, whose question is open";
    runSoon();
    EXPECT_EQ(hostBytes(files(".page").at(0)).find("half of"), std::string::npos);
    page().pgcaption = "two";
    ASSERT_EQ(files(".page").size(), 1U);
    struct stat status;
    ASSERT_EQ(stat(files(".page")[0].c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
    EXPECT_TRUE(lostPages(folder()).empty()) << "an editor that lives has lost nothing";
    ASSERT_TRUE(savePage());
    flushRecovery();
    EXPECT_TRUE(files(".page").empty());
    for (const bool keep : {false, true}) {
        edit("three");
        runSoon();
        stopRecovery(keep ? RecoveryFile::Keep : RecoveryFile::Remove);
        EXPECT_EQ(files(".page").size(), keep ? 1U : 0U);
        start();
    }
}

TEST_F(Recovery, WhatADeadEditorLeftIsOffered)
{
    ScriptedAsking user;
    leaveALostPage("lost");
    start();
    auto lost = lostPages(folder());
    ASSERT_EQ(lost.size(), 1U);
    EXPECT_EQ(lost[0].filetag, "C:\\MENU.ODS");
    const std::string bytes = lost[0].bytes;
    EXPECT_TRUE(lostPages(folder()).empty()) << "it is being offered";
    lost.clear();

    const auto scripted = asking().choice;
    const auto offered = [&user](std::size_t answer) {
        asking().choice = [answer](const MessageBox &box) {
            EXPECT_EQ(box.captions, (std::vector<std::string>{"&Recover", "&Discard", "&Later"}));
            EXPECT_NE(box.text.find("C:\\MENU.ODS"), std::string::npos);
            return answer;
        };
        offerLostPages();
    };
    offered(2);
    offered(0);
    EXPECT_EQ(serialisePage(page()), bytes);
    EXPECT_EQ(page().pgcaption, "lost");
    EXPECT_EQ(editing().filetag, "C:\\MENU.ODS");
    EXPECT_TRUE(editing().pagedirty);
    EXPECT_FALSE(undoEdit()) << "there is nothing before it";
    drive.add("MENU.ODS", "theirs");
    user.expectChoice("Another program has changed C:\\MENU.ODS since it was read.", "Saving File",
                      "&Overwrite|Save &elsewhere...|Cancel", 2);
    asking().choice = scripted;
    EXPECT_FALSE(savePage());
    EXPECT_EQ(files(".page").size(), 1U) << "its own recovery file now";
    stopRecovery(RecoveryFile::Remove);
    leaveALostPage("again");
    offered(1);
    EXPECT_TRUE(files(".page").empty());
}

TEST_F(Recovery, ARecoveredPageKnowsThatItsFileIsDamaged)
{
    drive.add("MENU.ODS", samples::sample("menu.ods").substr(0, 700));
    leaveALostPage("lost");
    recoverPage(lostPages(folder()).at(0));
    EXPECT_TRUE(fileDamage());
}

TEST_F(Recovery, DamagedFilesAreNoPagesAndStay)
{
    leaveALostPage("lost");
    const auto file = files(".page").at(0);
    const std::string whole = hostBytes(file);
    for (const std::size_t length : {std::size_t{0}, std::size_t{10}, std::size_t{21}}) {
        std::ofstream(file, std::ios::binary) << whole.substr(0, length);
        EXPECT_TRUE(lostPages(folder()).empty()) << length;
        EXPECT_TRUE(std::filesystem::exists(file));
    }
    startRecovery("/dev/null/nowhere", [](const Job &) { FAIL(); }); // no folder: no recovery
    edit("x");
}

} // namespace corvanta
