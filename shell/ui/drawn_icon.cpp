#include "shell/ui/drawn_icon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

namespace corvanta {

namespace {

QColor mixed(const QColor &a, const QColor &b, double share)
{
    const auto part = [share](int x, int y) { return static_cast<int>(x * share + y * (1 - share)); };
    return QColor(part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue()));
}

IconColours coloursOf(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    const QColor window = palette.color(QPalette::Window);
    if (mode == QIcon::Disabled) {
        const QColor grey = mixed(palette.color(QPalette::Active, QPalette::WindowText), window, 0.35);
        return {grey, window, grey, mixed(grey, window, 0.3)};
    }
    const QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    return {mixed(palette.color(QPalette::Active, QPalette::WindowText), window, 0.8), base, accent,
            mixed(accent, base, 0.3)};
}

class DrawnIconEngine : public QIconEngine {
public:
    explicit DrawnIconEngine(IconDrawing toDraw) : drawing(std::move(toDraw)) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const int side = std::min(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2);
        painter->scale(double(side) / iconGrid, double(side) / iconGrid);
        const IconColours colours = coloursOf(mode);
        painter->setPen(QPen(colours.line, 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        drawing(*painter, colours);
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return result;
    }

    QIconEngine *clone() const override { return new DrawnIconEngine(drawing); }

private:
    IconDrawing drawing;
};

} // namespace

QIcon drawnIcon(IconDrawing drawing) { return QIcon(new DrawnIconEngine(std::move(drawing))); }

} // namespace corvanta
