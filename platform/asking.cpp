#include "platform/asking.h"

namespace corvanta {

Asking &asking()
{
    static Asking questions;
    return questions;
}

Answer showMessage(const MessageBox &box)
{
    if (asking().messageBox)
        return asking().messageBox(box);
    return box.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
}

void showExclamation(std::string_view text, std::string_view title)
{
    showMessage({std::string(text), std::string(title), Icon::Exclamation, Buttons::Ok});
}

std::string askText(const std::string &parameter)
{
    return asking().askText ? asking().askText(parameter) : std::string();
}

} // namespace corvanta
