#pragma once

#include "canvas/events.h"

#include <vector>

// The current object (curobj) and the multi-selection (selslot of the records, multcount) of the process-wide
// page. Indices out of range are ignored where nothing else is said.
namespace corvanta {

bool hasCurrentObject();

// Brings the object's visual to the front, hides the handles and makes the object current; noObject clears
// the current object.
void selectObject(std::int16_t index);
void setCurrentObject(std::int16_t index);

// The handles round the current object; nothing without one.
void showTrackers();
void hideTrackers();

bool inMultiSelection(std::int16_t index);
bool hasMembers(); // whether any object is in the multi-selection
// Gives the object the lowest free slot, which multcount takes too. A member keeps its slot.
void addToMultiSelection(std::int16_t index);
// Frees the object's slot; multcount stays.
void removeFromMultiSelection(std::int16_t index);
void clearMultiSelection();
// All objects become the multi-selection; the first is current when none was.
void selectAllObjects();
// Objects, at least one, become the multi-selection, in front of all others; the first is current. One alone is only
// current.
void chooseObjects(const std::vector<std::int16_t> &indices);

// No object is current, and none is in the multi-selection.
void clearSelection();
// Makes the next or the former object current: in the order of the tab numbers, then of the table, round the end.
void walkObjects(bool forward);

// The markers of a member round its rectangle.
void placeFrameMarkers(std::int16_t index);
void hideFrameMarkers(std::int16_t index);

// A Ctrl-click on an object: the first one takes the current object in as well, one on a member takes it out.
void toggleMultiSelection(std::int16_t index);

} // namespace corvanta
