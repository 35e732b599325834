#pragma once

#include <QColor>

#include <cstdint>

namespace corvanta {

// A colour 0x00BBGGRR. With 0x80 in its top byte it is the desktop's system colour of that index
// (5 window background, 8 window text, 15 button face, ...), from the application's palette.
QColor toQColor(std::int32_t colour);

// The colour as 0x00BBGGRR; transparency is dropped.
std::int32_t fromQColor(const QColor &colour);

} // namespace corvanta
