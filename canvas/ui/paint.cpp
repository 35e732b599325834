#include "canvas/ui/paint.h"

#include "canvas/ui/paint_kinds.h"
#include "document/media.h"
#include "platform/qt/colours.h"
#include "platform/qt/fonts.h"
#include "platform/qt/qt_pictures.h"
#include "platform/qt/text.h"

#include <QPainter>

#include <algorithm>

namespace corvanta {

namespace {

std::optional<Kind> kindAt(const Page &p, std::int16_t index)
{
    return kindOf(p.objects[static_cast<std::size_t>(index)].kind);
}

// A text box with a file shows the file.
QString fieldText(const Element &field, const ObjectRecord &o, const LiveState &live)
{
    if (live.emptied)
        return {};
    const bool bound = !o.ctlname.empty() && !o.datacol.empty();
    const bool showsFile = kindOf(o.kind) == Kind::TextBox && !o.srcfile.empty();
    return shownText(live.bindings && bound && !showsFile ? '<' + o.ctlname + '>' : field.Caption);
}

} // namespace

QFont fontOf(const FontBlock &font)
{
    return toQFont(font.FontName, font.FontSize, font.FontBold, font.FontItalic, font.FontStrikethru,
                   font.FontUnderline);
}

void setTextStyle(QPainter &painter, const FontBlock &font)
{
    painter.setFont(fontOf(font));
    painter.setPen(toQColor(font.ForeColor));
}

QString shownText(const std::string &bytes)
{
    return toQString(bytes)
        .replace(QLatin1String("\r\n"), QLatin1String("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'))
        .replace(QLatin1Char('\t'), QLatin1String("    "));
}

int alignmentFlag(std::int16_t alignment)
{
    if (alignment == 1)
        return Qt::AlignRight;
    return alignment == 2 ? Qt::AlignHCenter : Qt::AlignLeft;
}

void paintObject(QPainter &painter, const Page &p, std::int16_t index, const QRect &rect, const LiveState &live)
{
    if (!hasObject(p, index) || rect.isEmpty())
        return;
    const ObjectRecord &o = p.objects[static_cast<std::size_t>(index)];
    const auto kind = kindOf(o.kind);
    if (!kind)
        return;
    const auto n = static_cast<std::size_t>(p.ctlindex[static_cast<std::size_t>(index)]);
    painter.save();
    painter.setClipRect(rect, Qt::IntersectClip);
    switch (*kind) {
    case Kind::Button: paintButton(painter, p.but.at(n), o.alignment, rect); break;
    case Kind::HotSpot: paintHotSpot(painter, o, rect); break;
    case Kind::ListBox:
        paintListBox(painter, p.lbx.at(n), live.emptied ? std::vector<ListBoxEntry>{} : p.lbxextras.at(n), o.alignment,
                     rect);
        break;
    case Kind::Label: paintLabel(painter, p.lbl.at(n), o.alignment, rect); break;
    case Kind::TextBox: paintTextField(painter, p.tbx.at(n), o, fieldText(p.tbx.at(n), o, live), rect); break;
    case Kind::Image: paintImage(painter, p.imgpictures.at(n).picture, rect); break;
    case Kind::Ticker: paintTicker(painter, p.tkr.at(n), live.textOffset, rect); break;
    case Kind::Animation: paintAnimation(painter, p, static_cast<std::int16_t>(n), live, rect); break;
    case Kind::Grid: paintGrid(painter, p.grd.at(n), p.gridcolumns, rect); break;
    case Kind::ImageDb: paintImageDb(painter, rect); break;
    case Kind::ComboBox: paintComboBox(painter, p.cbx.at(n), o, fieldText(p.cbx.at(n), o, live), rect); break;
    case Kind::File: paintTextField(painter, p.fbx.at(n), o, fieldText(p.fbx.at(n), o, live), rect); break;
    case Kind::Url: paintLabel(painter, p.url.at(n), o.alignment, rect); break;
    }
    painter.restore();
}

void paintPlaced(QPainter &painter, Page &p, std::int16_t index)
{
    if (kindAt(p, index) == Kind::Image)
        imagePicture(p, index);
    const ObjectRecord &o = p.objects[static_cast<std::size_t>(index)];
    paintObject(painter, p, index, QRect(o.pleft, o.ptop, o.pwidth, o.pheight));
}

void paintPageBackground(QPainter &painter, const Page &p, const QRect &rect)
{
    painter.fillRect(rect, toQColor(p.bkgcol));
    if (!p.background)
        return;
    const QRect shown = QRect(0, 0, p.background->width, p.background->height) & QRect(0, 0, p.bkgwd, p.bkght);
    painter.save();
    painter.setClipRect(rect, Qt::IntersectClip);
    drawPicture(painter, shown, p.background, shown);
    painter.restore();
}

std::vector<std::int16_t> drawnOnPage(const Page &p)
{
    std::vector<std::int16_t> drawn;
    for (std::int16_t i = 0; i < objectCount(p); ++i)
        if (const auto kind = kindAt(p, i); kind && kindRow(*kind).drawnOnPage)
            drawn.push_back(i);
    std::ranges::stable_partition(drawn, [&](std::int16_t i) { return kindAt(p, i) != Kind::HotSpot; });
    return drawn;
}

void paintPage(QPainter &painter, Page &p)
{
    paintPageBackground(painter, p, QRect(0, 0, p.bkgwd, p.bkght));
    std::vector<std::int16_t> order = drawnOnPage(p); // below the controls
    for (std::int16_t i = 0; i < objectCount(p); ++i)
        if (const auto kind = kindAt(p, i); kind && !kindRow(*kind).drawnOnPage)
            order.push_back(i);
    for (const std::int16_t i : order)
        paintPlaced(painter, p, i);
}

} // namespace corvanta
