#pragma once

#include "canvas/geometry.h"

#include <optional>
#include <string>

class QWidget;

// Files that come from outside the editor's own dialogs. Paths are drive paths.
namespace corvanta {

// Opens a page after the question about changes.
void openAnotherPage(const std::string &path);

// A file that was dropped on a window of the editor: a page is opened, an object comes to the page, at a point of it
// where there is one. What is neither is told.
void takeDroppedFile(const std::string &path, std::optional<Point> at);

// Lets files be dropped on a window, or on the area of the page, whose points are those of the page. What another part
// of the editor drags there is left to it.
void takeFileDrops(QWidget &target, bool isPage);

} // namespace corvanta
