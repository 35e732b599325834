#include "shell/menu_table.h"

#include <algorithm>
#include <string_view>

namespace corvanta {

namespace {

constexpr MenuRow rows[] = {
    {"filemenu", "&File", 4, Command::None, ""},
    {"newmenu", "&New", 0, Command::New, "filemenu"},
    {"openmenu", "&Open", 103000, Command::Open, "filemenu"},
    {"savemenu", "&Save", 105000, Command::Save, "filemenu"},
    {"saveasmenu", "Save &As...", 105000, Command::SaveAs, "filemenu"},
    {"tohtml", "Export to HTML", 0, Command::ExportHtml, "filemenu"},
    {"mnudir", "&Directory...", 5, Command::Directory, "filemenu"},
    {"dashmenu1", "-", 0, Command::None, "filemenu"},
    {"exitmenu", "E&xit", 0, Command::Exit, "filemenu"},
    {"pagemenu", "&Page", 6, Command::None, ""},
    {"fpropsmenu", "&Properties", 7, Command::PageProperties, "pagemenu"},
    {"dashmenu2", "-", 0, Command::None, "pagemenu"},
    {"mockmenu", "&Mock Toolbar", 0, Command::MockToolbar, "pagemenu"},
    {"smenu", "&Status Panel", 0, Command::StatusPanel, "pagemenu"},
    {"odbcnames", "&ODBC Toolbar", 0, Command::OdbcToolbar, "pagemenu"},
    {"objmenu", "&Object", 8, Command::None, ""},
    {"listmenu", "&List", 9, Command::ObjectList, "objmenu"},
    {"opropsmenu", "&Properties", 10, Command::ObjectProperties, "objmenu"},
    {"addmenu", "&Add", 0, Command::None, "objmenu"},
    {"addobjmenu", "(place-holder)", 0, Command::Add, "addmenu"},
    {"alimenu", "Align Objects", 0, Command::Align, "objmenu"},
    {"lftalmnu", "Left", 0, Command::AlignLeft, "alimenu"},
    {"rtalmnu", "Right", 0, Command::AlignRight, "alimenu"},
    {"tpalmenu", "Top", 0, Command::AlignTop, "alimenu"},
    {"btalmenu", "Bottom", 0, Command::AlignBottom, "alimenu"},
    {"animenu", "A&nimate", 0, Command::Animate, "objmenu"},
    {"dashguya", "-", 0, Command::None, "objmenu"},
    {"odupemenu", "D&uplicate In Place", 0, Command::Duplicate, "objmenu"},
    {"oloadmenu", "L&oad...", 0, Command::LoadObject, "objmenu"},
    {"osavemenu", "&Save...", 0, Command::SaveObject, "objmenu"},
    {"dashguyb", "-", 0, Command::None, "objmenu"},
    {"delmenu", "&Delete", 0, Command::Delete, "objmenu"},
    {"helpmenu", "&Help", 1, Command::None, ""},
    {"contmenu", "&Contents", 1, Command::HelpContents, "helpmenu"},
    {"searchmenu", "&Search For Help On...", 0, Command::HelpSearch, "helpmenu"},
    {"dashmenu4", "-", 0, Command::None, "helpmenu"},
    {"aboutmenu", "&About Corvanta Form Editor...", 0, Command::About, "helpmenu"},
};

constexpr MenuRow contextRows[] = {
    {"cundo", "&Undo", 0, Command::Undo, ""},
    {"credo", "&Redo", 0, Command::Redo, ""},
    {"cdash1", "-", 0, Command::None, ""},
    {"ccut", "Cu&t", 0, Command::Cut, ""},
    {"ccopy", "&Copy", 0, Command::Copy, ""},
    {"cpaste", "&Paste Here", 0, Command::Paste, ""},
    {"cdupe", "D&uplicate In Place", 0, Command::Duplicate, ""},
    {"cdelete", "&Delete", 0, Command::Delete, ""},
    {"cdash2", "-", 0, Command::None, ""},
    {"cfront", "Bring to &Front", 0, Command::BringToFront, ""},
    {"cback", "Send to &Back", 0, Command::SendToBack, ""},
    {"calign", "A&lign", 0, Command::Align, ""},
    {"cleft", "Left", 0, Command::AlignLeft, "calign"},
    {"cright", "Right", 0, Command::AlignRight, "calign"},
    {"ctop", "Top", 0, Command::AlignTop, "calign"},
    {"cbottom", "Bottom", 0, Command::AlignBottom, "calign"},
    {"ctaborder", "Ta&b Order", 0, Command::TabOrder, ""},
    {"cdash3", "-", 0, Command::None, ""},
    {"cadd", "&Add", 0, Command::AddKind, ""},
    {"cload", "L&oad...", 0, Command::LoadObject, ""},
    {"csave", "&Save...", 0, Command::SaveObject, ""},
    {"canimate", "A&nimate", 0, Command::Animate, ""},
    {"cdash4", "-", 0, Command::None, ""},
    {"clist", "Ob&ject List", 0, Command::ObjectList, ""},
    {"cprops", "Prop&erties...", 0, Command::ObjectProperties, ""},
    {"cshared", "Properties of &Many...", 0, Command::SharedProperties, ""},
    {"cpageprops", "Pa&ge Properties...", 0, Command::PageProperties, ""},
    {"cbindings", "S&how Bindings", 0, Command::ShowBindings, ""},
    {"ccheck", "Chec&k Page", 0, Command::CheckPage, ""},
    {"cpreview", "Previe&w in Browser", 0, Command::Preview, ""},
    {"crecent", "&Recent Pages", 0, Command::RecentPages, ""},
};

constexpr ToolbarRow toolbarRows[] = {
    {Command::Open, "Open Form"},
    {Command::Save, "Save Form"},
    {Command::PageProperties, "Page Properties"},
    {Command::ObjectList, "Object List"},
    {Command::ObjectProperties, "Object Properties"},
};

} // namespace

std::span<const MenuRow> menuTable() { return rows; }

bool isSeparator(const MenuRow &row) { return std::string_view(row.caption) == "-"; }

bool isSubmenu(const MenuRow &row)
{
    return std::ranges::any_of(
        rows, [&](const MenuRow &other) { return std::string_view(other.parent) == std::string_view(row.element); });
}

std::span<const MenuRow> contextTable() { return contextRows; }

std::span<const ToolbarRow> toolbarTable() { return toolbarRows; }

} // namespace corvanta
