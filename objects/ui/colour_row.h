#pragma once

#include "platform/qt/dialogs.h"

namespace corvanta {

// The row of a colour: its hexadecimal digits, a swatch that shows what they stand for, and the button "Select", which
// asks for a colour. Swatch and button are switched off with the field.
QLineEdit *addColourField(Fields &fields, const char *name, const QString &label, const char *buttonName);

} // namespace corvanta
