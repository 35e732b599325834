#pragma once

#include <cstddef>
#include <string>

class QWidget;

namespace corvanta {

// The most bytes of a text: a page file holds no more altogether.
inline constexpr std::size_t mostTextBytes = 16384;

// Whether a text of so many bytes is short enough; tells when not. what is the field's label, or what the text is.
bool checkTextLength(std::size_t bytes, const std::string &what, const std::string &title);

// Whether all texts of a dialog's fields are short enough, also of those that are hidden at the moment. Tells the
// first that is not, keeps it and returns to its field.
bool checkTextLengths(QWidget &dialog, const std::string &title);
bool checkTextLengths(QWidget &dialog); // under the dialog's caption

} // namespace corvanta
