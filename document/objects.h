#pragma once

#include "document/page.h"

#include <string_view>
#include <vector>

// Objects of the page: they enter and leave the table here only.
namespace corvanta {

// Appends one object from its body text and builds its visual element; a text that holds only the kind code
// makes a new object with defaults. Returns its index. A fourth ticker is refused: the message is
// shown while msgflag is set, nothing is added and noObject is returned.
std::int16_t createVisual(Page &p, std::string_view record);

// The reading half of createVisual without the tail: appends the record and loads an element that has its
// geometry. noObject for a fourth ticker.
std::int16_t appendObject(Page &p, ObjectRecord record);

// The frames of an Animation in list order, and their replacement; images and sounds are taken from srcfile.
std::vector<Frame> framesOf(const Page &p, std::int16_t index);
void storeFrames(Page &p, std::int16_t index, std::vector<Frame> frames);

// Appends a new object of a kind with its defaults to the process-wide page.
std::int16_t addObject(Kind kind);

// Removes an object of the process-wide page with its element and brings curobj, ctlindex and the
// multi-selection up to date. Sets pagedirty. An index out of range does nothing.
void deleteObject(std::int16_t index);

// Removes all objects of the process-wide page and resets the tables to their spare entries.
void clearObjects();

// Writes the geometry (pixels) into the record and its element; sets pagedirty.
void setObjectGeometry(std::int16_t index, std::int16_t top, std::int16_t left, std::int16_t height,
                       std::int16_t width);

// Moves objects of the process-wide page to the end of the table or to its front; they keep their order among
// themselves, and curobj stays with its object. False when they stand there already.
bool moveInTable(const std::vector<std::int16_t> &indices, bool toEnd);

// The first object of the kind whose ctlindex is the element number; noObject when none.
std::int16_t findObjectByControl(const Page &p, Kind kind, std::int16_t element);

// The object's visual: its kind and element number; element 0 stands for the page picture.
struct ControlReference {
    std::int16_t kind = 0, element = 0;
};
ControlReference controlOfObject(const Page &p, std::int16_t index);

// The object under a page point (pixels): the highest Hot Spot, else the lowest object of any kind that
// contains it; noObject when none does.
std::int16_t hitTestPage(const Page &p, int x, int y);

} // namespace corvanta
