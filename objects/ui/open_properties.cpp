#include "objects/ui/open_properties.h"

#include "document/events.h"
#include "objects/ui/dialogs.h"
#include "platform/qt/window_switch.h"

#include <memory>

namespace corvanta {

namespace {

using Build = void (*)(PropertyDialog &);

struct DialogRow {
    const char *name;
    Build build;
    bool modal;
};

DialogRow rowOf(Kind kind)
{
    switch (kind) {
    case Kind::Button: return {"butobj", buildButobj, true};
    case Kind::HotSpot: return {"hotobj", buildHotobj, true};
    case Kind::ListBox: return {"lbxobj", buildLbxobj, true};
    case Kind::Label: return {"lblobj", buildLblobj, true};
    case Kind::TextBox: return {"tbxobj", buildTbxobj, false};
    case Kind::Image: return {"imgobj", buildImgobj, true};
    case Kind::Ticker: return {"tkrobj", buildTkrobj, true};
    case Kind::Animation: return {"aniobj", buildAniobj, true};
    case Kind::Grid: return {"grdobj", buildGrdobj, false};
    case Kind::ImageDb: return {"imgdbobj", buildImgdbobj, false};
    case Kind::ComboBox: return {"cbxobj", buildCbxobj, false};
    case Kind::File: return {"fbxobj", buildFbxobj, false};
    case Kind::Url: return {"urlobj", buildUrlobj, false};
    }
    return {};
}

void runClosed(const std::function<void()> &closed)
{
    documentEvents().pageChanged();
    if (closed)
        closed();
}

} // namespace

void OpenObjectProperties(std::int16_t kindCode, std::function<void()> closed)
{
    const auto kind = kindOf(kindCode);
    if (!kind || !hasObject(page(), editing().curobj))
        return;
    const DialogRow row = rowOf(*kind);
    auto dialog = std::make_unique<PropertyDialog>(row.name, *kind, editing().curobj);
    row.build(*dialog);
    dialog->complete();
    if (!row.modal)
        return showSwitchingOff(dialog.release(), [closed] { runClosed(closed); });
    dialog->exec();
    dialog.reset();
    runClosed(closed);
}

} // namespace corvanta
