#pragma once

// What the catalogue keeps of each thread: the statements that another thread may break off, and whether the connection
// was found gone.
namespace corvanta {

// A statement of this thread was made, or is about to be released. One whose last call failed because its connection is
// gone, or the time out, marks the connection as lost.
void statementBegins(void *statement);
void statementEnds(void *statement);

// The thread's mark, which is taken away.
bool takeLost();

} // namespace corvanta
