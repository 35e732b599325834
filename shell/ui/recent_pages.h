#pragma once

#include <filesystem>
#include <vector>

class QMenu;

namespace corvanta {

// Keeps the desktop's list of recent files up to date with the pages that are opened and saved, from now on and in the
// background.
void startRecentPages();
void stopRecentPages();

// Fills a submenu with the recent pages, as they are known at the moment; each opens its page as Open does.
void addRecentPages(QMenu &menu);

} // namespace corvanta
