#include "actions/ui/edit_action.h"

#include "actions/action.h"
#include "actions/action_choice.h"
#include "actions/ui/action_dialogs.h"

#include <utility>

namespace corvanta {

namespace {

std::function<void()> dialogOf(std::int16_t code)
{
    switch (code) {
    case action::goToPage: return showGopact;
    case action::pageUser: return [] { showTextDialog(pguact); };
    case action::downloadCaution: return [] { showOptionDialog(dwnact); };
    case action::helpType: return [] { showOptionDialog(hlpact); };
    case action::goToUrl: return [] { showTextDialog(urlact); };
    case action::serverApp: return [] { showTextDialog(nclact); };
    case action::executeApp: return [] { showTextDialog(appact); };
    case action::submitSelect: return showSelpact;
    case action::executeSql: return showSqlpact;
    case action::downloadFile:
    case action::uploadFile: return showDwnlpact;
    case action::list: return showListpact;
    case action::messageBox: return [] { showTextDialog(msgPact); };
    }
    return {};
}

} // namespace

std::string EditAction(const std::string &text)
{
    const std::function<void()> show = dialogOf(ActionCode(text));
    return show ? ShowActionDialog(show, text) : text;
}

std::string ShowActionDialog(const std::function<void()> &showModally, const std::string &text)
{
    dialogExchange() = text;
    showModally();
    return std::exchange(dialogExchange(), {});
}

} // namespace corvanta
