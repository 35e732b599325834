#pragma once

namespace corvanta {

// Puts the desktop's clipboard behind clipboard(). Objects travel as application/x-corvanta-objects.
void installClipboard();

} // namespace corvanta
