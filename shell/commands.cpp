#include "shell/commands.h"

#include "canvas/gestures.h"
#include "canvas/selection.h"
#include "canvas/tab_order.h"
#include "document/events.h"
#include "document/history.h"
#include "document/kinds.h"
#include "document/object_file.h"
#include "document/objects.h"
#include "document/page_file.h"
#include "platform/asking.h"
#include "shell/clipboard.h"

#include <algorithm>

namespace corvanta {

namespace {

PageMenuMarks marks;

ObjectRecord &object(std::int16_t index) { return page().objects[static_cast<std::size_t>(index)]; }

void startNewPage()
{
    if (querySave())
        newPage();
}

void chooseAndOpenPage()
{
    if (!querySave() || !asking().fileDialog)
        return;
    FileDialog dialog;
    dialog.mustExist = true;
    dialog.defaultExtension = "ODS";
    dialog.filter = "ODBC Form Files (*.ods)|*.ods|All Files (*.*)|*.*";
    dialog.initialDirectory = initialDirectory();
    const auto path = asking().fileDialog(dialog);
    if (path && !path->empty())
        openPage(*path);
}

// A gesture that is going on is given up first.
void takeBack(const std::string &act, const char *said, bool (*step)())
{
    cancelGesture();
    if (step())
        documentEvents().notice(said + act);
}

void restack(bool toFront)
{
    const std::vector<std::int16_t> chosen = chosenObjects();
    if (!chosen.empty() && moveInTable(chosen, toFront))
        pageEdited(toFront ? "Bring to front" : "Send to back");
}

void align(AlignMode mode) { alignSelection(static_cast<std::int16_t>(mode)); }

// So that the next command acts on what the author sees appear.
void makeCurrent(std::int16_t index)
{
    if (index == noObject)
        return;
    clearMultiSelection();
    selectObject(index);
    showTrackers();
}

} // namespace

RoomCommands &roomCommands()
{
    static RoomCommands commands;
    return commands;
}

CommandEvents &commandEvents()
{
    static CommandEvents events;
    return events;
}

const PageMenuMarks &pageMenuMarks() { return marks; }

void markMockToolbar(bool shown)
{
    marks.mockToolbar = shown;
    commandEvents().marksChanged();
    commandEvents().showMockToolbar(shown);
}

void markStatusPanel(bool shown)
{
    marks.statusPanel = shown;
    commandEvents().marksChanged();
    commandEvents().showStatusPanel(shown);
}

void markOdbcToolbar(bool shown)
{
    marks.odbcToolbar = shown;
    commandEvents().marksChanged();
    tell(roomCommands().toggleOdbc, shown);
}

void markBindings(bool shown)
{
    marks.bindings = shown;
    commandEvents().marksChanged();
    commandEvents().showBindings(shown);
}

void odbcToolbarClosed()
{
    marks.odbcToolbar = false;
    commandEvents().marksChanged();
}

ObjectCommandState objectCommandState()
{
    ObjectCommandState state;
    const std::int16_t curobj = editing().curobj;
    state.list = objectCount(page()) > 0;
    state.current = hasObject(page(), curobj);
    state.animation = state.current && kindOf(object(curobj).kind) == Kind::Animation;
    state.align = state.current && editing().multcount > 0;
    return state;
}

bool commandEnabled(Command command)
{
    const RoomCommands &rooms = roomCommands();
    const ObjectCommandState state = objectCommandState();
    switch (command) {
    case Command::None:
    case Command::New:
    case Command::Open:
    case Command::Save:
    case Command::SaveAs:
    case Command::Exit:
    case Command::MockToolbar:
    case Command::StatusPanel:
    case Command::ShowBindings:
    case Command::Add:
    case Command::LoadObject: return true;
    case Command::ExportHtml: return bool(rooms.exportHtml);
    case Command::Directory: return bool(rooms.showDirectory);
    case Command::PageProperties: return bool(rooms.openPageProperties);
    case Command::OdbcToolbar: return bool(rooms.toggleOdbc);
    case Command::ObjectList: return rooms.showObjectList && state.list;
    case Command::ObjectProperties: return rooms.openObjectProperties && state.current;
    case Command::Align:
    case Command::AlignLeft:
    case Command::AlignRight:
    case Command::AlignTop:
    case Command::AlignBottom: return state.align;
    case Command::Animate: return rooms.playAnimation && state.animation;
    case Command::Duplicate:
    case Command::SaveObject:
    case Command::Delete: return state.current;
    case Command::HelpContents: return bool(rooms.helpContents);
    case Command::HelpSearch: return bool(rooms.helpSearch);
    case Command::About: return bool(rooms.about);
    case Command::Undo: return !undoName().empty();
    case Command::Redo: return !redoName().empty();
    case Command::Cut:
    case Command::Copy:
    case Command::DuplicateObjects:
    case Command::BringToFront:
    case Command::SendToBack: return !chosenObjects().empty();
    case Command::Paste: return mayPaste();
    case Command::SelectAll: return state.list;
    case Command::TabOrder: return hasTabNumbers();
    case Command::SharedProperties: return rooms.openSharedProperties && chosenObjects().size() > 1;
    case Command::AddKind:
    case Command::RecentPages: return true;
    case Command::CheckPage: return bool(rooms.checkPage);
    case Command::Preview: return bool(rooms.preview);
    }
    return false;
}

std::string commandCaption(Command command)
{
    switch (command) {
    case Command::Undo: return undoName().empty() ? "&Undo" : "&Undo " + undoName();
    case Command::Redo: return redoName().empty() ? "&Redo" : "&Redo " + redoName();
    case Command::SharedProperties:
        return "Properties of " + (chosenObjects().size() < 2 ? "Several" : std::to_string(chosenObjects().size())) +
               " Ob&jects...";
    default: return {};
    }
}

bool isMark(Command command)
{
    return command == Command::MockToolbar || command == Command::StatusPanel || command == Command::OdbcToolbar ||
           command == Command::ShowBindings;
}

bool commandChecked(Command command)
{
    return (command == Command::MockToolbar && marks.mockToolbar) ||
           (command == Command::StatusPanel && marks.statusPanel) ||
           (command == Command::OdbcToolbar && marks.odbcToolbar) ||
           (command == Command::ShowBindings && marks.bindings);
}

void runCommand(Command command)
{
    endTabOrder(); // an act of its own
    const RoomCommands &rooms = roomCommands();
    switch (command) {
    case Command::None:
    case Command::Add:
    case Command::AddKind:
    case Command::RecentPages:
    case Command::Align: break;
    case Command::New: startNewPage(); break;
    case Command::Open: chooseAndOpenPage(); break;
    case Command::Save: savePage(); break;
    case Command::SaveAs: savePageAs(); break;
    case Command::ExportHtml: tell(rooms.exportHtml); break;
    case Command::Directory: tell(rooms.showDirectory); break;
    case Command::Exit: commandEvents().closeMain(); break;
    case Command::PageProperties: tell(rooms.openPageProperties); break;
    case Command::MockToolbar: markMockToolbar(!marks.mockToolbar); break;
    case Command::StatusPanel: markStatusPanel(!marks.statusPanel); break;
    case Command::OdbcToolbar: markOdbcToolbar(!marks.odbcToolbar); break;
    case Command::ObjectList: tell(rooms.showObjectList); break;
    case Command::ObjectProperties: tell(rooms.openObjectProperties); break;
    case Command::AlignLeft: align(AlignMode::Left); break;
    case Command::AlignRight: align(AlignMode::Right); break;
    case Command::AlignTop: align(AlignMode::Top); break;
    case Command::AlignBottom: align(AlignMode::Bottom); break;
    case Command::Animate: tell(rooms.playAnimation); break;
    case Command::Duplicate: makeCurrent(duplicateObject()); break;
    case Command::LoadObject: makeCurrent(loadObject()); break;
    case Command::SaveObject: saveObject(); break;
    case Command::Delete: deleteSelection(); break;
    case Command::HelpContents: tell(rooms.helpContents); break;
    case Command::HelpSearch: tell(rooms.helpSearch); break;
    case Command::About: tell(rooms.about); break;
    case Command::Undo: takeBack(undoName(), "Undone: ", undoEdit); break;
    case Command::Redo: takeBack(redoName(), "Done again: ", redoEdit); break;
    case Command::Cut: cutObjects(); break;
    case Command::Copy: copyObjects(); break;
    case Command::Paste: pasteObjects(); break;
    case Command::DuplicateObjects: duplicateObjects(); break;
    case Command::SelectAll: selectAllObjects(); break;
    case Command::TabOrder: startTabOrder(); break;
    case Command::SharedProperties: tell(rooms.openSharedProperties); break;
    case Command::ShowBindings: markBindings(!marks.bindings); break;
    case Command::CheckPage: tell(rooms.checkPage); break;
    case Command::Preview: tell(rooms.preview); break;
    case Command::BringToFront: restack(true); break;
    case Command::SendToBack: restack(false); break;
    }
}

void addFromMenu(int menuIndex)
{
    const auto &registry = kindRegistry();
    const auto entry = std::find_if(registry.begin(), registry.end(), [&](const RegisteredKind &kind) {
        return !kind.displayName.empty() && kind.menuIndex == menuIndex;
    });
    if (entry == registry.end())
        return;
    const auto kind = kindOf(entry->code);
    const std::int16_t index = kind ? addObject(*kind) : noObject;
    if (index == noObject)
        return;
    makeCurrent(index);
    pageEdited("Add " + objectName(object(index).kind));
}

void tellDeleted(const std::string &what) { documentEvents().notice("Deleted: " + what + ". Ctrl+Z brings it back."); }

void deleteSelection()
{
    const std::int16_t before = objectCount(page());
    const bool one = editing().multcount == 0 && hasObject(page(), editing().curobj);
    const std::string name = one ? objectName(object(editing().curobj).kind) : std::string();
    if (editing().multcount > 0) {
        for (std::int16_t index = before; index-- > 0;)
            if (object(index).selslot > 0)
                deleteObject(index);
    } else {
        deleteObject(editing().curobj);
    }
    const int deleted = before - objectCount(page());
    if (deleted == 0)
        return;
    const std::string what = one ? name : std::to_string(deleted) + (deleted == 1 ? " object" : " objects");
    pageEdited("Delete " + what);
    tellDeleted(what);
}

} // namespace corvanta
