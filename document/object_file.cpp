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

constexpr std::size_t shortestHeader = 26; // bytes of a page's header whose texts are empty

// Appends an object body as data of a version; the page's own version stays.
std::int16_t appendBody(Page &p, std::string_view body, std::int16_t version)
{
    const std::int16_t kept = std::exchange(p.pgversion, version);
    const std::int16_t index = createVisual(p, body);
    p.pgversion = kept;
    return index;
}

// A page begins with its header, whose length stands where an object file has its version.
bool isPage(std::string_view text)
{
    const std::string header = decodeString(text);
    std::string_view front = header;
    const std::int16_t version = decodeInt16(front);
    return header.size() >= shortestHeader && version >= 1 && version <= currentVersion;
}

std::string unwrapped(std::string_view text) { return decodeString(text); }

// Reading what was cut takes missing bytes for 0, so that writing it gives others.
bool holdsWholeObject(const std::string &body, Kind kind, std::int16_t version)
{
    Page scratch;
    const std::int16_t index = appendBody(scratch, body, version);
    const std::size_t missing = kind == Kind::Animation && version < 2 ? 2 : 0; // the strict timing flag
    return index != noObject && unwrapped(serialiseObject(scratch, index)).size() == body.size() + missing;
}

// Whether a file with a fault is to be loaded nevertheless.
bool agreesToLoad(const std::string &path, const std::string &text)
{
    const std::string fault = objectFileFault(text);
    return fault.empty() ||
           askChoice({.text = "\"" + fileNamePart(path) + "\" " + fault + ". Add what can be read of it as an object?",
                      .title = "Load Object",
                      .captions = {"&Add", "Cancel"}}) == 0;
}

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

std::int16_t completeAppended(std::int16_t index, const std::string &act,
                              const std::function<void(std::int16_t)> &place = {})
{
    if (index == noObject)
        return index;
    LoadObjectFiles(index);
    if (place)
        place(index);
    pageEdited(act + " " + objectName(page().objects[static_cast<std::size_t>(index)].kind));
    return index;
}

} // namespace

std::string objectFileText(const Page &p, std::int16_t index)
{
    return encodeInt16(currentVersion) + serialiseObject(p, index);
}

std::string objectFileFault(std::string_view text)
{
    std::string_view left = text;
    const std::int16_t version = decodeInt16(left);
    const std::string body = decodeString(left);
    std::string_view front = body;
    const auto kind = kindOf(decodeInt16(front));
    if (isPage(text))
        return "is a page";
    if (version < 1 || version > currentVersion || !left.empty())
        return "is damaged or no object file";
    if (!kind)
        return "holds no object of a known kind";
    return holdsWholeObject(body, *kind, version) ? "" : "is damaged";
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

std::int16_t loadObject()
{
    const std::string path = chosenPath(FileDialog::Kind::Open);
    return path.empty() ? noObject : loadObjectFile(path);
}

std::int16_t loadObjectFile(const std::string &path, const std::function<void(std::int16_t)> &place)
{
    const std::string text = readWholeFile(path, fileLimit);
    if (text.empty() || !agreesToLoad(path, text))
        return noObject;
    editing().curdir = withTrailingBackslash(directoryPart(path));
    return completeAppended(appendObjectFile(page(), text), "Load", place);
}

std::int16_t duplicateObject()
{
    if (!hasObject(page(), editing().curobj))
        return noObject;
    const std::string body = unwrapped(serialiseObject(page(), editing().curobj));
    return completeAppended(appendBody(page(), body, currentVersion), "Duplicate");
}

} // namespace corvanta
