#include "canvas/events.h"
#include "canvas/selection.h"
#include "document/events.h"
#include "document/objects.h"
#include "document/page_file.h"
#include "platform/multimedia.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "shell/directory.h"
#include "shell/input.h"
#include "shell/object_list.h"
#include "tests/support/scripted_asking.h"

#include <gtest/gtest.h>

namespace corvanta {

namespace {

class ShellDirectory : public testing::Test {
protected:
    ShellDirectory()
    {
        documentEvents() = {};
        newPage();
        editing() = {};
        page().sndfn = "gong.wav";
        multimediaCommand() = [this](const std::string &command) {
            played += command + ";";
            return 0;
        };
    }
    ~ShellDirectory() override
    {
        multimediaCommand() = {};
        newPage();
        editing() = {};
    }

    TemporaryDrive drive;
    std::string played;
};

std::string shown(const std::string &path)
{
    std::string rows;
    for (const DirectoryRow &row : directoryRows(path))
        rows += std::string(static_cast<std::size_t>(row.depth), '.') + row.name + (row.open ? "*" : "") + "=" +
                row.path + ";";
    return rows;
}

class ShellObjectList : public testing::Test {
protected:
    ShellObjectList()
    {
        documentEvents() = {};
        newPage();
        editing() = {};
    }
    ~ShellObjectList() override
    {
        clearObjects();
        editing() = {};
        canvasEvents() = {};
    }

    static std::string rowOf(Kind kind, std::int16_t top, std::int16_t left)
    {
        const std::int16_t index = addObject(kind);
        setObjectGeometry(index, top, left, 20, 30);
        return objectListRow(page(), index);
    }
};

} // namespace

TEST_F(ShellDirectory, ChosenDirectoryIsNormalisedAndReloadsMediaOnceChanged)
{
    drive.add("pages/x.txt");
    choosePageDirectory(" c:\\pages ");
    EXPECT_EQ(editing().curdir, "C:\\PAGES\\");
    EXPECT_EQ(upperCase(currentDirectory()), "C:\\PAGES");
    EXPECT_EQ(played, "Play C:\\PAGES\\gong.wav;");
    choosePageDirectory("C:\\Pages\\");
    EXPECT_EQ(played, "Play C:\\PAGES\\gong.wav;");
    EXPECT_EQ(normalDirectory("c:\\"), "C:\\");
}

TEST_F(ShellDirectory, OpensWhereThePageDirectoryCanBeRead)
{
    drive.add("pages/x.txt");
    drive.add("here/x.txt");
    changeDirectory("C:\\here");
    editing().curdir = "C:\\pages\\";
    EXPECT_EQ(openedDirectoryChoice().path, "C:\\pages");
    EXPECT_EQ(openedDirectoryChoice().drive, "C:");
    for (const char *unusable : {"", "C:\\gone\\", "X:\\"}) {
        editing().curdir = unusable;
        EXPECT_EQ(openedDirectoryChoice().path, "C:\\here") << unusable;
    }
}

TEST_F(ShellDirectory, RowsLeadFromTheRootToTheFoldersOfThePath)
{
    drive.add("a/b/d/x.txt");
    drive.add("a/b/C/x.txt");
    EXPECT_EQ(shown("C:\\a\\b"), "C:\\*=C:\\;.a*=C:\\a;..b*=C:\\a\\b;...C=C:\\a\\b\\C;...d=C:\\a\\b\\d;");
    EXPECT_EQ(shown("C:\\"), "C:\\*=C:\\;.a=C:\\a;");
}

TEST_F(ShellDirectory, InvalidDriveIsToldAndUndone)
{
    drive.add("here/x.txt");
    changeDirectory("C:\\here");
    ScriptedAsking user;
    user.expectMessage("Drive X: is invalid!", "Error");
    EXPECT_EQ(chosenDrive("X:").path, "C:\\here");
    EXPECT_EQ(chosenDrive("C:").path, "C:\\");
}

TEST_F(ShellObjectList, RowsLineUpByTheLengthOfTheName)
{
    EXPECT_EQ(rowOf(Kind::Label, 10, 20), "Label\t\t10\t20");
    EXPECT_EQ(rowOf(Kind::ComboBox, 10, 20), "Combo Box\t10\t20");
    EXPECT_EQ(rowOf(Kind::HotSpot, -5, 0), "Hot Spot\t\t-5\t0");
    ObjectRecord unknown;
    unknown.kind = 99;
    EXPECT_EQ(objectListRow(page(), appendObject(page(), unknown)), "\t\t0\t0");
}

TEST_F(ShellObjectList, RowsChooseAndDeleteTheirObjects)
{
    addObject(Kind::Label);
    addObject(Kind::Button);
    int handles = 0;
    canvasEvents().showTrackers = [&handles](const Rect &) { ++handles; };
    chooseListedObject(1);
    EXPECT_EQ(editing().curobj, 1);
    chooseListedObject(1);
    chooseListedObject(noObject);
    EXPECT_EQ(editing().curobj, 1);
    EXPECT_EQ(handles, 1);
    deleteListedObject(1);
    EXPECT_EQ(editing().curobj, noObject);
    EXPECT_EQ(objectCount(page()), 1);
}

TEST(ShellInput, TextsAndWhatOkTakes)
{
    const InputTexts texts = inputTexts("File &name:\tDownload\told.txt");
    EXPECT_EQ(texts.prompt, "File &name:");
    EXPECT_EQ(texts.caption, "Download");
    EXPECT_EQ(texts.text, "old.txt");
    EXPECT_EQ(inputTexts("Prompt").text, "");
    EXPECT_FALSE(inputAccepted(""));
    EXPECT_FALSE(inputAccepted("   "));
    EXPECT_TRUE(inputAccepted(" a"));
}

} // namespace corvanta
