#include "shell/input.h"

#include "document/tablist.h"
#include "platform/text.h"

#include <algorithm>

namespace corvanta {

std::string &inputparam()
{
    static std::string parameter;
    return parameter;
}

InputTexts inputTexts(std::string_view parameter)
{
    const std::string prompt = fieldAt(parameter, 0), caption = fieldAt(parameter, 1);
    const std::size_t start = prompt.size() + caption.size() + 2;
    return {prompt, caption, std::string(parameter.substr(std::min(start, parameter.size())))};
}

bool inputAccepted(std::string_view text) { return !trimmed(text).empty(); }

} // namespace corvanta
