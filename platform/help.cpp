#include "platform/help.h"

namespace corvanta {

std::function<void(HelpCommand, long)> &helpCommand()
{
    static std::function<void(HelpCommand, long)> command;
    return command;
}

std::function<void(const std::string &)> &helpPage()
{
    static std::function<void(const std::string &)> page;
    return page;
}

void showHelp(HelpCommand command, long context)
{
    if (helpCommand())
        helpCommand()(command, context);
}

} // namespace corvanta
