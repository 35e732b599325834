#pragma once

#include <functional>
#include <string>

namespace corvanta {

enum class HelpCommand { Contents, Search, Context, Quit };

// The help viewer: its contents, its keyword search, the topic of a context number, or its end.
// Empty without a desktop.
std::function<void(HelpCommand command, long context)> &helpCommand();

void showHelp(HelpCommand command, long context = 0);

// One page of the help, with an anchor where one is wanted ("buttons.html#caption"). Empty without a desktop.
std::function<void(const std::string &page)> &helpPage();

} // namespace corvanta
