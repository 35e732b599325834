#include "document/objects.h"
#include "document/parse.h"
#include "objects/properties.h"

namespace corvanta {

namespace {

// The kind's own tables, of the object whose element has number n.
void loadKindFields(PropertyFields &f, const Page &p, Kind kind, std::size_t n, std::int16_t index)
{
    switch (kind) {
    case Kind::Button: {
        const ButtonExtras &x = p.butextras[n];
        f.viewcond = x.viewcond;
        f.enacond = x.enacond;
        f.credits = x.credits;
        f.auditmsg = x.auditmsg;
        f.balhelp = x.balhelp;
        break;
    }
    case Kind::TextBox:
        f.inptype = p.tbxextras[n].inptype;
        f.sysobj = p.tbxextras[n].sysobj + 1;
        f.maxlen = std::to_string(p.tbxextras[n].maxlen);
        break;
    case Kind::ListBox: f.listEntries = p.lbxextras[n]; break;
    case Kind::ComboBox: f.comboEntries = p.cbxextras[n]; break;
    case Kind::Grid: f.columns.assign(p.gridcolumns.begin(), p.gridcolumns.end() - 1); break;
    case Kind::Ticker: f.speed = std::to_string(p.tkrextras[n]); break;
    case Kind::Animation:
        f.frozen = p.aniextras[n].frozen != 0;
        f.strictime = p.aniextras[n].strictime != 0;
        f.nplay = std::to_string(p.aniextras[n].nplay);
        f.frames = framesOf(p, index);
        break;
    case Kind::HotSpot:
    case Kind::Label:
    case Kind::Image:
    case Kind::ImageDb:
    case Kind::File:
    case Kind::Url: break;
    }
}

void loadRecordFields(PropertyFields &f, const ObjectRecord &o)
{
    f.action = o.actlist;
    f.imgfn = f.txtfn = f.filepath = f.imgpath = o.srcfile;
    f.hover = o.has(hoverFlag);
    f.readonly = o.has(readonlyFlag);
    f.exludesql = o.has(exludesqlFlag);
    f.invisible = o.has(invisibleFlag);
    f.multi = o.has(multiFlag);
}

void loadElementFields(PropertyFields &f, const Element &e)
{
    f.font = e.font;
    f.col = colourText(e.BackColor);
    f.cap = f.url = e.Caption;
    f.bwidth = std::to_string(e.BevelWidth);
    f.trans = e.BackStyle == 0;
    f.bstyle = e.BorderStyle == 1;
}

} // namespace

PropertyFields LoadProperties(std::int16_t index)
{
    const Page &p = page();
    const auto i = static_cast<std::size_t>(index);
    PropertyFields f;
    static_cast<CommonFields &>(f) = LoadCommonProperties(index);
    loadRecordFields(f, p.objects[i]);
    if (const Element *e = elementOf(p, index))
        loadElementFields(f, *e);
    if (const auto kind = kindOf(p.objects[i].kind))
        loadKindFields(f, p, *kind, static_cast<std::size_t>(p.ctlindex[i]), index);
    return f;
}

bool hasColour(Kind kind) { return !kindRow(kind).drawnOnPage && kind != Kind::Animation && kind != Kind::Button; }

bool showsDataFields(const Page &p, Kind kind)
{
    return kind == Kind::ComboBox || static_cast<PageKind>(p.PageType) != PageKind::Menu;
}

} // namespace corvanta
