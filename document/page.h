#pragma once

#include "document/kinds.h"
#include "platform/font.h"
#include "platform/pictures.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// The page in memory. Geometry is 16-bit pixels of the page, colours are 0x00BBGGRR (or 0x80 in the
// top byte and a system colour's index), texts are bytes of the system's code page.
namespace corvanta {

inline constexpr std::int16_t noObject = -1; // 65535 as an unsigned value
inline constexpr std::int16_t currentVersion = 3;
inline constexpr std::size_t fileLimit = 16384; // bytes of a page or object file
inline constexpr int maxTickers = 3;
inline constexpr std::size_t entrySlots = 51, gridColumnLimit = 50;

enum class PageKind : std::int16_t { Query, Menu, Record, HitList, QueryView };

enum PageFlag : std::int16_t { sizeFromImage = 1, rtlFlag = 2, anonymousFlag = 4, replaceHtmlFlag = 8 };
enum ObjectFlag : std::int16_t {
    hoverFlag = 1,
    readonlyFlag = 2,
    exludesqlFlag = 4,
    invisibleFlag = 8,
    multiFlag = 16
};

struct ObjectRecord {
    std::int16_t kind = 0;
    std::string keyreq;
    std::string srcfile; // tab-separated file names
    std::int16_t ptop = 0, pleft = 0, pheight = 0, pwidth = 0;
    std::string sptext;
    std::string actlist; // one action text
    std::int16_t objflags = 0;
    std::int16_t selslot = 0; // multi-selection slot; not stored
    std::string ctlname, datacol, updatekey;
    std::int16_t alignment = 0; // 0 left, 1 right, 2 centre
    std::int16_t tbindex = 0;
    std::string condobjname;

    bool has(ObjectFlag flag) const { return (objflags & flag) != 0; }
};

// One control of the canvas; the widget or drawing on screen is a view of it. A ticker's element stands for
// its frame, picture and label together.
struct Element {
    bool loaded = false; // false: unloaded, or a ticker element that no object uses
    std::int16_t top = 0, left = 0, height = 0, width = 0;
    std::string Caption; // of captioned kinds; the text shown by fields
    FontBlock font;
    std::int32_t BackColor = 0xC0C0C0;
    std::int16_t BackStyle = 1;   // 0 transparent, 1 opaque
    std::int16_t BorderStyle = 0; // 0 none, 1 single line
    std::int16_t BevelWidth = 2;  // pixels
    std::int16_t alignment = 0;
    PicturePtr picture;
};

struct ButtonExtras {
    std::string viewcond, enacond, credits, auditmsg, balhelp;
};

struct TextBoxExtras {
    std::int16_t inptype = 0; // 0 String, 1 Integer, 2 Real, 3 Date, 4 Time, 5 Currency, 6 Numeric
    std::int16_t sysobj = -1; // -1 None, 0 User ID, 1 Password, 2 Age, 3 Address, 4 Credits
    std::int16_t maxlen = 0;  // characters
};

struct ListBoxEntry {
    std::string text;
    std::string action; // action text
};

struct AnimationExtras {
    std::int16_t frozen = 0, nplay = 0, strictime = 0;
    std::string frames; // tab-separated numbers of the page's frame table
};

struct GridColumn {
    std::string descriptor; // header, tab, data column name
    std::int16_t width = 0; // twips
};

// An animation frame of the page-wide frame table.
struct Frame {
    bool used = false;
    std::int16_t top = 0, left = 0; // pixels of the page
    std::int16_t duration = 0;      // tenths of a second
    std::string image, sound;       // file names
    PicturePtr picture;
};

// What a page-drawn Image shows; loaded when it is first painted.
struct ImageState {
    std::string path; // of the picture below; another path means that it is to be loaded again
    PicturePtr picture;
};

// Everything that a page file stores, with the tables of the kinds. Tables keep one spare entry after the
// last used one where this is said.
struct Page {
    std::int16_t pgversion = currentVersion;
    std::int16_t PageType = 0;
    std::string dbconnect = "\t\t"; // dsn, Username, Password, deftbl, tab-separated
    std::string SelectStmt;
    std::string bkgfile, sndfn;
    std::int32_t bkgcol = 0xC0C0C0;
    std::int16_t bkght = 0, bkgwd = 0;
    std::int16_t pgflags = replaceHtmlFlag;
    std::string pgcaption, keyreq;

    std::vector<ObjectRecord> objects{1};   // with a spare entry
    std::vector<std::int16_t> ctlindex{0};  // parallel to objects
    std::vector<GridColumn> gridcolumns{1}; // with a spare entry; one list for the whole page

    // Element arrays: index 0 is the template.
    std::vector<Element> but, lbl, tbx, lbx, cbx, grd, fbx, url, tkr, ani;
    // Side tables parallel to the element arrays.
    std::vector<ButtonExtras> butextras;
    std::vector<TextBoxExtras> tbxextras;
    std::vector<std::vector<ListBoxEntry>> lbxextras;
    std::vector<std::vector<std::string>> cbxextras;
    std::vector<std::int16_t> tkrextras; // speed, pixels per timer tick
    std::vector<AnimationExtras> aniextras;
    // Side tables of the page-drawn kinds: hot spots and Image DBs are only counted.
    std::int16_t hotcounter = 0, imgdbcounter = 0;
    std::vector<ImageState> imgpictures{1};
    std::vector<Frame> frames{1}; // numbered from 1
    PicturePtr background;

    Page(); // an empty page with the templates in its element arrays
};

struct EditingState {
    std::int16_t curobj = noObject;
    std::int16_t multcount = 0;
    bool pagedirty = false;
    std::string filetag; // full drive path of the page's file; empty for a new page
    std::string curdir;  // page directory, ends with "\"
    bool msgflag = false;
    // The size in the file of a page that has none, while the canvas lends it the window's; forgotten with a new page.
    std::optional<std::pair<std::int16_t, std::int16_t>> lentSize; // width, height
};

// The one page of the editor and its editing state.
Page &page();
EditingState &editing();

inline std::int16_t objectCount(const Page &p) { return static_cast<std::int16_t>(p.objects.size() - 1); }
inline bool hasObject(const Page &p, std::int16_t index) { return index >= 0 && index < objectCount(p); }
inline std::size_t gridColumnCount(const Page &p) { return p.gridcolumns.size() - 1; }

// The element array of a kind; none for the page-drawn kinds.
std::vector<Element> *elementsOf(Page &p, Kind kind);
// The element of an object; none for page-drawn kinds, unknown kinds and an index out of range.
Element *elementOf(Page &p, std::int16_t index);
const Element *elementOf(const Page &p, std::int16_t index);

// One part of dbconnect: 0 dsn, 1 Username, 2 Password, 3 deftbl.
std::string connectPart(const Page &p, int part);

// The frame numbers of an animation element, those that name no frame left out.
std::vector<int> frameNumbers(const Page &p, std::int16_t element);
// Takes the lowest free slot of the frame table and returns its number.
int takeFrame(Page &p, Frame frame);
void releaseFrames(Page &p, std::int16_t element);

} // namespace corvanta
