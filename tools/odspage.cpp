#include "platform/files.h"
#include "tools/odspage_check_database.h"
#include "tools/odspage_commands.h"
#include "tools/standard_streams.h"

#include <cstdlib>
#include <iostream>

int main(int argc, char **argv)
{
    corvanta::takeFileErrorsAsErrors();
    corvanta::holdStandardStreams();
    const int code = corvanta::runOdspage(argc, argv, std::cout, std::cerr);
    if (corvanta::DatabaseCheck::driverLeftBehind()) { // its thread may still be in the driver
        std::cout.flush();
        std::_Exit(code);
    }
    return code;
}
