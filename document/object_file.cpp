#include "document/object_file.h"

#include "document/encoding.h"
#include "document/events.h"
#include "document/media.h"
#include "document/objects.h"
#include "document/page_file.h"
#include "platform/asking.h"
#include "platform/text.h"

#include <utility>

namespace corvanta {

namespace {

// Appends an object body as data of a version; the page's own version stays.
std::int16_t appendBody(Page &p, std::string_view body, std::int16_t version)
{
    const std::int16_t kept = std::exchange(p.pgversion, version);
    const std::int16_t index = createVisual(p, body);
    p.pgversion = kept;
    return index;
}

std::string unwrapped(std::string_view text) { return decodeString(text); }

FileDialog objectDialog(FileDialog::Kind kind)
{
    FileDialog dialog;
    dialog.kind = kind;
    dialog.defaultExtension = "ODO";
    dialog.initialDirectory = initialDirectory();
    if (kind == FileDialog::Kind::Save) {
        dialog.overwritePrompt = true;
        dialog.filter = "ODBC Object Files (*.hdo)|*.hdo|All Files (*.*)|*.*";
    } else {
        dialog.mustExist = true;
        dialog.filter = "ODBC Object Files (*.odo)|*.hdo|All Files (*.*)|*.*";
    }
    return dialog;
}

std::string chosenPath(FileDialog::Kind kind)
{
    if (!asking().fileDialog)
        return {};
    return asking().fileDialog(objectDialog(kind)).value_or(std::string());
}

void completeAppended(std::int16_t index, const std::string &act)
{
    if (index == noObject)
        return;
    LoadObjectFiles(index);
    pageEdited(act + " " + objectName(page().objects[static_cast<std::size_t>(index)].kind));
}

} // namespace

std::string objectFileText(const Page &p, std::int16_t index)
{
    return encodeInt16(currentVersion) + serialiseObject(p, index);
}

std::int16_t appendObjectFile(Page &p, std::string_view text)
{
    const std::int16_t version = decodeInt16(text);
    return appendBody(p, decodeString(text), version);
}

void saveObject()
{
    if (!hasObject(page(), editing().curobj))
        return;
    const std::string path = chosenPath(FileDialog::Kind::Save);
    if (path.empty())
        return;
    writeWholeFile(path, objectFileText(page(), editing().curobj));
    editing().curdir = withTrailingBackslash(directoryPart(path));
}

void loadObject()
{
    const std::string path = chosenPath(FileDialog::Kind::Open);
    if (path.empty())
        return;
    const std::string text = readWholeFile(path, fileLimit);
    if (text.empty())
        return;
    editing().curdir = withTrailingBackslash(directoryPart(path));
    completeAppended(appendObjectFile(page(), text), "Load");
}

void duplicateObject()
{
    if (!hasObject(page(), editing().curobj))
        return;
    const std::string body = unwrapped(serialiseObject(page(), editing().curobj));
    completeAppended(appendBody(page(), body, currentVersion), "Duplicate");
}

} // namespace corvanta
