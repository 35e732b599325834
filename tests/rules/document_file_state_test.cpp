#include "document/encoding.h"
#include "document/file_state.h"
#include "platform/paths.h"
#include "tests/support/fresh_page.h"
#include "tests/support/samples.h"
#include "tests/support/scripted_asking.h"

namespace corvanta {

namespace {

constexpr const char *changed = "Another program has changed C:\\A\\MENU.ODS since it was read.";
constexpr const char *changedCaptions = "&Overwrite|Save &elsewhere...|Cancel";

class FileState : public FreshPage {
protected:
    FileState()
    {
        editing().msgflag = false;
        drive.add("A/MENU.ODS", samples::sample("menu.ods"));
        drive.add("B/MENU.ODS", "another page of the same name");
        changeDirectory("C:\\A");
        openPage("C:\\A\\MENU.ODS");
        edit("mine");
    }

    static void edit(const char *caption)
    {
        page().pgcaption = caption;
        pageEdited("Page properties");
    }
    std::string bytes(const char *name) { return hostBytes(drive.root() / name); }

    TemporaryDrive drive;
    ScriptedAsking user;
};

} // namespace

TEST_F(FileState, AChangedFileIsReplacedOnlyAfterAQuestion)
{
    drive.add("A/MENU.ODS", "theirs");
    user.expectChoice(changed, "Saving File", changedCaptions, 2);
    EXPECT_FALSE(savePage());
    EXPECT_EQ(bytes("A/MENU.ODS"), "theirs");
    EXPECT_TRUE(editing().pagedirty);

    user.expectChoice(changed, "Saving File", changedCaptions, 1);
    user.expectFileDialog(FileDialog::Kind::Save, "C:\\A\\COPY.ODS");
    EXPECT_TRUE(savePage());
    EXPECT_EQ(bytes("A/MENU.ODS"), "theirs");
    EXPECT_EQ(bytes("A/COPY.ODS"), serialisePage(page()));

    openPage("C:\\A\\COPY.ODS");
    edit("again");
    drive.add("A/COPY.ODS", bytes("A/COPY.ODS")); // touched only
    EXPECT_TRUE(savePage());
    EXPECT_TRUE(savePage());
}

TEST_F(FileState, OverwritingIsTheAuthorsChoice)
{
    drive.add("A/MENU.ODS", "theirs");
    user.expectChoice(changed, "Saving File", changedCaptions, 0);
    EXPECT_TRUE(savePage());
    EXPECT_EQ(bytes("A/MENU.ODS"), serialisePage(page()));
    std::filesystem::remove(drive.root() / "A/MENU.ODS");
    EXPECT_TRUE(savePage()); // nothing is replaced
}

TEST_F(FileState, APageIsNotSavedIntoAnotherDirectoryWithoutAQuestion)
{
    changeDirectory("C:\\B");
    const auto expect = [this](std::size_t answer) {
        user.expectChoice("This page was opened as C:\\A\\MENU.ODS.\nThe current directory is another one now: "
                          "C:\\B\\MENU.ODS",
                          "Saving File", "Save where it was &opened|Save in the &current directory|Cancel", answer);
    };
    const std::string theirs = bytes("B/MENU.ODS");
    expect(2);
    EXPECT_FALSE(savePage());
    expect(0);
    EXPECT_TRUE(savePage());
    EXPECT_EQ(bytes("A/MENU.ODS"), serialisePage(page()));
    EXPECT_EQ(bytes("B/MENU.ODS"), theirs);
    expect(1);
    EXPECT_TRUE(savePage());
    EXPECT_EQ(bytes("B/MENU.ODS"), serialisePage(page()));
    EXPECT_EQ(editing().filetag, "C:\\B\\MENU.ODS");
    EXPECT_TRUE(savePage());
}

TEST_F(FileState, AFileThatChangedIsLoadedAgainButNotOverAnAuthorsChanges)
{
    EXPECT_FALSE(loadAgainIfChanged());
    const auto expect = [this](std::size_t answer) {
        user.expectChoice("Another program has changed C:\\A\\MENU.ODS.\nLoading it again loses your changes.",
                          "Reading File", "&Load again|&Keep my page", answer);
    };
    drive.add("A/MENU.ODS", samples::sample("query.ods"));
    expect(1);
    EXPECT_FALSE(loadAgainIfChanged());
    EXPECT_FALSE(loadAgainIfChanged()); // it was asked
    EXPECT_EQ(page().pgcaption, "mine");
    drive.add("A/MENU.ODS", samples::sample("record.ods"));
    expect(0);
    EXPECT_TRUE(loadAgainIfChanged());
    EXPECT_EQ(serialisePage(page()), samples::sample("record.ods"));
    drive.add("A/MENU.ODS", samples::sample("view.ods"));
    EXPECT_TRUE(loadAgainIfChanged());
    EXPECT_EQ(serialisePage(page()), samples::sample("view.ods"));
}

TEST_F(FileState, WhatOneOpeningHasToTellIsTwoMessages)
{
    Page many;
    createVisual(many, encodeInt16(static_cast<std::int16_t>(Kind::Ticker)));
    std::string text = serialisePage(Page());
    for (int i = 0; i < 6; ++i)
        text += serialiseObject(many, 0);
    drive.add("A/TICKERS.ODS", text);
    editing().msgflag = true;
    const std::string limit = "Only 3 ticker controls allowed per page.", title = "Ticker Maximum Reached";
    user.expectMessage(limit, title, Icon::Information);
    user.expectMessage("2 further messages.", title, Icon::Information);
    openPage("C:\\A\\TICKERS.ODS");
    EXPECT_EQ(objectCount(page()), 3);
}

} // namespace corvanta
