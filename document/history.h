#pragma once

#include "document/page.h"

#include <string>

// Undo and redo of everything that a page file stores. A step is the whole page after an act of the author's, with the
// selection that belonged to it; pictures are shared, so that it costs some ten kilobytes.
namespace corvanta {

inline constexpr std::size_t historySteps = 500, historyBytes = 64 << 20; // the oldest steps go beyond either

// Listens to the edits of the process-wide page from now on.
void startHistory();
void stopHistory();

// The page was opened or is new: nothing can be undone. It counts as saved, unless it was recovered.
enum class FirstState { Saved, Unsaved };
void resetHistory(FirstState first = FirstState::Saved);
// The page was saved as it is: this state is the one that is not dirty.
void markHistorySaved();

// Takes the present selection as the one that belongs to the latest step; called when the author's act is over.
void noteSelection();

// The bytes that saving the state after the latest whole act writes, also while another act is half done. Empty when
// there is no history.
const std::string &wholeActBytes();

// The names of the acts that can be taken back and done again; empty for none.
std::string undoName();
std::string redoName();

// Puts the page before the latest act back, or the page after the act that was taken back last. False when there is
// none.
bool undoEdit();
bool redoEdit();

// The bytes of memory that the steps take, for tests and measurements; pictures are not counted.
std::size_t historyMemory();

} // namespace corvanta
