#include "platform/help.h"
#include "platform/multimedia.h"
#include "platform/paths.h"
#include "tests/support/scripted_asking.h"
#include "tests/support/stepped_clock.h"
#include "tests/support/temporary_drive.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace corvanta {

TEST(AskingWithoutDesktop, asksNobody)
{
    EXPECT_EQ(showMessage({"Save?", "T", Icon::Question, Buttons::YesNoCancel}), Answer::Cancel);
    EXPECT_EQ(showMessage({"Done", "T"}), Answer::Ok);
    EXPECT_EQ(askText("Name:\tNew\told"), "");
    EXPECT_EQ(mciSendString("Play C:\\X.WAV"), 0);
    showHelp(HelpCommand::Contents);
}

TEST(ScriptedAskingTest, answersInOrderAndRecords)
{
    TemporaryDrive drive;
    drive.add("PAGES/MENU.ODS");
    {
        ScriptedAsking user;
        user.expectMessage("Save?", "Editor", Icon::Question, Buttons::YesNoCancel, Answer::No);
        user.expectFileDialog(FileDialog::Kind::Open, "C:\\PAGES\\MENU.ODS");
        user.expectText("Name:\tNew\told", "new");
        EXPECT_EQ(showMessage({"Save?", "Editor", Icon::Question, Buttons::YesNoCancel}), Answer::No);
        FileDialog open;
        open.defaultExtension = "ODS";
        EXPECT_EQ(asking().fileDialog(open), "C:\\PAGES\\MENU.ODS");
        EXPECT_EQ(currentDirectory(), "C:\\PAGES");
        EXPECT_EQ(user.fileDialogs.at(0).defaultExtension, "ODS");
        EXPECT_EQ(askText("Name:\tNew\told"), "new");
    }
    EXPECT_FALSE(asking().messageBox);
}

TEST(ScriptedAskingTest, failsOnUnexpectedAndLeftOverQuestions)
{
    EXPECT_NONFATAL_FAILURE(ScriptedAsking().expectText("Name:", "x"), "Never asked");
    ScriptedAsking user;
    EXPECT_NONFATAL_FAILURE(showExclamation("Oops", "Error"), "Unexpected question");
    user.expectMessage("Oops", "Error");
    EXPECT_NONFATAL_FAILURE(showMessage({"Oops", "Error", Icon::Information}), "another question");
}

TEST(SteppedClockTest, standsStillAndWraps)
{
    SteppedClock clock(0xFFFFFFF0);
    const std::uint32_t start = tickCount();
    clock.step(32);
    EXPECT_EQ(tickCount() - start, 32u);
}

} // namespace corvanta
