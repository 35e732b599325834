#include "document/media.h"

#include "document/events.h"
#include "document/objects.h"
#include "document/page_file.h"
#include "document/tablist.h"
#include "platform/asking.h"
#include "platform/multimedia.h"
#include "platform/paths.h"
#include "platform/text.h"

#include <algorithm>
#include <set>

namespace corvanta {

namespace {

constexpr const char *changeDirectoryHint = "To change the directory, use \"File... Directory\".";
constexpr std::size_t textFileLimit = 32650; // bytes
constexpr char endOfFileCharacter = 26;

void tell(const std::string &text, const char *title)
{
    if (editing().msgflag)
        showExclamation(text, title);
}

void tellObjectChanged(std::int16_t index) { documentEvents().objectChanged(index); }

void tellMissingBackground()
{
    tell("Image (" + page().bkgfile + ") does not exist in this location ." + changeDirectoryHint,
         "Pagegotfile LOADIMG Error");
}

void tellMissingButtonPicture(const std::string &file)
{
    tell("Couldn't load image file \"" + file + "\" into button.  " + changeDirectoryHint, "LoadPicture Error");
}

void tellMissingFrame(const std::string &file, int position)
{
    tell("Couldn't load image file \"" + file + "\" into animation frame " + std::to_string(position) + ".  " +
             changeDirectoryHint,
         "LoadPicture Error");
}

// Calls for each frame of an animation with its position, from 1 on.
void forFrames(std::int16_t index, const auto &visit)
{
    Page &p = page();
    int position = 0;
    for (const int number : frameNumbers(p, p.ctlindex.at(static_cast<std::size_t>(index))))
        visit(p.frames[static_cast<std::size_t>(number)], ++position);
}

void loadObjectFile(std::int16_t index, Kind kind, const std::string &file)
{
    switch (kind) {
    case Kind::Button: LoadButtonPicture(index, file); break;
    case Kind::TextBox: LoadTextBoxFile(index, file); break;
    case Kind::Animation: LoadAnimationFrames(index, file); break;
    case Kind::HotSpot:
    case Kind::ListBox:
    case Kind::Label:
    case Kind::Image:
    case Kind::Ticker:
    case Kind::Grid:
    case Kind::ImageDb:
    case Kind::ComboBox:
    case Kind::File:
    case Kind::Url: break;
    }
}

} // namespace

bool plainFileName(std::string_view name)
{
    return name.find_first_of(std::string_view("\\/:\0", 4)) == std::string_view::npos && name != "..";
}

std::string invalidFileName(std::string_view what, std::string_view where)
{
    return "Invalid " + std::string(what) + " file name" + std::string(where) + ".  " + changeDirectoryHint;
}

bool validFileName(std::string_view name)
{
    const std::string file = trimmed(name);
    return file.empty() || (plainFileName(file) && fileExists(editing().curdir + file));
}

bool CheckFileName(std::string_view name, std::string_view message)
{
    const bool valid = validFileName(name);
    if (!valid)
        showExclamation(message, "Properties Error");
    return valid;
}

PicturePtr loadPicture(const std::string &file)
{
    const bool loadable = plainFileName(file) && !file.empty() && pictureLoader();
    return loadable ? pictureLoader()(editing().curdir + file) : nullptr;
}

void loadBackground()
{
    Page &p = page();
    p.background = loadPicture(p.bkgfile);
    if (!p.bkgfile.empty() && !p.background && pictureLoader())
        tellMissingBackground();
}

void playPageSound()
{
    const std::string &file = page().sndfn;
    if (file.empty())
        return;
    if (!plainFileName(file) || mciSendString("Play " + editing().curdir + file) != 0)
        tell("Couldn't load page file \"" + file + "\".  " + changeDirectoryHint, "Pagegotfile Error");
}

void loadPageMedia()
{
    const CollectedMessages collected;
    loadBackground();
    playPageSound();
    for (std::int16_t i = 0; i < objectCount(page()); ++i)
        LoadObjectFiles(i);
    documentEvents().pageChanged();
}

void LoadObjectFiles(std::int16_t index)
{
    if (!hasObject(page(), index))
        return;
    const ObjectRecord &o = page().objects[static_cast<std::size_t>(index)];
    const auto kind = kindOf(o.kind);
    std::set<std::string> seen;
    for (int i = 0; kind && i < fieldCount(o.srcfile); ++i) {
        const std::string file = fieldAt(o.srcfile, i);
        if (seen.insert(file).second)
            loadObjectFile(index, *kind, file);
    }
    tellObjectChanged(index);
}

bool LoadButtonPicture(std::int16_t index, const std::string &file)
{
    Element &button = *elementOf(page(), index);
    button.picture = loadPicture(file);
    if (!file.empty() && !button.picture && pictureLoader())
        tellMissingButtonPicture(file);
    return file.empty() || button.picture;
}

void LoadTextBoxFile(std::int16_t index, const std::string &file)
{
    if (file.empty()) {
        elementOf(page(), index)->Caption = page().tbx.front().Caption;
        return;
    }
    std::string text;
    if (plainFileName(file))
        text = readWholeFile(editing().curdir + file, textFileLimit);
    else
        tell("File doesn't exist.", "Reading File");
    std::erase(text, endOfFileCharacter);
    elementOf(page(), index)->Caption = std::move(text);
}

void LoadAnimationFrames(std::int16_t index, const std::string &file)
{
    forFrames(index, [&](Frame &frame, int position) {
        if (frame.image != file)
            return;
        frame.picture = loadPicture(file);
        if (!file.empty() && !frame.picture && pictureLoader())
            tellMissingFrame(file, position);
    });
}

PicturePtr imagePicture(Page &p, std::int16_t index)
{
    if (!hasObject(p, index))
        return nullptr;
    const auto i = static_cast<std::size_t>(index);
    const std::string &file = p.objects[i].srcfile;
    ImageState &state = p.imgpictures.at(static_cast<std::size_t>(p.ctlindex[i]));
    const std::string path = editing().curdir + file;
    if (state.path != path)
        state = {path, loadPicture(file)};
    return state.picture;
}

void dropUnreadablePicture(const Picture &picture)
{
    const CollectedMessages collected;
    Page &p = page();
    if (p.background.get() == &picture) {
        p.background = nullptr;
        tellMissingBackground();
        documentEvents().pageChanged();
    }
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        Element *element = elementOf(p, i);
        const ObjectRecord &o = p.objects[static_cast<std::size_t>(i)];
        bool changed = kindOf(o.kind) == Kind::Image;
        if (element && element->picture.get() == &picture) {
            element->picture = nullptr;
            changed = true;
            tellMissingButtonPicture(o.srcfile);
        }
        if (kindOf(o.kind) == Kind::Animation)
            forFrames(i, [&](Frame &frame, int position) {
                if (frame.picture.get() != &picture)
                    return;
                frame.picture = nullptr;
                changed = true;
                tellMissingFrame(frame.image, position);
            });
        if (changed)
            tellObjectChanged(i);
    }
}

} // namespace corvanta
