#pragma once

namespace corvanta {

// Tells on standard error how long the event loop did nothing for the author, whenever that was longer than the
// milliseconds that CORVANTA_PAUSES names; nothing without it. For tests and for hunting.
void watchPauses();

// Tells "painted" on standard error as soon as so many windows have been painted, when CORVANTA_PAUSES is set. Called
// once there is an application and no window yet.
void watchFirstPaint(int windows);

} // namespace corvanta
