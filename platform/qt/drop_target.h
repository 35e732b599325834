#pragma once

#include "platform/qt/drag.h"

#include <functional>

class QWidget;

namespace corvanta {

// Lets a widget take the drags of one tag, and no others; dropped receives what it carries.
void acceptDrag(QWidget &widget, const char *tag, std::function<void(const DragPayload &)> dropped);

} // namespace corvanta
