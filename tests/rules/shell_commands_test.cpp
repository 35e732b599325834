#include "canvas/selection.h"
#include "document/events.h"
#include "document/objects.h"
#include "document/page_file.h"
#include "shell/commands.h"
#include "tests/support/scripted_asking.h"

#include <gtest/gtest.h>

#include <set>

namespace corvanta {

namespace {

class ShellCommands : public testing::Test {
protected:
    ShellCommands()
    {
        buildKindRegistry();
        orderedAddMenu();
        documentEvents() = {};
        newPage();
        editing() = {};
        documentEvents().edited = [this] { ++edits; };
    }
    ~ShellCommands() override
    {
        clearObjects();
        editing() = {};
        documentEvents() = {};
        laterCommands() = {};
    }

    void add(int count)
    {
        for (int i = 0; i < count; ++i)
            addObject(Kind::Label);
        editing().pagedirty = false;
    }
    static std::set<Command> enabled(std::initializer_list<Command> asked)
    {
        std::set<Command> result;
        for (const Command command : asked)
            if (commandEnabled(command))
                result.insert(command);
        return result;
    }

    int edits = 0;
};

using Set = std::set<Command>;
constexpr auto selectionCommands = {Command::ObjectList, Command::ObjectProperties, Command::Align,
                                    Command::Animate,    Command::Duplicate,        Command::SaveObject,
                                    Command::Delete,     Command::LoadObject};

} // namespace

TEST(ShellMenus, RowsStandInTheirMenusWithCaptionsAndHelp)
{
    std::string tree;
    for (const MenuRow &row : menuTable())
        tree += std::string(row.parent) + ">" + row.element + " " + row.caption +
                (row.helpId ? " " + std::to_string(row.helpId) : "") + "\n";
    EXPECT_EQ(tree, ">filemenu &File 4\nfilemenu>newmenu &New\nfilemenu>openmenu &Open 103000\n"
                    "filemenu>savemenu &Save 105000\nfilemenu>saveasmenu Save &As... 105000\n"
                    "filemenu>tohtml Export to HTML\nfilemenu>mnudir &Directory... 5\nfilemenu>dashmenu1 -\n"
                    "filemenu>exitmenu E&xit\n"
                    ">pagemenu &Page 6\npagemenu>fpropsmenu &Properties 7\npagemenu>dashmenu2 -\n"
                    "pagemenu>mockmenu &Mock Toolbar\npagemenu>smenu &Status Panel\npagemenu>odbcnames &ODBC Toolbar\n"
                    ">objmenu &Object 8\nobjmenu>listmenu &List 9\nobjmenu>opropsmenu &Properties 10\n"
                    "objmenu>addmenu &Add\naddmenu>addobjmenu (place-holder)\nobjmenu>alimenu Align Objects\n"
                    "alimenu>lftalmnu Left\nalimenu>rtalmnu Right\nalimenu>tpalmenu Top\nalimenu>btalmenu Bottom\n"
                    "objmenu>animenu A&nimate\nobjmenu>dashguya -\nobjmenu>odupemenu D&uplicate In Place\n"
                    "objmenu>oloadmenu L&oad...\nobjmenu>osavemenu &Save...\nobjmenu>dashguyb -\n"
                    "objmenu>delmenu &Delete\n"
                    ">helpmenu &Help 1\nhelpmenu>contmenu &Contents 1\nhelpmenu>searchmenu &Search For Help On...\n"
                    "helpmenu>dashmenu4 -\nhelpmenu>aboutmenu &About Corvanta Form Editor...\n");
}

TEST_F(ShellCommands, SelectionSwitchesObjectCommands)
{
    laterCommands().showObjectList = laterCommands().openObjectProperties = laterCommands().playAnimation = [] {};
    EXPECT_EQ(enabled(selectionCommands), Set{Command::LoadObject});
    add(2);
    EXPECT_EQ(enabled(selectionCommands), (Set{Command::LoadObject, Command::ObjectList}));
    setCurrentObject(0);
    const Set withCurrent{Command::LoadObject, Command::ObjectList, Command::ObjectProperties,
                          Command::Duplicate,  Command::SaveObject, Command::Delete};
    EXPECT_EQ(enabled(selectionCommands), withCurrent);
    addToMultiSelection(1);
    EXPECT_TRUE(commandEnabled(Command::Align));
    clearMultiSelection();
    setCurrentObject(addObject(Kind::Animation));
    EXPECT_TRUE(commandEnabled(Command::Animate));
    EXPECT_FALSE(commandEnabled(Command::Align));
    newPage();
    EXPECT_FALSE(commandEnabled(Command::ObjectList));
}

TEST_F(ShellCommands, CommandsWithoutTheirRoomStayDisabled)
{
    add(1);
    setCurrentObject(0);
    const auto later = {Command::ExportHtml,   Command::Directory,  Command::PageProperties,
                        Command::OdbcToolbar,  Command::ObjectList, Command::ObjectProperties,
                        Command::HelpContents, Command::HelpSearch, Command::About};
    EXPECT_EQ(enabled(later), Set{});
    LaterCommands &rooms = laterCommands();
    rooms.exportHtml = rooms.showDirectory = rooms.openPageProperties = rooms.showObjectList =
        rooms.openObjectProperties = rooms.helpContents = rooms.helpSearch = rooms.about = [] {};
    rooms.toggleOdbc = [](bool) {};
    EXPECT_EQ(enabled(later), Set(later));
}

TEST_F(ShellCommands, DeleteTakesTheMultiSelectionElseTheCurrentObject)
{
    add(6);
    for (std::int16_t i = 0; i < 6; ++i)
        page().objects[static_cast<std::size_t>(i)].ptop = i;
    setCurrentObject(4);
    for (const std::int16_t index : {5, 0, 2})
        addToMultiSelection(index);
    runCommand(Command::Delete);
    ASSERT_EQ(objectCount(page()), 3);
    EXPECT_EQ(page().objects[0].ptop, 1);
    EXPECT_EQ(page().objects[1].ptop, 3);
    EXPECT_EQ(editing().curobj, 2);
    EXPECT_EQ(page().objects[2].ptop, 4);
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

TEST_F(ShellCommands, AddItemsMakeObjectsOfTheirKind)
{
    for (const RegisteredKind &kind : orderedAddMenu()) {
        addFromMenu(kind.menuIndex);
        EXPECT_EQ(page().objects[static_cast<std::size_t>(objectCount(page()) - 1)].kind, kind.code);
    }
    EXPECT_EQ(objectCount(page()), 10);
    EXPECT_EQ(page().objects[0].kind, 1);
    EXPECT_EQ(page().objects[9].kind, 13);
    EXPECT_TRUE(editing().pagedirty);
    addFromMenu(0);
    addFromMenu(11);
    EXPECT_EQ(objectCount(page()), 10);
}

TEST_F(ShellCommands, AlignModesFollowTheMenu)
{
    add(2);
    setObjectGeometry(0, 100, 200, 30, 80);
    setCurrentObject(0);
    addToMultiSelection(1);
    const auto aligned = [](Command command) {
        setObjectGeometry(1, 1, 2, 10, 20);
        runCommand(command);
        return std::pair(page().objects[1].ptop, page().objects[1].pleft);
    };
    using Place = std::pair<std::int16_t, std::int16_t>;
    EXPECT_EQ(aligned(Command::AlignLeft), Place(1, 200));
    EXPECT_EQ(aligned(Command::AlignRight), Place(1, 260));
    EXPECT_EQ(aligned(Command::AlignTop), Place(100, 2));
    EXPECT_EQ(aligned(Command::AlignBottom), Place(120, 2));
}

TEST_F(ShellCommands, NewAndOpenAskAboutUnsavedChangesFirst)
{
    const TemporaryDrive drive;
    ScriptedAsking user;
    const auto expectQuestion = [&user](Answer answer) {
        user.expectMessage("Save changes to current page?", "Corvanta Form Editor", Icon::Question,
                           Buttons::YesNoCancel, answer);
    };
    editing().curdir = "C:\\";
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

TEST_F(ShellCommands, CheckMarksShowAndHideWhatTheyStandFor)
{
    bool shown = true;
    commandEvents().showMockToolbar = [&shown](bool on) { shown = on; };
    runCommand(Command::MockToolbar);
    EXPECT_FALSE(shown);
    EXPECT_FALSE(commandChecked(Command::MockToolbar));
    EXPECT_TRUE(commandChecked(Command::StatusPanel));
    runCommand(Command::MockToolbar);
    EXPECT_TRUE(shown);

    int calls = 0;
    laterCommands().toggleOdbc = [&calls](bool) { ++calls; };
    runCommand(Command::OdbcToolbar);
    EXPECT_TRUE(commandChecked(Command::OdbcToolbar));
    odbcToolbarClosed();
    EXPECT_FALSE(commandChecked(Command::OdbcToolbar));
    EXPECT_EQ(calls, 1);
    commandEvents() = {};
}

} // namespace corvanta
