#pragma once

namespace corvanta {

// Until told otherwise, a toolkit that cannot start ends the program with one line on standard error and exit code 1,
// where it would abort. What it warns of meanwhile is told when it did start.
void watchForMissingDisplay();
void displayFound();

} // namespace corvanta
