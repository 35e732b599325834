#pragma once

#include "platform/asking.h"

#include <optional>

class QWidget;

namespace corvanta {

// Asks for a font with its colour and effects, starting from the given one. What the user leaves alone comes back
// unchanged, also a font that is not installed.
std::optional<FontChoice> showFontDialog(const FontChoice &initial, QWidget *owner);

} // namespace corvanta
