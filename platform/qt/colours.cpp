#include "platform/qt/colours.h"

#include <QGuiApplication>
#include <QPalette>

#include <array>
#include <cstddef>

namespace corvanta {

namespace {

struct SystemColour {
    QPalette::ColorGroup group;
    QPalette::ColorRole role;
};

// By the index of the system colour.
constexpr std::array<SystemColour, 25> systemColours{{
    {QPalette::Active, QPalette::Midlight},        // scroll bar
    {QPalette::Active, QPalette::Dark},            // desktop
    {QPalette::Active, QPalette::Highlight},       // active title bar
    {QPalette::Inactive, QPalette::Mid},           // inactive title bar
    {QPalette::Active, QPalette::Window},          // menu bar
    {QPalette::Active, QPalette::Base},            // window background
    {QPalette::Active, QPalette::WindowText},      // window frame
    {QPalette::Active, QPalette::WindowText},      // menu text
    {QPalette::Active, QPalette::Text},            // window text
    {QPalette::Active, QPalette::HighlightedText}, // title bar text
    {QPalette::Active, QPalette::Button},          // active border
    {QPalette::Inactive, QPalette::Button},        // inactive border
    {QPalette::Active, QPalette::Mid},             // application workspace
    {QPalette::Active, QPalette::Highlight},       // highlight
    {QPalette::Active, QPalette::HighlightedText}, // highlighted text
    {QPalette::Active, QPalette::Button},          // button face
    {QPalette::Active, QPalette::Dark},            // button shadow
    {QPalette::Disabled, QPalette::Text},          // disabled text
    {QPalette::Active, QPalette::ButtonText},      // button text
    {QPalette::Inactive, QPalette::WindowText},    // inactive title bar text
    {QPalette::Active, QPalette::Light},           // button highlight
    {QPalette::Active, QPalette::Shadow},          // button dark shadow
    {QPalette::Active, QPalette::Midlight},        // button light
    {QPalette::Active, QPalette::ToolTipText},     // information text
    {QPalette::Active, QPalette::ToolTipBase},     // information background
}};

} // namespace

QColor toQColor(std::int32_t colour)
{
    const auto value = static_cast<std::uint32_t>(colour);
    const std::size_t index = value & 0xFFFFFFU;
    if (value >> 24 == 0x80 && index < systemColours.size())
        return QGuiApplication::palette().color(systemColours[index].group, systemColours[index].role);
    return QColor(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
}

std::int32_t fromQColor(const QColor &colour)
{
    const QColor rgb = colour.toRgb();
    return rgb.red() | rgb.green() << 8 | rgb.blue() << 16;
}

} // namespace corvanta
