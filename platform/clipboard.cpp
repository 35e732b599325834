#include "platform/clipboard.h"

namespace corvanta {

Clipboard &clipboard()
{
    static Clipboard functions;
    return functions;
}

} // namespace corvanta
