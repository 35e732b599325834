#include "page/export_html.h"

#include "converter/ods2hts.h"
#include "document/page_file.h"
#include "platform/asking.h"
#include "platform/codepage.h"
#include "platform/paths.h"

#include <algorithm>

namespace corvanta {

namespace {

void tell(const std::string &text, const std::string &detail = {})
{
    showMessage({text, "Corvanta HTML convert", Icon::None, Buttons::Ok, detail});
}

// False when the author cancelled or the save did not succeed.
bool saveFirst()
{
    if (!editing().pagedirty)
        return true;
    const Answer answer = showMessage({"Save changes to current page before converting to HTML?",
                                       "Corvanta Form Editor", Icon::Question, Buttons::YesNoCancel});
    return answer == Answer::No || (answer == Answer::Yes && savePage());
}

} // namespace

void ConvertToHtml()
{
    if (!saveFirst() || editing().filetag.empty())
        return;
    const std::string &path = editing().filetag;
    if (ConvertOdsHtsCodePage(path.c_str(), codePageNumber()) == 0)
        return tell("Error converting " + fromUtf8Lossy(realPath(path)), fromUtf8Lossy(ConvertOdsHtsMessage()));
    std::string templatePath = fromUtf8Lossy(realPath(path));
    templatePath.replace(templatePath.size() - std::min<std::size_t>(templatePath.size(), 3), 3, "hts");
    tell("The file " + templatePath + " has been saved\ras an HTML template.\rYou may edit it using any HTML Editor");
}

} // namespace corvanta
