#include "document/file_state.h"

#include "document/events.h"
#include "document/page.h"
#include "document/page_file.h"
#include "platform/asking.h"
#include "platform/codepage.h"
#include "platform/file_stamp.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace corvanta {

namespace {

constexpr const char *savingFile = "Saving File", *readingFile = "Reading File";

struct Remembered {
    std::string path;
    std::optional<FileStamp> stamp;
    std::optional<FileStamp> declined; // the author keeps the page although the file became this one
    PageDamage damage;
};
Remembered remembered;

bool samePath(const std::string &a, const std::string &b) { return hostPath(a) == hostPath(b); }

} // namespace

void rememberFile(const std::string &path)
{
    remembered = {path, path.empty() ? std::nullopt : fileStamp(path), std::nullopt, {}};
}

void rememberFile(const std::string &path, const std::string &stamp)
{
    remembered = {path, stampOfText(stamp), std::nullopt, {}};
}

std::string rememberedStamp() { return remembered.stamp ? textOfStamp(*remembered.stamp) : std::string(); }

const PageDamage &fileDamage() { return remembered.damage; }

void noteDamage(PageDamage damage) { remembered.damage = std::move(damage); }

void noteDamageOfFile(const std::string &path)
{
    const FileContent file = path.empty() ? FileContent() : readFile(path, fileLimit);
    if (file.tooLarge || (!file.error.empty() && !file.missing))
        noteDamage({"This file could not be read: saving would replace all of it.", {"What it holds is not known."}});
    else if (!file.bytes.empty())
        noteDamage(damageOf(file.bytes));
}

bool keepDamagedBytes(const std::string &path)
{
    if (!remembered.damage || !samePath(path, remembered.path))
        return true;
    std::string copy = path + ".bak";
    for (int number = 2; fileExists(copy); ++number)
        copy = path + ".bak" + std::to_string(number);
    std::error_code error;
    if (fileExists(path))
        std::filesystem::copy_file(hostPath(path), hostPath(copy), error);
    if (error)
        showExclamation("The old file could not be kept: " + fromUtf8Lossy(error.message()) + ".  Nothing was saved.",
                        savingFile);
    return !error;
}

bool fileIsAnother(const std::string &path)
{
    if (path.empty() || !samePath(path, remembered.path))
        return false;
    const auto now = fileStamp(path);
    return now && (!remembered.stamp || !sameFile(*now, *remembered.stamp));
}

SaveTarget saveTarget(const std::string &filetag)
{
    const std::string here = withTrailingBackslash(currentDirectory()) + fileNamePart(filetag);
    if (samePath(here, filetag))
        return {filetag};
    switch (askChoice(
        {.text = "This page was opened as " + filetag + ".\nThe current directory is another one now: " + here,
         .title = savingFile,
         .icon = Icon::Question,
         .captions = {"Save where it was &opened", "Save in the &current directory", "Cancel"}})) {
    case 0: return {filetag};
    case 1: return {here};
    default: return {{}, true};
    }
}

SaveChoice mayReplace(const std::string &path)
{
    const bool elsewhere = remembered.stamp && samePath(path, remembered.path) && !onDevice(path, *remembered.stamp);
    if (!fileIsAnother(path) && !elsewhere)
        return SaveChoice::Save;
    const std::string changed = "Another program has changed " + path + " since it was read.";
    const std::string gone = "The medium that " + path + " was read from is gone.";
    return static_cast<SaveChoice>(askChoice({.text = elsewhere ? gone : changed,
                                              .title = savingFile,
                                              .captions = {"&Overwrite", "Save &elsewhere...", "Cancel"}}));
}

bool loadAgainIfChanged()
{
    const std::string path = editing().filetag;
    if (!fileIsAnother(path))
        return false;
    const auto now = fileStamp(path);
    if (remembered.declined && now && sameFile(*now, *remembered.declined))
        return false;
    if (editing().pagedirty &&
        askChoice({.text = "Another program has changed " + path + ".\nLoading it again loses your changes.",
                   .title = readingFile,
                   .icon = Icon::Question,
                   .captions = {"&Load again", "&Keep my page"}}) != 0) {
        remembered.declined = now;
        return false;
    }
    openPage(path);
    documentEvents().notice("Loaded again: another program has changed the file.");
    return true;
}

} // namespace corvanta
