#include "converter/ods2hts.h"

#include "document/page_file.h"
#include "platform/files.h"
#include "platform/text.h"

#include <algorithm>
#include <exception>

namespace corvanta {

namespace {

constexpr std::size_t extensionLength = 3, textFileLimit = 32650; // bytes

// The texts that Text Boxes show from files beside the page; what cannot be read is empty.
void loadTextFiles(Page &p, const std::string &directory)
{
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        const ObjectRecord &o = p.objects[static_cast<std::size_t>(i)];
        if (kindOf(o.kind) != Kind::TextBox || trimmed(o.srcfile).empty())
            continue;
        std::string &text = elementOf(p, i)->Caption;
        text = readFile(directory + fileNamePart(trimmed(o.srcfile)), textFileLimit).bytes;
        std::erase(text, '\x1A');
    }
}

bool convert(const std::string &path)
{
    const std::string target = templatePath(path);
    const FileContent file = readFile(path, fileLimit);
    // A name shorter than an extension would give a template in another directory.
    const bool beside = directoryPart(target) == directoryPart(path);
    if (file.bytes.empty() || !beside || sameText(target, path))
        return false;
    Page p;
    parsePage(p, file.bytes);
    loadTextFiles(p, directoryPart(path));
    return !writeFileAtomically(target, htmlTemplate(p));
}

} // namespace

std::string templatePath(std::string_view pagePath)
{
    return std::string(pagePath.substr(0, pagePath.size() - std::min(pagePath.size(), extensionLength))) + "hts";
}

} // namespace corvanta

extern "C" std::int16_t ConvertOdsHts(const char *path)
{
    try {
        return path && corvanta::convert(path) ? 1 : 0;
    } catch (const std::exception &) { // the caller may be of another language
        return 0;
    }
}
