#pragma once

#include "platform/qt/dialogs.h"

#include <functional>
#include <string>

namespace corvanta {

enum class Media { Image, Sound, Text };

// The row of a file of the page directory: its plain name, and the button "Browse..." (the name with "browse"). A
// chosen file of another directory is refused with what invalid gives, under "Properties Error". Browsing leaves the
// directories as they are. The button is switched off with the field.
QLineEdit *addMediaField(Fields &fields, const char *name, const QString &label, Media media,
                         std::function<std::string()> invalid);

} // namespace corvanta
