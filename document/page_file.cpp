#include "document/page_file.h"

#include "document/byte_codec.h"
#include "document/events.h"
#include "document/file_state.h"
#include "document/history.h"
#include "document/media.h"
#include "document/objects.h"
#include "platform/asking.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"

#include <tuple>

namespace corvanta {

namespace {

constexpr const char *readingFile = "Reading File", *savingFile = "Saving File";

void tellReadError(std::string_view text)
{
    if (editing().msgflag)
        showExclamation(text, readingFile);
}

void setFileTag(const std::string &path)
{
    editing().filetag = path;
    documentEvents().fileChanged();
}

std::string directoryOfFile(const std::string &path)
{
    const std::string directory = directoryPart(path);
    return directory.empty() ? withTrailingBackslash(currentDirectory()) : directory;
}

// An edited page has the size that it was shown with from now on.
void markSaved()
{
    if (editing().pagedirty)
        editing().lentSize.reset();
    editing().pagedirty = false;
    markHistorySaved();
    documentEvents().clean();
}

bool holdsPassword(const Page &p) { return !connectPart(p, 2).empty(); }

// Once in a run of the editor: it is the author's own choice where pages lie.
void tellOfReadablePassword(const std::string &path)
{
    static bool told = false;
    if (told || !holdsPassword(page()) || !othersMayRead(path))
        return;
    told = true;
    showMessage({.text = "This page holds a password, and other users of this computer may read its file.",
                 .title = savingFile,
                 .icon = Icon::Information});
}

bool writePage(const std::string &path)
{
    std::string text = pageText();
    removeStrayFiles(directoryOfFile(path));
    if (text.size() <= fileLimit && !keepDamagedBytes(path))
        return false;
    const bool written = writeWholeFile(path, text, holdsPassword(page()) ? FileMode::Private : FileMode::Usual);
    wipe(text);
    if (!written)
        return false;
    rememberFile(path);
    tellOfReadablePassword(path);
    markSaved();
    return true;
}

FileDialog savePageDialog()
{
    const std::string &tag = editing().filetag;
    FileDialog dialog;
    dialog.kind = FileDialog::Kind::Save;
    dialog.overwritePrompt = true;
    dialog.defaultExtension = "ODS";
    dialog.filter = "ODBC Form Files (*.ods)|*.ods|All Files (*.*)|*.*";
    dialog.initialDirectory = tag.empty() ? initialDirectory() : withoutTrailingBackslash(directoryPart(tag));
    dialog.fileName = fileNamePart(tag);
    return dialog;
}

// A codec that only looks whether a record is there as a whole.
class WholeRecord {
public:
    explicit WholeRecord(std::string_view bytes) : rest(bytes) {}
    bool whole() const { return complete && rest.empty(); }

    void int16(const char *, std::int16_t) { take(2); }
    void int32(const char *, std::int32_t) { take(4); }
    void text(const char *, const std::string &)
    {
        complete = complete && rest.size() >= 2;
        const std::int16_t length = decodeInt16(rest);
        complete = complete && length >= 0;
        take(complete ? static_cast<std::size_t>(length) : 0);
    }
    void optionalText(const char *name, const std::string &value)
    {
        if (!rest.empty())
            text(name, value);
    }

private:
    std::string_view rest;
    bool complete = true;

    void take(std::size_t bytes)
    {
        complete = complete && bytes <= rest.size();
        rest.remove_prefix(std::min(bytes, rest.size()));
    }
};

void readPageHeader(Page &p, std::string_view header)
{
    ByteReader reader(header, p.pgversion);
    headerFields(reader, p);
}

// Room for the objects that follow, so that their records are not moved about as the table grows.
void reserveObjects(Page &p, std::string_view text)
{
    std::size_t count = p.objects.size();
    for (; !text.empty(); ++count)
        takeString(text);
    p.objects.reserve(count);
    p.ctlindex.reserve(count);
}

void appendObjectBytes(std::string &bytes, const Page &p, std::int16_t index)
{
    const auto i = static_cast<std::size_t>(index);
    const ObjectRecord &o = p.objects.at(i);
    ByteWriter body(bytes);
    const std::size_t mark = beginString(bytes);
    body.int16("kind", o.kind);
    commonFields(body, o);
    if (const auto kind = kindOf(o.kind)) {
        const auto frames = kind == Kind::Animation ? framesOf(p, index) : std::vector<Frame>();
        kindTail(body, p, *kind, p.ctlindex[i], frames);
    }
    endString(bytes, mark);
}

} // namespace

std::string serialiseObject(const Page &p, std::int16_t index)
{
    std::string bytes;
    appendObjectBytes(bytes, p, index);
    return bytes;
}

std::string serialisePage(const Page &p)
{
    std::string text;
    text.reserve(fileLimit);
    ByteWriter header(text);
    const std::size_t mark = beginString(text);
    headerFields(header, p);
    endString(text, mark);
    text.replace(mark, 2, encodeInt16(currentVersion));
    for (std::int16_t i = 0; i < objectCount(p); ++i)
        appendObjectBytes(text, p, i);
    return text;
}

std::string pageText()
{
    const auto &own = editing().lentSize;
    if (!own || editing().pagedirty)
        return serialisePage(page());
    const auto shown = std::pair(page().bkgwd, page().bkght);
    std::tie(page().bkgwd, page().bkght) = *own;
    std::string text = serialisePage(page());
    std::tie(page().bkgwd, page().bkght) = shown;
    return text;
}

void parsePage(Page &p, std::string_view text)
{
    if (text.empty())
        return;
    const std::string_view header = takeString(text);
    if (!header.empty())
        readPageHeader(p, header);
    if (&p == &page()) {
        editing().lentSize.reset();
        documentEvents().pageLayout();
    }
    reserveObjects(p, text);
    while (!text.empty())
        createVisual(p, takeString(text));
}

bool isPageFile(std::string_view bytes)
{
    const std::int16_t length = decodeInt16(bytes);
    if (length <= 0 || static_cast<std::size_t>(length) > bytes.size())
        return false;
    std::string_view header = bytes.substr(0, static_cast<std::size_t>(length));
    WholeRecord record(header);
    const Page any;
    headerFields(record, any);
    const std::int16_t version = decodeInt16(header);
    return version > 0 && version <= currentVersion && record.whole();
}

std::string readWholeFile(std::string_view path, std::size_t limit)
{
    FileContent file = readFile(path, limit);
    if (file.tooLarge)
        tellReadError("File too large - more than " + std::to_string(limit) + " bytes.");
    else if (!file.error.empty())
        tellReadError(file.error);
    else if (file.missing || file.length == 0)
        tellReadError("File doesn't exist.");
    else
        return std::move(file.bytes);
    return {};
}

bool writeWholeFile(std::string_view path, std::string_view text, FileMode mode)
{
    if (text.size() > fileLimit) {
        showExclamation("File too large.", savingFile);
        return false;
    }
    const auto error = writeFileAtomically(path, text, mode);
    if (error)
        showExclamation(*error, savingFile);
    return !error;
}

void newPage()
{
    clearObjects();
    wipe(page().dbconnect);
    page() = Page();
    rememberFile("");
    editing().lentSize.reset();
    setFileTag("");
    documentEvents().showCanvas();
    documentEvents().pageLayout();
    documentEvents().objectCount();
    editing().pagedirty = false;
    resetHistory();
    documentEvents().clean();
}

void openPage(const std::string &path)
{
    newPage();
    setFileTag(path);
    const CollectedMessages collected;
    std::string bytes = readWholeFile(path, fileLimit);
    rememberFile(path); // before anything can be asked: what another program writes then is its own
    parsePage(page(), bytes);
    if (bytes.empty())
        noteDamageOfFile(path);
    else
        noteDamage(damageOf(bytes));
    wipe(bytes);
    loadPageMedia();
    editing().curdir = directoryOfFile(path);
    removeStrayFiles(directoryOfFile(path));
    resetHistory();
    if (fileDamage())
        documentEvents().notice(fileDamage().summary);
}

bool savePage()
{
    if (editing().filetag.empty())
        return savePageAs();
    const SaveTarget target = saveTarget(editing().filetag);
    if (target.cancelled)
        return false;
    switch (mayReplace(target.path)) {
    case SaveChoice::Save: break;
    case SaveChoice::Elsewhere: return savePageAs();
    case SaveChoice::Cancel: return false;
    }
    if (!writePage(target.path))
        return false;
    if (target.path != editing().filetag)
        setFileTag(target.path);
    return true;
}

bool savePageAs()
{
    const auto path = asking().fileDialog ? asking().fileDialog(savePageDialog()) : std::nullopt;
    if (!path || path->empty() || !writePage(*path))
        return false;
    if (*path != editing().filetag)
        setFileTag(*path);
    editing().curdir = directoryOfFile(*path);
    return true;
}

bool querySave()
{
    if (!editing().pagedirty)
        return true;
    switch (
        showMessage({"Save changes to current page?", "Corvanta Form Editor", Icon::Question, Buttons::YesNoCancel})) {
    case Answer::Yes: return savePage();
    case Answer::No: return true;
    case Answer::Ok:
    case Answer::Cancel: return false;
    }
    return false;
}

std::string filePanelCaption()
{
    const std::string &tag = editing().filetag;
    return tag.empty() ? "(New file)" : upperCase(doubleAmpersands(fileNamePart(tag)));
}

std::string initialDirectory() { return withoutTrailingBackslash(editing().curdir); }

} // namespace corvanta
