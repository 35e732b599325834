#include "shell/ui/icons.h"

#include "shell/ui/drawn_icon.h"

#include <QPainter>
#include <QPolygonF>

// Coordinates are those of the icons' grid; lines stand on half units, so that they are crisp.
namespace corvanta {

namespace {

void box(QPainter &p, double x, double y, double width, double height, const QColor &fill)
{
    p.setBrush(fill);
    p.drawRect(QRectF(x, y, width, height));
}

void line(QPainter &p, double x, double y, double right) { p.drawLine(QPointF(x, y), QPointF(right, y)); }

void polygon(QPainter &p, const QPolygonF &points, const QColor &fill)
{
    p.setBrush(fill);
    p.drawPolygon(points);
}

void sheet(QPainter &p, const IconColours &c)
{
    polygon(p, {{4.5, 2.5}, {14.5, 2.5}, {19.5, 7.5}, {19.5, 21.5}, {4.5, 21.5}}, c.paper);
    polygon(p, {{14.5, 2.5}, {14.5, 7.5}, {19.5, 7.5}}, c.soft);
}

// Two sliders: what can be set.
void sliders(QPainter &p, const IconColours &c, double x, double y)
{
    line(p, x, y, x + 9);
    line(p, x, y + 5, x + 9);
    p.setPen(Qt::NoPen);
    p.setBrush(c.accent);
    p.drawEllipse(QPointF(x + 6, y), 2.2, 2.2);
    p.drawEllipse(QPointF(x + 3, y + 5), 2.2, 2.2);
}

void openForm(QPainter &p, const IconColours &c)
{
    polygon(p, {{2.5, 19.5}, {2.5, 5.5}, {8.5, 5.5}, {10.5, 7.5}, {18.5, 7.5}, {18.5, 19.5}}, c.paper);
    polygon(p, {{2.5, 19.5}, {6.5, 10.5}, {22.5, 10.5}, {18.5, 19.5}}, c.soft);
}

void saveForm(QPainter &p, const IconColours &c)
{
    polygon(p, {{3.5, 3.5}, {17.5, 3.5}, {20.5, 6.5}, {20.5, 20.5}, {3.5, 20.5}}, c.soft);
    box(p, 7.5, 3.5, 8, 5, c.paper);
    box(p, 6.5, 12.5, 11, 8, c.paper);
    line(p, 9, 15.5, 15);
    line(p, 9, 17.5, 15);
}

void pageProperties(QPainter &p, const IconColours &c)
{
    sheet(p, c);
    sliders(p, c, 7.5, 12);
}

void objectList(QPainter &p, const IconColours &c)
{
    box(p, 3.5, 3.5, 17, 17, c.paper);
    for (const double y : {7.5, 12.0, 16.5}) {
        p.fillRect(QRectF(6, y - 1.5, 3, 3), c.accent);
        line(p, 11.5, y, 17.5);
    }
}

void objectProperties(QPainter &p, const IconColours &c)
{
    box(p, 4.5, 4.5, 15, 15, c.soft);
    p.setPen(c.line);
    for (const double x : {4.5, 19.5})
        for (const double y : {4.5, 19.5})
            box(p, x - 2, y - 2, 4, 4, c.paper);
    sliders(p, c, 7.5, 9.5);
}

void button(QPainter &p, const IconColours &c)
{
    p.setBrush(c.soft);
    p.drawRoundedRect(QRectF(2.5, 6.5, 19, 11), 3, 3);
    p.setPen(QPen(c.accent, 2));
    line(p, 8, 12, 16);
}

void comboBox(QPainter &p, const IconColours &c)
{
    box(p, 2.5, 6.5, 19, 11, c.paper);
    box(p, 13.5, 6.5, 8, 11, c.soft);
    line(p, 5.5, 12, 10.5);
    p.setPen(Qt::NoPen);
    polygon(p, {{15, 10.5}, {20, 10.5}, {17.5, 14}}, c.accent);
}

void file(QPainter &p, const IconColours &c)
{
    sheet(p, c);
    p.setPen(QPen(c.accent, 1.6));
    p.drawLine(QPointF(12, 10.5), QPointF(12, 17));
    p.drawPolyline(QPolygonF{{9, 14.2}, {12, 17.2}, {15, 14.2}});
}

void grid(QPainter &p, const IconColours &c)
{
    box(p, 2.5, 4.5, 19, 15, c.paper);
    box(p, 2.5, 4.5, 19, 5, c.soft);
    line(p, 2.5, 14.5, 21.5);
    for (const double x : {8.5, 15.5})
        p.drawLine(QPointF(x, 4.5), QPointF(x, 19.5));
}

void hotSpot(QPainter &p, const IconColours &c)
{
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(c.line, 1, Qt::CustomDashLine));
    QPen dashes(c.line, 1);
    dashes.setDashPattern({2, 2});
    p.setPen(dashes);
    p.drawRect(QRectF(2.5, 4.5, 19, 15));
    p.setPen(QPen(c.accent, 1.6));
    p.drawEllipse(QPointF(12, 12), 4, 4);
    p.setPen(Qt::NoPen);
    p.setBrush(c.accent);
    p.drawEllipse(QPointF(12, 12), 1.5, 1.5);
}

void landscape(QPainter &p, const IconColours &c, double x, double y, double width, double height)
{
    box(p, x, y, width, height, c.paper);
    const QPen pen = p.pen();
    p.setPen(Qt::NoPen);
    polygon(p,
            {{x + 1, y + height - 0.5},
             {x + width * 0.36, y + height * 0.42},
             {x + width * 0.6, y + height * 0.72},
             {x + width * 0.74, y + height * 0.58},
             {x + width - 0.5, y + height - 0.5}},
            c.accent);
    p.drawEllipse(QPointF(x + width * 0.72, y + height * 0.28), 1.7, 1.7);
    p.setPen(pen);
}

void image(QPainter &p, const IconColours &c) { landscape(p, c, 2.5, 4.5, 19, 15); }

void imageDb(QPainter &p, const IconColours &c)
{
    landscape(p, c, 2.5, 2.5, 15, 12);
    p.setBrush(c.soft);
    p.drawRect(QRectF(12.5, 13.5, 9, 6));
    p.setPen(Qt::NoPen);
    p.drawRect(QRectF(13, 18, 8, 3));
    p.setPen(c.line);
    p.drawArc(QRectF(12.5, 17.5, 9, 4), 180 * 16, 180 * 16);
    p.setBrush(c.paper);
    p.drawEllipse(QRectF(12.5, 11.5, 9, 4));
}

void letter(QPainter &p, const QColor &colour, const QPointF &foot, double size)
{
    p.setPen(QPen(colour, size / 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPolyline(
        QPolygonF{foot + QPointF(-size * 0.42, 0), foot + QPointF(0, -size), foot + QPointF(size * 0.42, 0)});
    p.drawLine(foot + QPointF(-size * 0.26, -size * 0.36), foot + QPointF(size * 0.26, -size * 0.36));
}

void label(QPainter &p, const IconColours &c) { letter(p, c.accent, {12, 19}, 14); }

void textBox(QPainter &p, const IconColours &c)
{
    box(p, 2.5, 6.5, 19, 11, c.paper);
    p.drawLine(QPointF(16.5, 8.5), QPointF(16.5, 15.5));
    letter(p, c.accent, {9.5, 15}, 6.5);
}

void url(QPainter &p, const IconColours &c)
{
    p.setBrush(c.paper);
    p.drawEllipse(QPointF(12, 12), 9.5, 9.5);
    p.setPen(QPen(c.accent, 1.2));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QPointF(12, 12), 4.2, 9.5);
    line(p, 3, 12, 21);
    line(p, 5, 7.5, 19);
    line(p, 5, 16.5, 19);
    p.setPen(c.line);
    p.drawEllipse(QPointF(12, 12), 9.5, 9.5);
}

void program(QPainter &p, const IconColours &c)
{
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x1f, 0x5f, 0xa8));
    p.drawRoundedRect(QRectF(1, 1, 22, 22), 4, 4);
    box(p, 4, 4, 16, 3, QColor(0xff, 0xc8, 0x3d));
    box(p, 4, 9, 16, 11, Qt::white);
    box(p, 6, 11, 7, 2, QColor(0x9f, 0xb7, 0xd4));
    box(p, 6, 15, 4, 3, QColor(0x9f, 0xb7, 0xd4));
    p.setPen(QPen(c.line.lightness() > 128 ? Qt::black : c.line, 1));
    box(p, 11.5, 13.5, 6, 4, QColor(0xff, 0xe3, 0x9a));
}

void listBox(QPainter &p, const IconColours &c)
{
    box(p, 3.5, 4.5, 17, 15, c.paper);
    box(p, 3.5, 8.5, 17, 3, c.soft);
    for (const double y : {6.5, 13.5, 16.5})
        line(p, 6, y, 15);
}

void ticker(QPainter &p, const IconColours &c)
{
    box(p, 2.5, 8.5, 19, 7, c.paper);
    line(p, 9, 12, 19);
    polygon(p, {{4.5, 12}, {8, 9.8}, {8, 14.2}}, c.accent);
}

void animation(QPainter &p, const IconColours &c)
{
    for (const double step : {0.0, 3.0, 6.0})
        box(p, 3.5 + step, 3.5 + step, 11, 11, c.paper);
    polygon(p, {{13, 12}, {19, 15}, {13, 18}}, c.accent);
}

} // namespace

QIcon commandIcon(Command command)
{
    if (command == Command::Open)
        return drawnIcon(openForm);
    if (command == Command::Save)
        return drawnIcon(saveForm);
    if (command == Command::PageProperties)
        return drawnIcon(pageProperties);
    if (command == Command::ObjectList)
        return drawnIcon(objectList);
    return command == Command::ObjectProperties ? drawnIcon(objectProperties) : QIcon();
}

QIcon kindIcon(Kind kind)
{
    switch (kind) {
    case Kind::Button: return drawnIcon(button);
    case Kind::HotSpot: return drawnIcon(hotSpot);
    case Kind::Label: return drawnIcon(label);
    case Kind::TextBox: return drawnIcon(textBox);
    case Kind::Image: return drawnIcon(image);
    case Kind::Grid: return drawnIcon(grid);
    case Kind::ImageDb: return drawnIcon(imageDb);
    case Kind::ComboBox: return drawnIcon(comboBox);
    case Kind::File: return drawnIcon(file);
    case Kind::Url: return drawnIcon(url);
    case Kind::ListBox: return drawnIcon(listBox);
    case Kind::Ticker: return drawnIcon(ticker);
    case Kind::Animation: return drawnIcon(animation);
    }
    return {};
}

QIcon programIcon() { return drawnIcon(program); }

} // namespace corvanta
