#pragma once

#include "document/page.h"

#include <concepts>

// One description of each record for every codec: the byte reader and writer, and the tools' JSON
// reader and writer. The order of calls is the order of the bytes in a file.
//
// A codec has:
//   int16, int32, truth, single, text (name, value)   plain values
//   action(name, text)                   an action text: a string value
//   group(name, body)                    a nested record; its bytes stand in line
//   optionalText(name, text)             a string that older files end before
//   counted(name, entries, limit, each)  a 16-bit count and so many entries, each(codec, entry)
//   plainTexts(name, entries, limit)     the same, of plain strings
//   rest(name, entries, each)            entries up to the end of the record
//   gridColumns(columns)                 the page's grid column list
//   strictTiming()                       whether the version has the strict timing flag
namespace corvanta {

template <class Record, class Plain>
concept RecordOf = std::same_as<std::remove_const_t<Record>, Plain>;

template <class Codec, RecordOf<Page> Record> void headerFields(Codec &c, Record &p)
{
    c.int16("pgversion", p.pgversion);
    c.int16("PageType", p.PageType);
    c.text("dbconnect", p.dbconnect);
    c.text("SelectStmt", p.SelectStmt);
    c.text("bkgfile", p.bkgfile);
    c.text("sndfn", p.sndfn);
    c.int32("bkgcol", p.bkgcol);
    c.int16("bkght", p.bkght);
    c.int16("bkgwd", p.bkgwd);
    c.int16("pgflags", p.pgflags);
    c.text("pgcaption", p.pgcaption);
    c.optionalText("keyreq", p.keyreq);
}

// The common fields of an object body, after its kind.
template <class Codec, RecordOf<ObjectRecord> Record> void commonFields(Codec &c, Record &o)
{
    c.text("keyreq", o.keyreq);
    c.text("srcfile", o.srcfile);
    c.int16("ptop", o.ptop);
    c.int16("pleft", o.pleft);
    c.int16("pheight", o.pheight);
    c.int16("pwidth", o.pwidth);
    c.text("sptext", o.sptext);
    c.action("actlist", o.actlist);
    c.int16("objflags", o.objflags);
    c.text("ctlname", o.ctlname);
    c.text("datacol", o.datacol);
    c.text("updatekey", o.updatekey);
    c.int16("alignment", o.alignment);
    c.int16("tbindex", o.tbindex);
    c.text("condobjname", o.condobjname);
}

template <class Codec, RecordOf<FontBlock> Record> void fontFields(Codec &c, Record &f)
{
    c.group("font", [&](Codec &g) {
        g.int32("ForeColor", f.ForeColor);
        g.truth("FontBold", f.FontBold);
        g.truth("FontItalic", f.FontItalic);
        g.text("FontName", f.FontName);
        g.single("FontSize", f.FontSize);
        g.truth("FontStrikethru", f.FontStrikethru);
        g.truth("FontUnderline", f.FontUnderline);
    });
}

template <class Codec, RecordOf<Element> E, RecordOf<ButtonExtras> X> void buttonTail(Codec &c, E &e, X &x)
{
    c.text("Caption", e.Caption);
    c.int16("BevelWidth", e.BevelWidth);
    fontFields(c, e.font);
    c.text("viewcond", x.viewcond);
    c.text("enacond", x.enacond);
    c.text("credits", x.credits);
    c.text("auditmsg", x.auditmsg);
    c.text("balhelp", x.balhelp);
}

template <class Codec, RecordOf<Element> E, class Entries> void listBoxTail(Codec &c, E &e, Entries &entries)
{
    c.int32("BackColor", e.BackColor);
    fontFields(c, e.font);
    c.counted("entries", entries, entrySlots, [](Codec &g, auto &entry) {
        g.text("text", entry.text);
        g.action("action", entry.action);
    });
}

template <class Codec, RecordOf<Element> E> void labelTail(Codec &c, E &e)
{
    c.text("Caption", e.Caption);
    fontFields(c, e.font);
    c.int16("BackStyle", e.BackStyle);
    c.int32("BackColor", e.BackColor);
    c.int16("BorderStyle", e.BorderStyle);
}

template <class Codec, RecordOf<Element> E, RecordOf<TextBoxExtras> X> void textBoxTail(Codec &c, E &e, X &x)
{
    fontFields(c, e.font);
    c.int32("BackColor", e.BackColor);
    c.int16("inptype", x.inptype);
    c.int16("sysobj", x.sysobj);
    c.int16("maxlen", x.maxlen);
}

template <class Codec, RecordOf<Element> E, class Speed> void tickerTail(Codec &c, E &e, Speed &speed)
{
    c.text("Caption", e.Caption);
    c.int32("BackColor", e.BackColor);
    c.int16("BorderStyle", e.BorderStyle);
    c.int16("speed", speed);
    fontFields(c, e.font);
}

template <class Codec, RecordOf<AnimationExtras> X, class Frames> void animationTail(Codec &c, X &x, Frames &frames)
{
    c.int16("frozen", x.frozen);
    c.int16("nplay", x.nplay);
    if (c.strictTiming())
        c.int16("strictime", x.strictime);
    c.rest("frames", frames, [](Codec &g, auto &frame) {
        g.int16("top", frame.top);
        g.int16("left", frame.left);
        g.int16("duration", frame.duration);
    });
}

template <class Codec, RecordOf<Element> E, class Columns> void gridTail(Codec &c, E &e, Columns &columns)
{
    c.gridColumns(columns);
    fontFields(c, e.font);
    c.int32("BackColor", e.BackColor);
}

template <class Codec, RecordOf<GridColumn> Record> void gridColumnFields(Codec &c, Record &column)
{
    c.text("descriptor", column.descriptor);
    c.int16("width", column.width);
}

template <class Codec, RecordOf<Element> E> void comboBoxTail(Codec &c, E &e, auto &entries)
{
    c.int32("BackColor", e.BackColor);
    fontFields(c, e.font);
    c.plainTexts("entries", entries, entrySlots);
}

template <class Codec, RecordOf<Element> E> void fileTail(Codec &c, E &e)
{
    c.int32("BackColor", e.BackColor);
    fontFields(c, e.font);
}

template <class Codec, RecordOf<Element> E> void urlTail(Codec &c, E &e)
{
    c.text("Caption", e.Caption);
    fontFields(c, e.font);
    c.int16("BackStyle", e.BackStyle);
    c.int32("BackColor", e.BackColor);
}

// The kind tail of an object whose element is n; frames are those of an Animation in list order: filled
// before writing, stored in the page's frame table after reading.
template <class Codec, RecordOf<Page> P> void kindTail(Codec &c, P &p, Kind kind, std::int16_t n, auto &frames)
{
    const auto i = static_cast<std::size_t>(n);
    switch (kind) {
    case Kind::Button: return buttonTail(c, p.but[i], p.butextras[i]);
    case Kind::ListBox: return listBoxTail(c, p.lbx[i], p.lbxextras[i]);
    case Kind::Label: return labelTail(c, p.lbl[i]);
    case Kind::TextBox: return textBoxTail(c, p.tbx[i], p.tbxextras[i]);
    case Kind::Ticker: return tickerTail(c, p.tkr[i], p.tkrextras[i]);
    case Kind::Animation: return animationTail(c, p.aniextras[i], frames);
    case Kind::Grid: return gridTail(c, p.grd[i], p.gridcolumns);
    case Kind::ComboBox: return comboBoxTail(c, p.cbx[i], p.cbxextras[i]);
    case Kind::File: return fileTail(c, p.fbx[i]);
    case Kind::Url: return urlTail(c, p.url[i]);
    case Kind::HotSpot:
    case Kind::Image:
    case Kind::ImageDb: return;
    }
}

} // namespace corvanta
