#include "canvas/selection.h"
#include "shell/commands.h"
#include "tests/support/fresh_page.h"
#include "tests/support/scripted_asking.h"

namespace corvanta {

namespace {

class ShellCommands : public FreshPage {
protected:
    ShellCommands()
    {
        documentEvents().edited.listen([this](std::string_view) { ++edits; });
    }

    void add(int count)
    {
        for (int i = 0; i < count; ++i)
            addObject(Kind::Label);
        editing().pagedirty = false;
    }
    int edits = 0;
};

} // namespace

TEST_F(ShellCommands, DeleteTakesTheMultiSelectionElseTheCurrentObject)
{
    add(6);
    for (std::int16_t i = 0; i < 6; ++i)
        object(i).ptop = i;
    setCurrentObject(4);
    for (const std::int16_t index : {5, 0, 2})
        addToMultiSelection(index);
    runCommand(Command::Delete);
    ASSERT_EQ(objectCount(page()), 3);
    EXPECT_EQ(object(0).ptop, 1);
    EXPECT_EQ(object(1).ptop, 3);
    EXPECT_EQ(editing().curobj, 2);
    EXPECT_EQ(object(2).ptop, 4);
    EXPECT_EQ(edits, 1);

    editing().multcount = 0;
    runCommand(Command::Delete);
    EXPECT_EQ(objectCount(page()), 2);
    EXPECT_EQ(editing().curobj, noObject);
    EXPECT_EQ(edits, 2);
    editing().pagedirty = false;
    runCommand(Command::Delete);
    EXPECT_EQ(objectCount(page()), 2);
    EXPECT_FALSE(editing().pagedirty);
    EXPECT_EQ(edits, 2);
}

TEST_F(ShellCommands, NewAndOpenAskAboutUnsavedChangesFirst)
{
    const TemporaryDrive drive;
    ScriptedAsking user;
    const auto expectQuestion = [&user](Answer answer) {
        user.expectMessage("Save changes to current page?", "Corvanta Form Editor", Icon::Question,
                           Buttons::YesNoCancel, answer);
    };
    page().pgcaption = "kept";
    editing().pagedirty = true;
    expectQuestion(Answer::Cancel);
    runCommand(Command::New);
    expectQuestion(Answer::Cancel);
    runCommand(Command::Open);
    EXPECT_EQ(page().pgcaption, "kept");

    expectQuestion(Answer::No);
    user.expectFileDialog(FileDialog::Kind::Open, std::nullopt);
    runCommand(Command::Open);
    EXPECT_EQ(page().pgcaption, "kept");
    ASSERT_EQ(user.fileDialogs.size(), 1U);
    EXPECT_EQ(user.fileDialogs[0].initialDirectory, "C:\\");
    EXPECT_EQ(user.fileDialogs[0].filter, "ODBC Form Files (*.ods)|*.ods|All Files (*.*)|*.*");
    EXPECT_TRUE(user.fileDialogs[0].mustExist);

    expectQuestion(Answer::No);
    runCommand(Command::New);
    EXPECT_EQ(page().pgcaption, "");
}

} // namespace corvanta
