#include "platform/help.h"

namespace corvanta {

std::function<void(HelpCommand, long)> &helpCommand()
{
    static std::function<void(HelpCommand, long)> command;
    return command;
}

void showHelp(HelpCommand command, long context)
{
    if (helpCommand())
        helpCommand()(command, context);
}

} // namespace corvanta
