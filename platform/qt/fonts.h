#pragma once

#include "platform/font.h"

#include <QFont>

#include <string_view>

namespace corvanta {

// A font size in points that can be drawn: 8.25 for one that is not positive or no number, at most 2160.
float usableFontSize(float points);

// A font by its name (bytes of the code page) and its size in points at 96 dots per inch. The size in
// pixels does not depend on the screen's resolution, so that a page looks the same everywhere.
QFont toQFont(std::string_view name, float points, bool bold = false, bool italic = false, bool strikethru = false,
              bool underline = false);

QFont toQFont(const FontBlock &font);

// Maps font names of old pages ("MS Sans Serif", "Tahoma", "System", ...) to installed fonts of the same
// metrics. Called once at start.
void registerFontSubstitutions();

} // namespace corvanta
