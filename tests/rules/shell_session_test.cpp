#include "platform/help.h"
#include "platform/multimedia.h"
#include "platform/paths.h"
#include "platform/profile.h"
#include "platform/text.h"
#include "shell/commands.h"
#include "shell/directory.h"
#include "shell/session.h"
#include "tests/support/fresh_page.h"
#include "tests/support/scripted_asking.h"

namespace corvanta {

namespace {

// A session without windows: the steps are written down.
class ShellSession : public FreshPage {
protected:
    ShellSession()
    {
        setProfileFolder(drive.root().string());
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
        roomCommands().toggleOdbc = [this](bool on) { log += on ? "odbc " : "noodbc "; };
    }
    ~ShellSession() override
    {
        sessionSteps() = {};
        roomCommands() = {};
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
    runCommand(Command::ShowBindings);
    endSession();
    EXPECT_EQ(log, "Close all quit noodbc unload ");
    EXPECT_NE(hostBytes(drive.root() / "CORVANTA.INI").find("MainTop= 1440"), std::string::npos);

    markStatusPanel(true);
    markBindings(false);
    places = {};
    startSession("");
    EXPECT_EQ(places.MainTop, 1440);
    EXPECT_FALSE(pageMenuMarks().statusPanel);
    EXPECT_TRUE(commandChecked(Command::ShowBindings));
    markBindings(false);
    EXPECT_TRUE(pageMenuMarks().mockToolbar);
}

TEST_F(ShellSession, ChosenDirectoryIsNormalisedAndReloadsMediaOnceChanged)
{
    drive.add("pages/x.txt");
    page().sndfn = "gong.wav";
    multimediaCommand() = [this](const std::string &command) {
        log += command + ";";
        return 0;
    };
    choosePageDirectory(" c:\\pages ");
    EXPECT_EQ(editing().curdir, "C:\\PAGES\\");
    EXPECT_EQ(upperCase(currentDirectory()), "C:\\PAGES");
    choosePageDirectory("C:\\Pages\\");
    EXPECT_EQ(log, "Play C:\\PAGES\\gong.wav;");
    ScriptedAsking user;
    user.expectMessage("Drive X: is invalid!", "Error");
    user.expectMessage("Drive X: is invalid!", "Error");
    EXPECT_EQ(upperCase(chosenDrive("X:").path), "C:\\PAGES");
    EXPECT_EQ(upperCase(enteredPath("X:\\GONE").path), "C:\\PAGES");
    EXPECT_EQ(chosenDrive("C:").path, "C:\\");
}

TEST(ShellPlaces, WindowsStayOnTheScreen)
{
    const WindowSettings stored{
        .MainTop = -300, .MainLeft = 14000, .PageTop = 9000, .PageLeft = 100, .PageHeight = 6000, .PageWidth = 20000};
    const ScreenSizes sizes{
        .mainHeight = 1500, .mainWidth = 9000, .frameHeight = 400, .screenHeight = 12000, .screenWidth = 15000};
    const WindowSettings kept = keptOnScreen(stored, sizes);
    EXPECT_EQ(kept.MainTop, 0);
    EXPECT_EQ(kept.MainLeft, 6000);
    EXPECT_EQ(kept.PageTop, 5600); // the frame's bottom meets the screen's
    EXPECT_EQ(kept.PageLeft, 0);
    EXPECT_EQ(kept.PageHeight, 6000);
    EXPECT_EQ(kept.PageWidth, 15000);
    WindowSettings high = stored;
    high.PageHeight = 20000;
    EXPECT_EQ(keptOnScreen(high, sizes).PageTop, 0);
    EXPECT_EQ(keptOnScreen(high, sizes).PageHeight, 11600);
}

} // namespace corvanta
