#include "shell/input.h"

#include "document/tablist.h"
#include "platform/text.h"

namespace corvanta {

std::string &inputparam()
{
    static std::string parameter;
    return parameter;
}

InputTexts inputTexts(std::string_view parameter)
{
    return {fieldAt(parameter, 0), fieldAt(parameter, 1), fieldAt(parameter, 2)};
}

bool inputAccepted(std::string_view text) { return !trimmed(text).empty(); }

} // namespace corvanta
