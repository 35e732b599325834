#pragma once

#include "document/page_damage.h"

#include <string>

// What the process-wide page's file was when the editor last read or wrote it.
namespace corvanta {

// After reading or writing the page's file, by drive path; an empty path for a new page.
void rememberFile(const std::string &path);
// The same for a recovered page, with what rememberedStamp gave before.
void rememberFile(const std::string &path, const std::string &stamp);
std::string rememberedStamp(); // as text; empty for none

// What saving would lose of the file as it was opened.
const PageDamage &fileDamage();
// Notes it. The first save over that file keeps the old bytes beside it.
void noteDamage(PageDamage damage);

// Looks into a file and notes what saving over it would lose: all of one that cannot be read.
void noteDamageOfFile(const std::string &path);

// Before the page is written to a path: keeps the bytes of a damaged file as NAME.ods.bak (bak2 and so on), whatever
// its size and with its mode. False when that failed, which has been told.
bool keepDamagedBytes(const std::string &path);

// Whether the file is there and is not what was remembered: changed or replaced by another program, or on another
// device.
bool fileIsAnother(const std::string &path);

enum class SaveChoice { Save, Elsewhere, Cancel };

// Where Save is to write the page of this file name (drive path). Asks with both paths when the current directory is
// not the one that the page was opened from; none when the author cancelled.
struct SaveTarget {
    std::string path;
    bool cancelled = false;
};
SaveTarget saveTarget(const std::string &filetag);

// Asks before a file that is not what was remembered is replaced.
SaveChoice mayReplace(const std::string &path);

// Looks at the page's file when an editor window becomes active: a changed file is loaded again, at once when the page
// has no changes, else when the author wants it. True when it was loaded.
bool loadAgainIfChanged();

} // namespace corvanta
