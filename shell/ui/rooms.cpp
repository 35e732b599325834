#include "shell/ui/rooms.h"

#include "canvas/selection.h"
#include "canvas/ui/drop_field.h"
#include "canvas/ui/editform.h"
#include "database/ui/odbcdbs.h"
#include "objects/ui/manyobj.h"
#include "objects/ui/open_properties.h"
#include "page/export_html.h"
#include "page/ui/pgprops.h"
#include "shell/clipboard.h"
#include "shell/commands.h"
#include "shell/ui/aniply.h"
#include "shell/ui/checkpg.h"
#include "shell/ui/hpsedit.h"
#include "shell/ui/icons.h"
#include "shell/ui/places.h"
#include "shell/ui/preview_process.h"
#include "shell/ui/startup.h"

namespace corvanta {

namespace {

void openCurrentProperties()
{
    const std::int16_t index = editing().curobj;
    if (hasObject(page(), index))
        OpenObjectProperties(page().objects[static_cast<std::size_t>(index)].kind, showTrackers);
}

} // namespace

Rooms::Rooms(EditorWindows &windows) : editor(windows)
{
    RoomCommands &commands = roomCommands();
    commands.openObjectProperties = openCurrentProperties;
    commands.openPageProperties = [this] {
        openPageProperties([this] {
            if (editor.canvas())
                editor.canvas()->activateWindow();
        });
    };
    commands.openSharedProperties = [] { OpenSharedProperties(chosenObjects()); };
    commands.checkPage = [this] { showPageCheck(editor.canvas()); };
    commands.preview = previewInBrowser;
    commands.exportHtml = ConvertToHtml;
    commands.playAnimation = [this] { showPlayer(editor.main(), *editor.canvas()); };
    commands.toggleOdbc = [this](bool shown) { showOdbc(shown); };
}

Rooms::~Rooms()
{
    if (odbcdbs)
        storePlace(*odbcdbs);
    RoomCommands &commands = roomCommands();
    commands.openObjectProperties = {};
    commands.openPageProperties = {};
    commands.openSharedProperties = {};
    commands.checkPage = commands.preview = {};
    commands.exportHtml = {};
    commands.playAnimation = {};
    commands.toggleOdbc = {};
}

void Rooms::showOdbc(bool shown)
{
    if (!odbcdbs && shown) {
        odbcdbs = std::make_unique<Odbcdbs>(editor.main(), kindIcon);
        rememberPlace(*odbcdbs);
        restorePlace(*odbcdbs);
        odbcdbs->closed = odbcToolbarClosed;
        odbcdbs->placed = [this](const std::vector<DroppedColumn> &columns) {
            if (editor.canvas() && editor.canvas()->isEnabled()) // no dialog has it switched off
                placeColumns(columns);
        };
    }
    if (!odbcdbs)
        return;
    if (shown)
        putBack(*odbcdbs);
    odbcdbs->setVisible(shown);
}

} // namespace corvanta
