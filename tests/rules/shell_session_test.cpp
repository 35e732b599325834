#include "document/events.h"
#include "document/objects.h"
#include "document/page_file.h"
#include "platform/help.h"
#include "platform/multimedia.h"
#include "platform/paths.h"
#include "platform/profile.h"
#include "shell/commands.h"
#include "shell/session.h"
#include "tests/support/samples.h"
#include "tests/support/scripted_asking.h"

#include <gtest/gtest.h>

namespace corvanta {

namespace {

// A session without windows: the steps are written down.
class ShellSession : public testing::Test {
protected:
    ShellSession()
    {
        setProfileFolder(drive.root().string());
        documentEvents() = {};
        editing() = {};
        SessionSteps &steps = sessionSteps();
        steps.loadCanvas = [this] { log += "load "; };
        steps.buildAddMenu = [this] { log += "add "; };
        steps.windowPlaces = [this] { return places; };
        steps.placeWindows = [this](const WindowSettings &stored) {
            log += "place ";
            places = stored;
        };
        steps.showCanvas = [this] { log += "show "; };
        steps.unloadCanvas = [this] { log += "unload "; };
        laterCommands().toggleOdbc = [this](bool on) { log += on ? "odbc " : "noodbc "; };
    }
    ~ShellSession() override
    {
        clearObjects();
        editing() = {};
        sessionSteps() = {};
        documentEvents() = {};
        laterCommands() = {};
        multimediaCommand() = {};
        helpCommand() = {};
        odbcToolbarClosed();
        markStatusPanel(true);
        setProfileFolder("/dev/null/nothing");
    }

    TemporaryDrive drive;
    WindowSettings places;
    std::string log;
};

std::string joined(const CommandLineFile &file) { return file.directory + "|" + file.name; }

} // namespace

TEST_F(ShellSession, CommandLineTakesPathsOfTheHostAndOfDrives)
{
    EXPECT_EQ(joined(commandLineFile("")), "|");
    EXPECT_EQ(joined(commandLineFile("C:\\PAGES\\MENU.ODS")), "C:\\PAGES\\|MENU.ODS");
    EXPECT_EQ(joined(commandLineFile("C:\\MENU.ODS")), "C:\\|MENU.ODS");
    EXPECT_EQ(joined(commandLineFile("pages\\menu.ods")), "C:\\pages\\|menu.ods");
    EXPECT_EQ(joined(commandLineFile("c:/pages/menu.ods")), "c:\\pages\\|menu.ods");
    EXPECT_EQ(joined(commandLineFile("menu.ods")), "|menu.ods");
    const auto page = drive.add("pages/menu.ods", "x");
    EXPECT_EQ(joined(commandLineFile(page.string())), "C:\\pages\\|menu.ods");
    EXPECT_EQ(joined(commandLineFile("caf\xC3\xA9.ods")), "|caf\xE9.ods");
}

TEST_F(ShellSession, PageFileOfTheCommandLineIsOpenedWithItsDirectory)
{
    drive.add("PAGES/MENU.ODS", samples::sample("menu.ods"));
    std::string seenBefore;
    documentEvents().fileChanged = [&] {
        if (!editing().filetag.empty())
            seenBefore = editing().curdir + "," + currentDirectory();
    };
    startSession("C:\\PAGES\\MENU.ODS");
    EXPECT_EQ(seenBefore, "C:\\PAGES\\,C:\\PAGES");
    EXPECT_EQ(log, "load add place show odbc ");
    EXPECT_EQ(editing().curdir, "C:\\PAGES\\");
    EXPECT_EQ(filePanelCaption(), "MENU.ODS");
    EXPECT_EQ(serialisePage(page()), samples::sample("menu.ods"));
    EXPECT_FALSE(editing().pagedirty);
}

TEST_F(ShellSession, BareFileNameLeavesThePageDirectory)
{
    drive.add("HERE/menu.ods", samples::sample("menu.ods"));
    drive.add("SET/other.txt");
    WritePrivateProfileString("Corvanta Page Editor", "DefaultPath", "C:\\SET\\", "CORVANTA.INI");
    changeDirectory("C:\\HERE");
    startSession("menu.ods");
    EXPECT_EQ(serialisePage(page()), samples::sample("menu.ods"));
    EXPECT_EQ(editing().curdir, "C:\\SET\\");
    EXPECT_EQ(editing().filetag, "C:\\HERE\\menu.ods");
}

TEST_F(ShellSession, MissingPageFileLeavesAnEmptyPageUnderItsName)
{
    ScriptedAsking user;
    user.expectMessage("File doesn't exist.", "Reading File");
    sessionSteps().loadCanvas = [] { editing().msgflag = true; };
    startSession("C:\\GONE.ODS");
    EXPECT_EQ(objectCount(page()), 0);
    EXPECT_EQ(filePanelCaption(), "GONE.ODS");
    EXPECT_FALSE(fileExists("C:\\GONE.ODS"));
}

TEST_F(ShellSession, CanvasIsLoadedOnceAndEverythingEndsInOrder)
{
    startSession("");
    newPage();
    EXPECT_EQ(log, "load add place show odbc ");
    log.clear();
    addObject(Kind::Button);
    multimediaCommand() = [this](const std::string &command) {
        log += command + " ";
        return 0;
    };
    helpCommand() = [this](HelpCommand command, long) {
        log += command == HelpCommand::Quit && objectCount(page()) == 0 ? "quit " : "? ";
    };
    places.MainTop = 1440;
    markStatusPanel(false);
    endSession();
    EXPECT_EQ(log, "Close all quit noodbc unload ");
    EXPECT_NE(hostBytes(drive.root() / "CORVANTA.INI").find("MainTop= 1440"), std::string::npos);

    markStatusPanel(true);
    places = {};
    startSession("");
    EXPECT_EQ(places.MainTop, 1440);
    EXPECT_FALSE(pageMenuMarks().statusPanel);
    EXPECT_TRUE(pageMenuMarks().mockToolbar);
}

TEST(ShellPlaces, WindowsStayOnTheScreen)
{
    WindowSettings stored;
    stored.MainTop = -300;
    stored.MainLeft = 14000;
    stored.PageTop = 9000;
    stored.PageLeft = 100;
    stored.PageHeight = 6000;
    stored.PageWidth = 20000;
    ScreenSizes sizes;
    sizes.mainHeight = 1500;
    sizes.mainWidth = 9000;
    sizes.frameHeight = 400;
    sizes.screenHeight = 12000;
    sizes.screenWidth = 15000;
    const WindowSettings kept = keptOnScreen(stored, sizes);
    EXPECT_EQ(kept.MainTop, 0);
    EXPECT_EQ(kept.MainLeft, 6000);
    EXPECT_EQ(kept.PageTop, 5600); // the frame's bottom meets the screen's
    EXPECT_EQ(kept.PageLeft, 0);
    EXPECT_EQ(kept.PageHeight, 6000);
}

} // namespace corvanta
