#pragma once

namespace corvanta {

// Tells on standard error how long the event loop did nothing for the author, whenever that was longer than the
// milliseconds that CORVANTA_PAUSES names; nothing without it. For tests and for hunting.
void watchPauses();

} // namespace corvanta
