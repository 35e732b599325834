#pragma once

#include <QByteArray>

#include <functional>

class QWidget;

namespace corvanta {

// Lets a widget take the drags of one tag, and no others; dropped receives the payload.
void acceptDrag(QWidget &widget, const char *tag, std::function<void(const QByteArray &)> dropped);

} // namespace corvanta
