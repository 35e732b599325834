#include "platform/qt/fonts.h"

#include "platform/qt/text.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace corvanta {

namespace {

constexpr float defaultPoints = 8.25F;
constexpr float mostPoints = 2160;

int pixelSize(float points) { return std::max(1, static_cast<int>(std::lround(usableFontSize(points) * 96 / 72))); }

} // namespace

float usableFontSize(float points)
{
    return std::isfinite(points) && points > 0 ? std::min(points, mostPoints) : defaultPoints;
}

QFont toQFont(std::string_view name, float points, bool bold, bool italic, bool strikethru, bool underline)
{
    QFont font(name.empty() ? QStringLiteral("MS Sans Serif") : toQString(name));
    font.setPixelSize(pixelSize(points));
    font.setBold(bold);
    font.setItalic(italic);
    font.setStrikeOut(strikethru);
    font.setUnderline(underline);
    return font;
}

QFont toQFont(const FontBlock &font)
{
    return toQFont(font.FontName, font.FontSize, font.FontBold, font.FontItalic, font.FontStrikethru,
                   font.FontUnderline);
}

void registerFontSubstitutions()
{
    const QStringList sans{"Liberation Sans", "Arimo", "Nimbus Sans", "DejaVu Sans"};
    const QStringList serif{"Liberation Serif", "Tinos", "Nimbus Roman", "DejaVu Serif"};
    const QStringList mono{"Liberation Mono", "Cousine", "Nimbus Mono PS", "DejaVu Sans Mono"};
    for (const char *name : {"MS Sans Serif", "Microsoft Sans Serif", "MS Shell Dlg", "MS Shell Dlg 2", "Helv",
                             "Helvetica", "Arial", "Tahoma", "System", "Small Fonts"})
        QFont::insertSubstitutions(name, sans);
    for (const char *name : {"MS Serif", "Tms Rmn", "Times", "Times New Roman", "Roman"})
        QFont::insertSubstitutions(name, serif);
    for (const char *name : {"Courier", "Courier New", "Fixedsys", "Terminal", "Lucida Console"})
        QFont::insertSubstitutions(name, mono);
    QFont::insertSubstitutions("Arial Narrow", QStringList{"Liberation Sans Narrow", "Nimbus Sans Narrow"} + sans);
    QFont::insertSubstitutions("Verdana", QStringList{"DejaVu Sans"} + sans);
    QFont::insertSubstitutions("Georgia", QStringList{"DejaVu Serif"} + serif);
}

} // namespace corvanta
