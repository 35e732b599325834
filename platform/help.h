#pragma once

#include <functional>

namespace corvanta {

enum class HelpCommand { Contents, Search, Context, Quit };

// The help viewer: its contents, its keyword search, the topic of a context number, or its end.
// Empty without a desktop.
std::function<void(HelpCommand command, long context)> &helpCommand();

void showHelp(HelpCommand command, long context = 0);

} // namespace corvanta
