#pragma once

#include "platform/asking.h"

#include <QStringList>

#include <optional>
#include <string>

class QWidget;

namespace corvanta {

// "Caption (*.ods)|*.ods|All Files (*.*)|*.*" as the toolkit's filters: each its caption and the patterns,
// with those that the caption names besides.
QStringList nameFilters(const std::string &filter);

// Asks for a file. Typed names may be host or drive paths, in any letter case; names without an extension get the
// default one; an unknown drive is told.
std::optional<std::string> showFileDialog(const FileDialog &question, QWidget *owner);

} // namespace corvanta
