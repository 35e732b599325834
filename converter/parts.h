#pragma once

#include "converter/elements.h"

#include <string>
#include <string_view>

// What the elements of several kinds have in common.
namespace corvanta {

const ObjectRecord &recordOf(const Template &t, std::int16_t index);

// The element number of an object in its kind's tables.
std::size_t elementNumber(const Template &t, std::int16_t index);

// "o7" for object 7, with a letter behind it for its parts.
std::string idOf(std::int16_t index, std::string_view part = {});

// An element with its end tag; attributes begin with a blank.
std::string element(std::string_view tag, std::string_view attributes, std::string_view content);

// Adds the rule that places an object at its pixels, with further declarations.
void place(Template &t, std::int16_t index, std::string_view declarations);

// A caption as content: escaped, or the author's own markup on pages that do not filter HTML.
std::string captionHtml(const Template &t, std::string_view caption);

// Content that only assistive technology reads.
std::string hiddenText(std::string_view bytes);

// What to call an object that shows no text: its status text, its action or its kind.
std::string spokenName(const Template &t, std::int16_t index, const Target &target);

// The attributes that label an object: nothing where a label element names it as its field, else a
// reference to its nearest label, else its status text or its name.
std::string labelling(const Template &t, std::int16_t index);

// The element that carries out a target: link or button; without one the inert tag. Takes the
// attributes besides href, type and the like. An entry is the number of a List Box entry whose target it is.
std::string control(Template &t, std::int16_t index, const Target &target, std::string_view inert,
                    std::string_view attributes, std::string_view content, std::string_view entry = {});

} // namespace corvanta
