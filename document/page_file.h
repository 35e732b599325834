#pragma once

#include "document/page.h"
#include "platform/files.h"

#include <string>
#include <string_view>

// Page files (".ods"): the page as bytes, whole-file reading and writing with their messages, and the
// file operations of the commands.
namespace corvanta {

// The bytes of an object: its body text as a counted string.
std::string serialiseObject(const Page &p, std::int16_t index);
// The bytes of a page file.
std::string serialisePage(const Page &p);

// What saving the process-wide page writes. Until the first edit a page without a size stays one, also while the canvas
// shows it at the window's size.
std::string pageText();

// Fills a page from the bytes of a page file; an empty text does nothing. What is missing reads as 0 or
// empty. The page is expected to be new.
void parsePage(Page &p, std::string_view text);

// Whether bytes can be a page file: its header stands there whole and is of a known version.
bool isPageFile(std::string_view bytes);

// The file's whole content; empty on any failure, which is told while msgflag is set.
std::string readWholeFile(std::string_view path, std::size_t limit);
// True when the text was written; a failure is told. Texts of 16,385 bytes or more are refused.
bool writeWholeFile(std::string_view path, std::string_view text, FileMode mode = FileMode::Usual);

// The process-wide page becomes a new, empty one.
void newPage();
// Opens a page file by drive path.
void openPage(const std::string &path);
bool savePage();
bool savePageAs();
// Asks whether to save unsaved changes. False when the user cancelled or the save failed.
bool querySave();

// The file panel's text: the file's name in upper case with "&" doubled, or "(New file)".
std::string filePanelCaption();

// The initial directory of a file dialog: curdir without its trailing "\", unless it is a drive root.
std::string initialDirectory();

} // namespace corvanta
