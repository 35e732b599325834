#pragma once

#include "document/page.h"

#include <string>
#include <string_view>

// Pictures, texts and sounds that the process-wide page and its objects name, from the page directory.
namespace corvanta {

// Whether a name is a plain file name, without drive, directory or "..": only such a file is loaded, so that
// a page cannot reach outside its directory.
bool plainFileName(std::string_view name);

// What is told of a name that is not valid: invalidFileName("image"), invalidFileName("sound", " for frame 2").
std::string invalidFileName(std::string_view what, std::string_view where = {});

// Whether a name, trimmed, is empty or a plain file name that exists in the page directory.
bool validFileName(std::string_view name);

// The same, telling the message under "Properties Error" when it is not.
bool CheckFileName(std::string_view name, std::string_view message);

// A picture of the page directory; none for an empty name and for one that cannot be loaded.
PicturePtr loadPicture(const std::string &file);

// The two halves of loadPageMedia that concern the page itself.
void loadBackground();
void playPageSound();

// Loads the background picture and the page's sound, then the files of every object. Failures are told
// while msgflag is set.
void loadPageMedia();

// Loads the files that an object names into its element.
void LoadObjectFiles(std::int16_t index);

// Loads a button's picture; on failure the picture is cleared and the user told. True on success.
bool LoadButtonPicture(std::int16_t index, const std::string &file);
// The picture of an Image object, loaded from the page directory when it is first asked for; none when it
// cannot be loaded.
PicturePtr imagePicture(Page &p, std::int16_t index);
void LoadTextBoxFile(std::int16_t index, const std::string &file);
void LoadAnimationFrames(std::int16_t index, const std::string &file);

// A picture that was loaded turns out to hold no pixels: it is taken from the page and its objects, and the user is
// told as at loading.
void dropUnreadablePicture(const Picture &picture);

} // namespace corvanta
