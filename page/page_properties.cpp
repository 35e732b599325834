#include "page/page_properties.h"

#include "document/events.h"
#include "document/media.h"
#include "document/parse.h"
#include "platform/asking.h"
#include "platform/text.h"

namespace corvanta {

namespace {

PageConfirmation refuse(const std::string &text, const char *control)
{
    showExclamation(text, "Properties Error");
    return {false, control};
}

// The fields themselves, before the background picture is looked at. A size that the image gives cannot be typed.
PageConfirmation checkFields(const PagePropertyFields &f, ScreenSize screen)
{
    if (!validFileName(f.imgfn))
        return refuse(invalidFileName("background"), "imgfn");
    if (!validFileName(f.sndfn))
        return refuse(invalidFileName("sound"), "sndfn");
    const int height = ParseInt16Clamped(f.bkght), width = ParseInt16Clamped(f.bkgwd);
    if (height < 1 || height > screen.height)
        return refuse("Invalid background height.", f.sizeTyped ? "bkght" : "imgfn");
    if (width < 1 || width > screen.width)
        return refuse("Invalid background width.", f.sizeTyped ? "bkgwd" : "imgfn");
    return {CheckColourText(f.bkgcol, "Invalid background color."), "bkgcol"};
}

// The named background picture fits the screen.
PageConfirmation checkPicture(const PicturePtr &picture, ScreenSize screen)
{
    if (!picture)
        return refuse(invalidFileName("background"), "imgfn");
    if (picture->height > screen.height)
        return refuse("Invalid picture's height.", "imgfn");
    if (picture->width > screen.width)
        return refuse("Invalid picture's width.", "imgfn");
    return {true, ""};
}

// The flags of the dialog; the page's other ones stay.
std::int16_t flagsOf(const PagePropertyFields &f, std::int16_t before)
{
    int flags = before & ~(sizeFromImage | rtlFlag | anonymousFlag | replaceHtmlFlag);
    flags |= f.sizeTyped ? 0 : sizeFromImage;
    flags |= f.rtl ? rtlFlag : 0;
    flags |= f.anonymous ? anonymousFlag : 0;
    flags |= f.replacehtml ? replaceHtmlFlag : 0;
    return static_cast<std::int16_t>(flags);
}

void storeBackground(Page &p, const PagePropertyFields &f, const PicturePtr &picture)
{
    const bool sizeOfPicture = picture && !f.sizeTyped;
    p.bkgfile = changedText(f.imgfn, p.bkgfile);
    p.bkgcol = changedColour(f.bkgcol, p.bkgcol);
    p.bkght = sizeOfPicture ? static_cast<std::int16_t>(picture->height) : ParseInt16Clamped(f.bkght);
    p.bkgwd = sizeOfPicture ? static_cast<std::int16_t>(picture->width) : ParseInt16Clamped(f.bkgwd);
    p.background = picture;
    p.sndfn = changedText(f.sndfn, p.sndfn);
}

// The connection text always has exactly three tabs, whatever was pasted into its fields.
std::string joinedConnection(std::initializer_list<std::string> parts)
{
    std::string text;
    for (std::string part : parts) {
        std::erase(part, '\t');
        text += part + '\t';
    }
    text.pop_back();
    return text;
}

void storeFields(Page &p, const PagePropertyFields &f)
{
    p.pgflags = flagsOf(f, p.pgflags);
    p.PageType = static_cast<std::int16_t>(f.PageType);
    p.dbconnect = joinedConnection({f.dsn, f.Username, f.Password, f.deftbl});
    p.SelectStmt = f.SelectStmt;
    p.pgcaption = f.pgcaption;
    p.keyreq = f.keyreq;
}

} // namespace

const std::vector<const char *> &pageTypeNames()
{
    static const std::vector<const char *> names{"Query", "Menu", "Record", "Hit List", "Query View"};
    return names;
}

PagePropertyFields LoadPageProperties(const Page &p)
{
    PagePropertyFields f;
    f.imgfn = p.bkgfile;
    f.sndfn = p.sndfn;
    f.bkgcol = colourText(p.bkgcol);
    f.bkght = std::to_string(p.bkght);
    f.bkgwd = std::to_string(p.bkgwd);
    f.sizeTyped = (p.pgflags & sizeFromImage) == 0;
    f.PageType = p.PageType;
    f.dsn = connectPart(p, 0);
    f.Username = connectPart(p, 1);
    f.Password = connectPart(p, 2);
    f.deftbl = connectPart(p, 3);
    f.SelectStmt = p.SelectStmt;
    f.pgcaption = p.pgcaption;
    f.keyreq = p.keyreq;
    f.rtl = (p.pgflags & rtlFlag) != 0;
    f.anonymous = (p.pgflags & anonymousFlag) != 0;
    f.replacehtml = (p.pgflags & replaceHtmlFlag) != 0;
    return f;
}

bool showsDefaultTable(int pageType)
{
    const auto type = static_cast<PageKind>(pageType);
    return type == PageKind::Query || type == PageKind::Record || type == PageKind::QueryView;
}

bool showsSelectStatement(int pageType) { return static_cast<PageKind>(pageType) == PageKind::Record; }

bool sizeIsTyped(const std::string &imgfn) { return trimmed(imgfn).empty(); }

PageConfirmation ConfirmPageProperties(const PagePropertyFields &f, ScreenSize screen)
{
    const PageConfirmation fields = checkFields(f, screen);
    if (!fields.stored)
        return fields;
    const PicturePtr picture = loadPicture(trimmed(f.imgfn));
    const PageConfirmation fitting = sizeIsTyped(f.imgfn) ? PageConfirmation{true, ""} : checkPicture(picture, screen);
    if (!fitting.stored)
        return fitting;
    Page &p = page();
    storeBackground(p, f, picture);
    storeFields(p, f);
    playPageSound();
    documentEvents().pageLayout();
    documentEvents().pageChanged();
    pageEdited("Page properties");
    return {true, ""};
}

} // namespace corvanta
