#include "shell/ui/rooms.h"

#include "canvas/selection.h"
#include "objects/ui/open_properties.h"
#include "page/export_html.h"
#include "page/ui/pgprops.h"
#include "platform/qt/window_switch.h"
#include "shell/commands.h"
#include "shell/ui/aniply.h"

namespace corvanta {

namespace {

void openCurrentProperties()
{
    const std::int16_t index = editing().curobj;
    if (hasObject(page(), index))
        OpenObjectProperties(page().objects[static_cast<std::size_t>(index)].kind, showTrackers);
}

} // namespace

void installRooms(std::function<QWidget *()> owner)
{
    LaterCommands &commands = laterCommands();
    commands.openObjectProperties = openCurrentProperties;
    commands.openPageProperties = [] { openPageProperties(); };
    commands.exportHtml = ConvertToHtml;
    commands.playAnimation = [owner] { showPlayer(owner()); };
}

} // namespace corvanta
